// Asks the environment and the processor, and sets the functions of the path.
#include "app/vector_choice.h"

#include <cstdlib>

#include "demo/blur.h"
#include "raster/paths.h"
#include "scene/front_end.h"

namespace ombrel {

VectorPath ChooseVectorPath(bool* understood) {
    const VectorPath path = PathFor(std::getenv(kPathVariable), understood);
    UseFillers(path);
    UseFrontEnd(path);
    UseBlur(path);
    return path;
}

} // namespace ombrel
