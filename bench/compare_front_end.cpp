// Rows of --compare: what happens to faces before they are filled, and the passes over the picture.
#include "compare.h"

namespace ombrel {

std::vector<CompareRow> FrontEndRows() {
    return {};
}

} // namespace ombrel
