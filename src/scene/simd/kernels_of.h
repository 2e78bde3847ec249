// The kernels of the front end over lanes L: the formulas of geometry.h, L::kLanes corners or
// points at a time. Included by each kernels_*.cpp.
#pragma once

#include "base/pixel16.h"
#include "scene/kernels.h"

namespace ombrel {

template <class L>
static void PlaceSome(const Vertex* from, const Vec3& shift, const CameraView& view,
                      PlacedVertex* to) {
    constexpr std::ptrdiff_t kVertexWords = sizeof(Vertex) / sizeof(Single);
    constexpr std::ptrdiff_t kPlacedWords = sizeof(PlacedVertex) / sizeof(Single);
    using Floats = typename L::Floats;
    using Ints = typename L::Ints;

    const auto stored = L::LoadRows(&from->x, kVertexWords);
    const auto world = Sum(Xyz<Floats>{stored.a, stored.b, stored.c}, shift);
    const auto seen = ToCamera(world, view.matrix);
    const Ints outside =
        OutsideBits<L>(seen, view) | L::Bits(~IsInGuardBand(seen, view), OUTSIDE_BAND);
    const auto screen = MapToScreen(Project(seen, view), view);
    L::StoreRows(&to->x, kPlacedWords, {world.x, world.y, world.z, (Floats)outside});
    L::StoreRows(&to->screenX, kPlacedWords, {screen.x, screen.y, screen.z, (Floats)(Ints{} - 1)});
}

template <class L>
static void PlaceVertices(const Vertex* from, std::int32_t count, const Vec3& shift,
                          const CameraView& view, PlacedVertex* to) {
    std::int32_t i = 0;
    for (; i + L::kLanes <= count; i += L::kLanes) {
        PlaceSome<L>(from + i, shift, view, to + i);
    }
    if (i < count) {
        Vertex rest[L::kLanes] = {};
        std::memcpy(static_cast<void*>(rest), from + i,
                    static_cast<std::size_t>(count - i) * sizeof(Vertex));
        PlaceSome<L>(rest, shift, view, to + i);
    }
}

template <class L>
static void LightPoints(LitPoints* points, std::int32_t count, const LightTable& lights,
                        bool fiveBitGreen) {
    using Floats = typename L::Floats;
    using Ints = typename L::Ints;
    const auto load = [](const Single* from) { return L::template Load<Floats>(from); };
    for (std::int32_t i = 0; i < count; i += L::kLanes) {
        const LitPoint<L> point = {
            {load(points->x + i), load(points->y + i), load(points->z + i)},
            {load(points->nx + i), load(points->ny + i), load(points->nz + i)},
            load(points->size + i)};
        const auto color = L::template Load<Ints>(points->base + i);
        const auto light = LightOf<L>(lights, point, color);
        L::Store(fiveBitGreen ? Pack555(light.r, light.g, light.b)
                              : Pack565(light.r, light.g, light.b),
                 points->lit + i);
    }
}

} // namespace ombrel
