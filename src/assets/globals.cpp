// Definitions of the process-wide variables that belong to assets, with their initial values.
#include "assets/mesh.h"
#include "assets/object_loader.h"

namespace ombrel {

constinit Material materials[kMaxMaterials] = {};
constinit std::int32_t materialBase = 0;
constinit BmpImage loaderImage = {};

void ResetMaterials() {
    for (Material& material : materials) {
        material = Material{};
    }
    materialBase = 0;
}

void ResetObjectLoader() {
    releaseBmp(&loaderImage);
    loaderImage = BmpImage{};
}

} // namespace ombrel
