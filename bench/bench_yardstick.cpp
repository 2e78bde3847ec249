// Yardstick/<rule>/large and /25: three fillers of the inverse-depth kind written out by hand, the
// plain way, with every attribute in a variable of its own: FillFlatW, FillTexGouraudW and
// FillTexGouraudWBlend. No filler of the family may be slower than its yardstick. They draw
// triangles that lie inside the frame, and stop the benchmark when their pixels differ from the
// family's.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "base/convert.h"
#include "base/float_mode.h"
#include "base/log2_table.h"
#include "base/rect.h"
#include "fill_scene.h"
#include "raster/blend_tables.h"
#include "raster/paths.h"

namespace ombrel {
namespace {

// Whether the rounded triangle is outside, or has no area.
template <class V> bool DrawsNothing(const V p[3]) {
    return (p[0].y < kBenchClip.top && p[1].y < kBenchClip.top && p[2].y < kBenchClip.top) ||
           (p[0].y > kBenchClip.bottom && p[1].y > kBenchClip.bottom &&
            p[2].y > kBenchClip.bottom) ||
           (p[0].x < kBenchClip.left && p[1].x < kBenchClip.left && p[2].x < kBenchClip.left) ||
           (p[0].x > kBenchClip.right && p[1].x > kBenchClip.right && p[2].x > kBenchClip.right) ||
           (p[0].x == p[1].x && p[1].x == p[2].x) || (p[0].y == p[1].y && p[1].y == p[2].y);
}
// Whether columns need to be clipped.
template <class V> bool Crosses(const V p[3]) {
    for (int i = 0; i < 3; ++i) {
        if (p[i].x < kBenchClip.left || p[i].x > kBenchClip.right)
            return true;
    }
    return false;
}

// --- flat
// -----------------------------------------------------------------------------------------

struct FlatVertex {
    int x, y, w;
};

void PlainFlat(ScreenPolygon* polygon, const FillTarget& target) {
    FlatVertex p[3];
    for (int i = 0; i < 3; ++i) {
        Vertex& v = polygon->vertices[i];
        v.x = static_cast<float>(ToIntChop(v.x + 0.5F));
        v.y = static_cast<float>(ToIntChop(v.y + 0.5F));
        p[i] = {ToIntChop(v.x), ToIntChop(v.y), 0};
    }
    if (DrawsNothing(p))
        return;
    for (int i = 0; i < 3; ++i) {
        p[i].w = 0x10000000 / ToIntChop(polygon->vertices[i].z + 0.5F);
    }
    const bool clips = Crosses(p);
    if (p[1].y < p[0].y)
        std::swap(p[0], p[1]);
    if (p[2].y < p[1].y)
        std::swap(p[1], p[2]);
    if (p[1].y < p[0].y)
        std::swap(p[0], p[1]);

    const int top = std::max(p[0].y, kBenchClip.top), end = std::min(p[2].y, kBenchClip.bottom);
    const int rows = p[2].y - p[0].y;
    const int dxLong = (p[2].x - p[0].x) * 65536 / rows, dwLong = (p[2].w - p[0].w) / rows;
    int xLong = p[0].x * 65536 + dxLong * (top - p[0].y), wLong = p[0].w + dwLong * (top - p[0].y);
    int dxShort = 0, dwShort = 0, xShort = 0, wShort = 0;
    bool longLeft;
    const auto lower = [&](int steps) {
        dxShort = (p[2].x - p[1].x) * 65536 / (p[2].y - p[1].y);
        dwShort = (p[2].w - p[1].w) / (p[2].y - p[1].y);
        xShort = p[1].x * 65536 + dxShort * steps;
        wShort = p[1].w + dwShort * steps;
    };
    if (p[0].y == p[1].y) {
        lower(top - p[1].y);
        longLeft = p[0].x <= p[1].x;
    } else {
        dxShort = (p[1].x - p[0].x) * 65536 / (p[1].y - p[0].y);
        dwShort = (p[1].w - p[0].w) / (p[1].y - p[0].y);
        xShort = p[0].x * 65536 + dxShort * (top - p[0].y);
        wShort = p[0].w + dwShort * (top - p[0].y);
        longLeft = p[1].y == p[2].y ? p[2].x < p[1].x : dxLong < dxShort;
        if (p[1].y < top) {
            lower(top - p[1].y);
        }
    }

    const auto color = static_cast<Pixel16>(polygon->litColors[0]);
    Pixel16* frame = target.frame + top * (target.framePitch >> 1);
    std::uint32_t* depth = target.depth + top * (target.depthPitch >> 2);
    for (int y = top; y < end; ++y) {
        int xl = ((longLeft ? xLong : xShort) + 0x8000) >> 16;
        int xr = ((longLeft ? xShort : xLong) + 0x8000) >> 16;
        if (xl < xr) {
            int w = longLeft ? wLong : wShort;
            const int dw = ((longLeft ? wShort : wLong) - w) / (xr - xl);
            if (clips) {
                if (xl < kBenchClip.left) {
                    w += dw * (kBenchClip.left - xl);
                    xl = kBenchClip.left;
                }
                xr = std::min(xr, kBenchClip.right);
            }
            for (int x = xl; x < xr; ++x) {
                if (static_cast<std::uint32_t>(w) > depth[x]) {
                    frame[x] = color;
                    depth[x] = static_cast<std::uint32_t>(w);
                }
                w += dw;
            }
        }
        xLong += dxLong;
        wLong += dwLong;
        xShort += dxShort;
        wShort += dwShort;
        if (y == p[1].y && p[0].y != p[1].y)
            lower(1);
        frame += target.framePitch >> 1;
        depth += target.depthPitch >> 2;
    }
}

// --- textured, gouraud-lit
// ------------------------------------------------------------------------

struct LitVertex {
    int x, y, w, u, v, r, g, b;
};
struct LitEdge {
    int x, w, u, v, r, g, b;
    int dx, dw, du, dv, dr, dg, db;

    void Set(const LitVertex& from, const LitVertex& to, int steps) {
        const int rows = to.y - from.y;
        dx = (to.x - from.x) * 65536 / rows;
        dw = (to.w - from.w) / rows;
        du = (to.u - from.u) / rows;
        dv = (to.v - from.v) / rows;
        dr = (to.r - from.r) / rows;
        dg = (to.g - from.g) / rows;
        db = (to.b - from.b) / rows;
        x = from.x * 65536 + dx * steps;
        w = from.w + dw * steps;
        u = from.u + du * steps;
        v = from.v + dv * steps;
        r = from.r + dr * steps;
        g = from.g + dg * steps;
        b = from.b + db * steps;
    }
    void Step() {
        x += dx;
        w += dw;
        u += du;
        v += dv;
        r += dr;
        g += dg;
        b += db;
    }
};

template <bool blended> void PlainTexGouraud(ScreenPolygon* polygon, const FillTarget& target) {
    LitVertex p[3];
    for (int i = 0; i < 3; ++i) {
        Vertex& v = polygon->vertices[i];
        const auto k = static_cast<int>(polygon->litColors[i]);
        v.x = static_cast<float>(ToIntChop(v.x + 0.5F));
        v.y = static_cast<float>(ToIntChop(v.y + 0.5F));
        p[i] = {ToIntChop(v.x),           ToIntChop(v.y),         0,
                ToIntChop(v.u) * 65536,   ToIntChop(v.v) * 65536, ((k >> 8) & 248) * 65536,
                ((k >> 3) & 252) * 65536, (k & 31) * 8 * 65536};
    }
    if (DrawsNothing(p)) {
        return;
    }
    for (int i = 0; i < 3; ++i) {
        p[i].w = 0x10000000 / ToIntChop(polygon->vertices[i].z + 0.5F);
    }
    const bool clips = Crosses(p);
    if (p[1].y < p[0].y)
        std::swap(p[0], p[1]);
    if (p[2].y < p[1].y)
        std::swap(p[1], p[2]);
    if (p[1].y < p[0].y)
        std::swap(p[0], p[1]);

    const int top = std::max(p[0].y, kBenchClip.top), end = std::min(p[2].y, kBenchClip.bottom);
    LitEdge longEdge, shortEdge;
    longEdge.Set(p[0], p[2], top - p[0].y);
    bool longLeft;
    if (p[0].y == p[1].y) {
        shortEdge.Set(p[1], p[2], top - p[1].y);
        longLeft = p[0].x <= p[1].x;
    } else {
        shortEdge.Set(p[0], p[1], top - p[0].y);
        longLeft = p[1].y == p[2].y ? p[2].x < p[1].x : longEdge.dx < shortEdge.dx;
        if (p[1].y < top) {
            shortEdge.Set(p[1], p[2], top - p[1].y);
        }
    }

    const Texture& texture = *polygon->texture.single;
    const auto* texels = static_cast<const Pixel16*>(texture.pixels);
    const int shift = Log2Table[static_cast<std::size_t>(texture.width)];
    const Pixel16* under = BlendTables[7 - target.level];
    const Pixel16* over = BlendTables[target.level];
    Pixel16* frame = target.frame + top * (target.framePitch >> 1);
    std::uint32_t* depth = target.depth + top * (target.depthPitch >> 2);
    for (int y = top; y < end; ++y) {
        const LitEdge& left = longLeft ? longEdge : shortEdge;
        const LitEdge& right = longLeft ? shortEdge : longEdge;
        int xl = (left.x + 0x8000) >> 16;
        int xr = (right.x + 0x8000) >> 16;
        if (xl < xr) {
            const int n = xr - xl;
            const int dw = (right.w - left.w) / n;
            const int du = (right.u - left.u) / n;
            const int dv = (right.v - left.v) / n;
            const int dr = (right.r - left.r) / n;
            const int dg = (right.g - left.g) / n;
            const int db = (right.b - left.b) / n;
            int w = left.w, u = left.u, v = left.v;
            int r = left.r + 0x8000, g = left.g + 0x8000, b = left.b + 0x8000;
            if (clips) {
                const int skip = kBenchClip.left - xl;
                if (skip > 0) {
                    w += dw * skip;
                    u += du * skip;
                    v += dv * skip;
                    r += dr * skip;
                    g += dg * skip;
                    b += db * skip;
                    xl = kBenchClip.left;
                }
                xr = std::min(xr, kBenchClip.right);
            }
            for (int x = xl; x < xr; ++x) {
                if (static_cast<std::uint32_t>(w) > depth[x]) {
                    const int t = texels[((v >> 16) << shift) + (u >> 16)];
                    const int pixel = (((((t >> 5) & 63) * g) >> 19) & 0x1FE0) +
                                      ((((t >> 11) * r) >> 13) & 0xF800) + (((t & 31) * b) >> 24);
                    if (blended) {
                        frame[x] = static_cast<Pixel16>(under[frame[x]] + over[pixel & 0xFFFF]);
                    } else {
                        frame[x] = static_cast<Pixel16>(pixel);
                    }
                    depth[x] = static_cast<std::uint32_t>(w);
                }
                w += dw;
                u += du;
                v += dv;
                r += dr;
                g += dg;
                b += db;
            }
        }
        longEdge.Step();
        shortEdge.Step();
        if (y == p[1].y && p[0].y != p[1].y)
            shortEdge.Set(p[1], p[2], 1);
        frame += target.framePitch >> 1;
        depth += target.depthPitch >> 2;
    }
}

// --------------------------------------------------------------------------------------------------

struct Yardstick {
    const char* name;
    Filler plain;
    FillerId member;
};
constexpr Yardstick kYardsticks[] = {
    {"Flat", PlainFlat, FillerId::FillFlatW},
    {"TexGouraud", PlainTexGouraud<false>, FillerId::FillTexGouraudW},
    {"TexGouraudBlend", PlainTexGouraud<true>, FillerId::FillTexGouraudWBlend},
};

void DrawAll(FillScene* scene, Filler filler) {
    const FillTarget target = scene->Target();
    for (ScreenPolygon& polygon : scene->polygons) {
        filler(&polygon, target);
    }
}

// Draws by both in turn, so that a slower moment of the machine meets both; ratio is the plain
// family's time over the yardstick's: 1 or less is wanted.
void Compare(benchmark::State& state, const Yardstick& yardstick, std::int32_t trianglePixels) {
    FillScene* scene = MakeFillScene(trianglePixels);
    const ScopedFloatMode mode(FloatMode::Chop);
    const Filler member = kPlainPath.fillers[static_cast<int>(yardstick.member)];
    const auto run = [&](Filler filler) {
        scene->Clear("W");
        const auto start = std::chrono::steady_clock::now();
        DrawAll(scene, filler);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    std::fill(scene->frame.begin(), scene->frame.end(), Pixel16{0x5A5A});
    run(member);
    const std::vector<Pixel16> wanted = scene->frame;
    std::fill(scene->frame.begin(), scene->frame.end(), Pixel16{0x5A5A});
    run(yardstick.plain);
    if (scene->frame != wanted) {
        state.SkipWithError("the yardstick draws other pixels than the family");
    }
    std::vector<double> ratios;
    for (auto _ : state) {
        const double plain = run(yardstick.plain);
        ratios.push_back(run(member) / plain);
        state.SetIterationTime(plain);
    }
    if (!ratios.empty()) {
        std::nth_element(ratios.begin(),
                         ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2),
                         ratios.end());
        state.counters["ratio"] = ratios[ratios.size() / 2];
        state.counters["pixels"] = benchmark::Counter(
            static_cast<double>(state.iterations() * scene->pixels), benchmark::Counter::kIsRate);
    }
    delete scene;
}

[[maybe_unused]] const bool registered = [] {
    for (const Yardstick& yardstick : kYardsticks) {
        const std::string name = std::string("Yardstick/") + yardstick.name;
        benchmark::RegisterBenchmark((name + "/large").c_str(), Compare, yardstick, 60000)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark((name + "/25").c_str(), Compare, yardstick, 25)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

} // namespace
} // namespace ombrel
