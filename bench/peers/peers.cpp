// larkfen-peers: the same textured, gouraud-lit, depth-tested triangles drawn by this project's
// fillers, by Allegro 4 and by OSMesa (llvmpipe), in turns on one thread. Prints million pixels a
// second and how many times as fast the fillers are. Built only where the two libraries are there
// (Debian: liballegro4-dev, libosmesa6-dev): ninja larkfen-peers.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include <GL/osmesa.h>
#include <allegro.h>

#include "app/vector_choice.h"
#include "base/float_mode.h"
#include "compare.h"
#include "fill_scene.h"
#include "raster/paths.h"

namespace {

using ombrel::FillScene;

constexpr int kWidth = 640, kHeight = 480, kTexels = 256, kRounds = 9;

// --- this project ------------------------------------------------------------------------------

double DrawOurs(FillScene* scene, ombrel::Filler filler) {
    const ombrel::ScopedFloatMode chop(ombrel::FloatMode::Chop);
    scene->Clear("W");
    const ombrel::FillTarget target = scene->Target();
    const double start = ombrel::ProcessorSeconds();
    for (ombrel::ScreenPolygon& polygon : scene->polygons) {
        filler(&polygon, target);
    }
    return ombrel::ProcessorSeconds() - start;
}

// --- Allegro 4 -----------------------------------------------------------------------------------

struct AllegroPeer {
    BITMAP* frame;
    BITMAP* texture;
    ZBUFFER* depth;
};

AllegroPeer MakeAllegroPeer(const FillScene& scene) {
    install_allegro(SYSTEM_NONE, &errno, nullptr);
    set_color_depth(16);
    AllegroPeer peer = {create_bitmap(kWidth, kHeight), create_bitmap(kTexels, kTexels), nullptr};
    peer.depth = create_zbuffer(peer.frame);
    set_zbuffer(peer.depth);
    set_trans_blender(0, 0, 0, 0); // light 0 is black, 255 the texel
    for (int y = 0; y < kTexels; ++y) {
        for (int x = 0; x < kTexels; ++x) {
            putpixel(peer.texture, x, y, scene.texels[static_cast<std::size_t>(y * kTexels + x)]);
        }
    }
    return peer;
}

double DrawAllegro(const AllegroPeer& peer, const FillScene& scene) {
    clear_zbuffer(peer.depth, 0.0F);
    const double start = ombrel::ProcessorSeconds();
    for (const ombrel::ScreenPolygon& polygon : scene.polygons) {
        V3D_f corners[3];
        for (int i = 0; i < 3; ++i) {
            const auto& v = polygon.vertices[i];
            corners[i] = {v.x, v.y, v.z,
                          v.u, v.v, static_cast<int>((polygon.litColors[i] >> 3) & 252)};
        }
        triangle3d_f(peer.frame, POLYTYPE_ATEX_LIT | POLYTYPE_ZBUF, peer.texture, &corners[0],
                     &corners[1], &corners[2]);
    }
    return ombrel::ProcessorSeconds() - start;
}

// --- OSMesa
// ----------------------------------------------------------------------------------------

struct MesaVertex {
    float u, v;
    unsigned char color[4];
    float x, y, z;
};

void SetUpMesa(const FillScene& scene, std::vector<ombrel::Pixel16>* frame) {
    frame->resize(kWidth * kHeight);
    OSMesaContext context = OSMesaCreateContextExt(OSMESA_RGB_565, 24, 0, 0, nullptr);
    if (context == nullptr ||
        !OSMesaMakeCurrent(context, frame->data(), GL_UNSIGNED_SHORT_5_6_5, kWidth, kHeight)) {
        std::fprintf(stderr, "OSMesa gives no context\n");
        std::exit(1);
    }
    glOrtho(0, kWidth, kHeight, 0, -1, 1);
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, kTexels, kTexels, 0, GL_RGB, GL_UNSIGNED_SHORT_5_6_5,
                 scene.texels.data());
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_GREATER);
    glClearDepth(0.0);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
}

double DrawMesa(const FillScene& scene, std::vector<MesaVertex>* list) {
    list->clear();
    for (const ombrel::ScreenPolygon& polygon : scene.polygons) {
        for (int i = 0; i < 3; ++i) {
            const auto& v = polygon.vertices[i];
            const std::uint32_t c = polygon.litColors[i];
            list->push_back({v.u / kTexels,
                             v.v / kTexels,
                             {static_cast<unsigned char>((c >> 8) & 248),
                              static_cast<unsigned char>((c >> 3) & 252),
                              static_cast<unsigned char>((c & 31) * 8), 255},
                             v.x,
                             v.y,
                             1.0F - v.z / 20100.0F}); // nearer is larger, as with the others
        }
    }
    glClear(GL_DEPTH_BUFFER_BIT);
    glFinish();
    glInterleavedArrays(GL_T2F_C4UB_V3F, sizeof(MesaVertex), list->data());
    const double start = ombrel::ProcessorSeconds();
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(list->size()));
    glFinish();
    return ombrel::ProcessorSeconds() - start;
}

// The best of a few draws in a row: each program with its own pictures in the cache.
template <class Draw> double Turn(Draw draw) {
    double best = draw();
    for (int i = 0; i < 4; ++i) {
        best = std::min(best, draw());
    }
    return best;
}

// Whoever draws nothing is fast: the pixels that are no longer black.
std::int64_t CountDrawn(const ombrel::Pixel16* pixels) {
    return kWidth * kHeight - std::count(pixels, pixels + kWidth * kHeight, ombrel::Pixel16{0});
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main() {
    setenv("LP_NUM_THREADS", "0", 1); // before Mesa looks
    const ombrel::VectorPath path = ombrel::ChooseVectorPath(nullptr);
    const ombrel::Filler filler =
        ombrel::RasterPathOf(path).fillers[static_cast<int>(ombrel::FillerId::FillTexGouraudW)];
    AllegroPeer allegro = {};
    std::vector<ombrel::Pixel16> mesaFrame;
    std::vector<MesaVertex> list;
    std::printf("textured x gouraud with depth, %d x %d, one thread, path %s, median of %d turns\n"
                "million pixels a second, and how many times that the fillers draw\n"
                "%-12s %9s %9s %7s %9s %7s\n",
                kWidth, kHeight, NameOf(path), kRounds, "triangles", "fillers", "Allegro 4",
                "times", "OSMesa", "times");
    for (const std::int32_t pixels : {100, 400, 1000, 4000}) {
        const std::unique_ptr<FillScene> scene(ombrel::MakeFillScene(pixels));
        if (allegro.frame == nullptr) {
            allegro = MakeAllegroPeer(*scene);
            SetUpMesa(*scene, &mesaFrame);
            std::fprintf(stderr, "OSMesa draws with %s\n",
                         reinterpret_cast<const char*>(glGetString(GL_RENDERER)));
        }
        std::vector<double> ours, allegros, mesas, overAllegro, overMesa;
        for (int round = 0; round < kRounds; ++round) {
            ours.push_back(Turn([&] { return DrawOurs(scene.get(), filler); }));
            allegros.push_back(Turn([&] { return DrawAllegro(allegro, *scene); }));
            mesas.push_back(Turn([&] { return DrawMesa(*scene, &list); }));
            overAllegro.push_back(allegros.back() / ours.back());
            overMesa.push_back(mesas.back() / ours.back());
        }
        const std::int64_t drawn = CountDrawn(scene->frame.data());
        const auto* allegroPixels = reinterpret_cast<ombrel::Pixel16*>(allegro.frame->line[0]);
        for (const std::int64_t peer : {CountDrawn(allegroPixels), CountDrawn(mesaFrame.data())}) {
            if (peer * 10 < drawn * 9) {
                std::fprintf(stderr, "a peer drew %lld pixels of %lld\n",
                             static_cast<long long>(peer), static_cast<long long>(drawn));
                return 1;
            }
        }
        clear_bitmap(allegro.frame);
        std::fill(mesaFrame.begin(), mesaFrame.end(), ombrel::Pixel16{0});
        const double all = static_cast<double>(scene->pixels) * 1e-6;
        std::printf("%5d pixels %9.0f %9.0f %7.2f %9.0f %7.2f\n", pixels, all / Median(ours),
                    all / Median(allegros), Median(overAllegro), all / Median(mesas),
                    Median(overMesa));
    }
    return 0;
}
END_OF_MAIN()
