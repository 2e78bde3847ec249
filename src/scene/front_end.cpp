// The door: chooses the form of a frame, and the form that runs the passes one after another.
#include "scene/front_end.h"

#include "scene/fused.h"
#include "scene/mesh_transform.h"
#include "scene/pipeline.h"

namespace ombrel {

constinit const FrontEndKernels* activeFrontEnd = nullptr;

const FrontEndKernels* FrontEndOf(VectorPath path) {
    switch (path) {
#if defined(OMBREL_X86_KERNELS)
    case VectorPath::Sse:
        return &kSse41Kernels;
    case VectorPath::Avx2:
    case VectorPath::Avx512:
        return &kAvx2Kernels;
#elif defined(OMBREL_NEON_KERNELS)
    case VectorPath::Neon:
        return &kNeonKernels;
#elif defined(OMBREL_WASM_KERNELS)
    case VectorPath::Wasm:
        return &kWasmKernels;
#endif
    default:
        return nullptr;
    }
}

void UseFrontEnd(VectorPath path) {
    activeFrontEnd = FrontEndOf(path);
}

void ResetFrontEnd() {
    activeFrontEnd = nullptr;
}

void StartFaces(FrontEnd* front, FaceList* list, const FaceSettings& settings) {
    const bool knownPacker = settings.pack == PackRgb555 || settings.pack == PackRgb565;
    front->list = list;
    front->settings = settings;
    front->kernels = settings.sortMode < 0 && knownPacker ? activeFrontEnd : nullptr;
    if (settings.lit) {
        LightsTransform(settings.lights, settings.lightCount, nullptr, LightMove::Copy);
    }
    if (front->kernels != nullptr) {
        StartFused(front);
    } else {
        FaceListClear(list);
    }
}

int AddMesh(FrontEnd* front, Mesh* mesh) {
    if (front->kernels != nullptr) {
        return AddFused(front, mesh, false);
    }
    MeshTranslate(mesh, TransformMode::IntoTransformed, 0);
    return MeshAddFaces(front->list, mesh, 0);
}

int ResetAndAddMesh(FrontEnd* front, Mesh* mesh) {
    if (front->kernels != nullptr) {
        return AddFused(front, mesh, true);
    }
    MeshResetFrame(mesh);
    return AddMesh(front, mesh);
}

void FinishFaces(FrontEnd* front) {
    if (front->kernels != nullptr) {
        FinishFused(front);
        return;
    }
    FaceList* const list = front->list;
    const FaceSettings& set = front->settings;
    if (set.cullBack) {
        CullBackFaces(list, set.camera);
    }
    if (set.lit) {
        LightFaces(list, set.camera, {set.lights, set.lightCount}, set.pack);
    }
    TransformPolygonsToCamera(list, set.camera);
    ClipPolygons(list, set.camera, kTestAllSides);
    SortFaces(list, set.sortMode);
    ProjectPolygons(list, set.camera);
    MapPolygonsToScreen(list, set.camera);
}

} // namespace ombrel
