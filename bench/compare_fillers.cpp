// Rows of --compare: the triangle fillers, on large triangles whose pixels all pass their depth
// test; on large ones hidden by what is there; on small ones.
#include <algorithm>
#include <memory>

#include "base/float_mode.h"
#include "compare.h"
#include "fill_scene.h"
#include "raster/paths.h"

namespace ombrel {

namespace {

constexpr std::int32_t kLarge = 60000; // pixels

// What a class of members is to reach; members without a promise of their own 0.8 of their kin's.
constexpr CompareGoals kFlat = {2.5, 3.8, 3.8}, kTextured = {1.6, 2.6, 3.6};
constexpr CompareGoals kTexturedFlat = {2.1, 3.8, 5.2}, kTexturedGouraud = {1.5, 2.8, 4.6};
constexpr CompareGoals kBlended = {1.5, 2.8, 4.0}, kOccluded = {2.0, 4.5, 5.8};
constexpr CompareGoals kDemanding = {1.0, 2.0, 3.0}; // bilinear, and in perspective per pixel

struct NamedGoals {
    FillerId id;
    CompareGoals goals;
};
constexpr NamedGoals kPromised[] = {
    {FillerId::FillFlatW, kFlat},
    {FillerId::FillTexWAffine, kTextured},
    {FillerId::FillTexFlatWAffine, kTexturedFlat},
    {FillerId::FillTexGouraudW, kTexturedGouraud},
    {FillerId::FillTexGouraudWBlend, kBlended},
};

CompareGoals GoalsOf(std::int32_t id) {
    for (const NamedGoals& named : kPromised) {
        if (static_cast<std::int32_t>(named.id) == id) {
            return named.goals;
        }
    }
    const FillerRow& rules = kFillerTable[id];
    if (rules.texel == "Bilinear" || rules.texel == "PerPixel") {
        return kDemanding;
    }
    const CompareGoals kin = rules.texel == "NoTexel"   ? kFlat
                             : rules.write == "Blend"   ? kBlended
                             : rules.light == "Gouraud" ? kTexturedGouraud
                             : rules.light == "Flat"    ? kTexturedFlat
                                                        : kTextured;
    return {kin.sse * 0.8, kin.avx2 * 0.8, kin.avx512 * 0.8};
}

double Draw(FillScene* scene, Filler filler) {
    const ScopedFloatMode mode(FloatMode::Chop);
    const FillTarget target = scene->Target();
    const double start = ProcessorSeconds();
    for (ScreenPolygon& polygon : scene->polygons) {
        filler(&polygon, target);
    }
    return ProcessorSeconds() - start;
}

CompareRow RowOf(const std::string& name, FillerId id, std::shared_ptr<FillScene> scene,
                 CompareGoals goals) {
    const auto number = static_cast<std::int32_t>(id);
    return {name, goals, [number, scene](VectorPath path) {
                scene->Clear(kFillerTable[number].depth);
                return Draw(scene.get(), RasterPathOf(path).fillers[number]);
            }};
}

} // namespace

std::vector<CompareRow> FillerRows() {
    std::vector<CompareRow> rows;
    const std::shared_ptr<FillScene> large(MakeFillScene(kLarge));
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        rows.push_back(RowOf(kFillerTable[id].name, static_cast<FillerId>(id), large, GoalsOf(id)));
    }
    constexpr auto kOften = FillerId::FillTexGouraudW;
    rows.push_back({"FillTexGouraudW, occluded", kOccluded, [large](VectorPath path) {
                        std::fill(large->depth.begin(), large->depth.end(), 0xFFFFFFFFU);
                        return Draw(large.get(),
                                    RasterPathOf(path).fillers[static_cast<int>(kOften)]);
                    }});
    const auto small = [](std::int32_t pixels) {
        return std::shared_ptr<FillScene>(MakeFillScene(pixels));
    };
    rows.push_back(RowOf("FillTexGouraudW, 25 pixels", kOften, small(25), {1.0, 1.5, 1.7}));
    rows.push_back(RowOf("FillTexGouraudW, 100 pixels", kOften, small(100), {1.0, 1.5, 2.0}));
    rows.push_back(RowOf("FillTexGouraudW, 400 pixels", kOften, small(400), {1.0, 1.6, 2.2}));
    rows.push_back(RowOf("FillFlatW, 25 pixels", FillerId::FillFlatW, small(25), {}));
    rows.push_back(RowOf("FillTexWAffine, 25 pixels", FillerId::FillTexWAffine, small(25), {}));
    return rows;
}

} // namespace ombrel
