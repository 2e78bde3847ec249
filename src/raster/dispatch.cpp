// The dispatcher: walks a face list once and hands each drawable face to the one filler that kind
// of list, material and path choose. Draws nothing itself. Called by the scenes.
#include <algorithm>
#include <cstddef>

#include "base/convert.h"
#include "base/log2_table.h"
#include "base/single.h"
#include "raster/fillers.h"

namespace ombrel {

namespace {

using enum FillerId;

// Row of the tables below, in the order in which the bits of a job are looked at.
enum Kind { NoDepth, DepthKeyed, InvDepth, DepthTested, kKindCount };
constexpr std::uint32_t kKindBits[kKindCount] = {DRAW_NO_DEPTH, DRAW_DEPTH_KEYED, DRAW_INV_DEPTH,
                                                 DRAW_DEPTH};

// Column of the table of textured faces. Far and near are the two halves of the by-distance path.
enum Path { Path1, Path1Alt, Path2, Path3, Far, Near, kPathCount };

// Pair of rows within a kind: set, blended.
enum Class { Unlit, FlatLit, GouraudLit, kClassCount };

// clang-format off
constexpr FillerId kUntextured[kKindCount][2][2] = {
//                   flat        flat, blended        gouraud                  gouraud, blended
/* NoDepth     */ {{ FillFlat,   FillFlatBlend  }, {  FillGouraud,             FillGouraudBlend  }},
/* DepthKeyed  */ {{ FillFlatZ,  FillFlatZBlend }, {  FillGouraudZKeyedKind,   FillGouraudZBlend }},
/* InvDepth    */ {{ FillFlatW,  FillFlatWBlend }, {  FillGouraudW,            FillGouraudWBlend }},
/* DepthTested */ {{ FillFlatZ,  FillFlatZBlend }, {  FillGouraudZ,            FillGouraudZBlend }},
};

// Far, gouraud-lit, not blended in the inverse-depth kind is flat-lit: REQUIRED R1.
constexpr FillerId kTextured[kKindCount][kClassCount][2][kPathCount] = {
//                     path 1                      path 1, alternate           path 2                        path 3                     far                         near
{ // NoDepth
/* unlit          */ {{ FillTex,                    FillTexAlt,                 FillTex,                      FillTex,                   FillTex,                    FillTex                   },
/*       , blended*/  { FillTexBlend,               FillTexBlend,               FillTexBlend,                 FillTexBlend,              FillTexBlend,               FillTexBlend              }},
/* flat           */ {{ FillTexFlat,                FillTexFlat,                FillTexFlat,                  FillTexFlat,               FillTexFlat,                FillTexFlat               },
/*       , blended*/  { FillTexFlatBlend,           FillTexFlatBlend,           FillTexFlatBlend,             FillTexFlatBlend,          FillTexFlatBlend,           FillTexFlatBlend          }},
/* gouraud        */ {{ FillTexGouraud,             FillTexGouraud,             FillTexGouraud,               FillTexGouraud,            FillTexGouraud,             FillTexGouraud            },
/*       , blended*/  { FillTexGouraudBlend,        FillTexGouraudBlend,        FillTexGouraudBlend,          FillTexGouraudBlend,       FillTexGouraudBlend,        FillTexGouraudBlend       }},
}, { // DepthKeyed
/* unlit          */ {{ FillTexZKeyed,              FillTexZAlt,                FillTexZKeyed,                FillTexZKeyed,             FillTexZKeyed,              FillTexZKeyed             },
/*       , blended*/  { FillTexZBlend,              FillTexZBlend,              FillTexZBlend,                FillTexZBlend,             FillTexZBlend,              FillTexZBlend             }},
/* flat           */ {{ FillTexFlatZ,               FillTexFlatZ,               FillTexFlatZ,                 FillTexFlatZ,              FillTexFlatZ,               FillTexFlatZ              },
/*       , blended*/  { FillTexFlatZBlend,          FillTexFlatZBlend,          FillTexFlatZBlend,            FillTexFlatZBlend,         FillTexFlatZBlend,          FillTexFlatZBlend         }},
/* gouraud        */ {{ FillTexGouraudZ,            FillTexGouraudZ,            FillTexGouraudZ,              FillTexGouraudZ,           FillTexGouraudZ,            FillTexGouraudZ           },
/*       , blended*/  { FillTexGouraudZBlend,       FillTexGouraudZBlend,       FillTexGouraudZBlend,         FillTexGouraudZBlend,      FillTexGouraudZBlend,       FillTexGouraudZBlend      }},
}, { // InvDepth
/* unlit          */ {{ FillTexWAffine,             FillTexWAlt,                FillTexWPerPixel,             FillTexWSpan,              FillTexWAffine,             FillTexWSpan              },
/*       , blended*/  { FillTexWAffineBlend,        FillTexWAffineBlend,        FillTexWPerPixelBlend,        FillTexWSpanBlend,         FillTexWAffineBlend,        FillTexWSpanBlend         }},
/* flat           */ {{ FillTexFlatWAffine,         FillTexFlatWAffine,         FillTexFlatWPerPixel,         FillTexFlatWSpan,          FillTexFlatWAffine,         FillTexFlatWSpan          },
/*       , blended*/  { FillTexFlatWAffineBlend,    FillTexFlatWAffineBlend,    FillTexFlatWPerPixelBlend,    FillTexFlatWSpanBlend,     FillTexFlatWAffineBlend,    FillTexFlatWSpanBlend     }},
/* gouraud        */ {{ FillTexGouraudW,            FillTexGouraudW,            FillTexGouraudW,              FillTexGouraudW,           FillTexFlatWAffine,         FillTexGouraudW           },
/*       , blended*/  { FillTexGouraudWBlend,       FillTexGouraudWBlend,       FillTexGouraudWBlend,         FillTexGouraudWBlend,      FillTexGouraudWBlend,       FillTexGouraudWBlend      }},
}, { // DepthTested
/* unlit          */ {{ FillTexKeyedZWrite,         FillTexZAlt,                FillTexZ,                     FillTexZ,                  FillTexZ,                   FillTexZ                  },
/*       , blended*/  { FillTexZBlend,              FillTexZBlend,              FillTexZBlend,                FillTexZBlend,             FillTexZBlend,              FillTexZBlend             }},
/* flat           */ {{ FillTexFlatKeyedZWrite,     FillTexFlatKeyedZWrite,     FillTexFlatZ,                 FillTexFlatZ,              FillTexFlatZ,               FillTexFlatZ              },
/*       , blended*/  { FillTexFlatZBlend,          FillTexFlatZBlend,          FillTexFlatZBlend,            FillTexFlatZBlend,         FillTexFlatZBlend,          FillTexFlatZBlend         }},
/* gouraud        */ {{ FillTexGouraudZ,            FillTexGouraudZ,            FillTexGouraudZ,              FillTexGouraudZ,           FillTexGouraudZ,            FillTexGouraudZ           },
/*       , blended*/  { FillTexGouraudZBlend,       FillTexGouraudZBlend,       FillTexGouraudZBlend,         FillTexGouraudZBlend,      FillTexGouraudZBlend,       FillTexGouraudZBlend      }},
} };
// clang-format on

// The first set bit in the order of the table; kKindCount when there is none.
Kind KindOf(std::uint32_t flags) {
    int kind = 0;
    while (kind < kKindCount && (flags & kKindBits[kind]) == 0) {
        ++kind;
    }
    return static_cast<Kind>(kind);
}

// The first set path bit; kPathCount when there is none.
Path PathOf(const DrawJob& job, Single firstDepth) {
    if ((job.flags & DRAW_PATH_1) != 0) {
        return (job.flags & DRAW_PATH_1_ALT) != 0 ? Path1Alt : Path1;
    }
    if ((job.flags & DRAW_PATH_2) != 0) {
        return Path2;
    }
    if ((job.flags & DRAW_PATH_3) != 0) {
        return Path3;
    }
    if ((job.flags & DRAW_PATH_BY_DISTANCE) != 0) {
        return static_cast<Single>(job.lodDistance) < firstDepth ? Far : Near;
    }
    return kPathCount;
}

// Sets the texture of the polygon and scales its u and v to the mip level. A smaller level is taken
// the nearer the depth of the first vertex comes to mipDistance. False when there are no texels.
bool ChooseTexture(const DrawJob& job, const RenderFace& face, ScreenPolygon* polygon) {
    Texture* texture = face.texture.single;
    if (texture != nullptr && (face.flags & MAT_MIPMAPPED) != 0) {
        texture = face.texture.chain[0];
        if (texture != nullptr && (job.flags & DRAW_MIPMAP) != 0) {
            const std::int32_t levels = Log2Table[static_cast<std::size_t>(
                std::clamp(texture->width, 0, kLog2TableSize - 1))];
            const Single exact = static_cast<Single>(levels) * polygon->vertices[0].z /
                                 static_cast<Single>(job.mipDistance);
            const std::int32_t level = std::clamp(ToIntChop(exact), 0, levels);
            texture = face.texture.chain[level];
            for (Vertex& vertex : polygon->vertices) {
                for (std::int32_t i = 0; i < level; ++i) {
                    vertex.u *= 0.5F;
                    vertex.v *= 0.5F;
                }
            }
        }
    }
    polygon->texture.single = texture;
    return texture != nullptr && texture->pixels != nullptr;
}

// Copies what the class reads; the rest of the polygon keeps what the face before left there.
void CopyFace(const RenderFace& face, Class light, ScreenPolygon* polygon) {
    const bool textured = (face.flags & MAT_TEXTURED) != 0;
    std::copy_n(face.litColors, light == Unlit ? 0 : light == FlatLit ? 1 : 3, polygon->litColors);
    for (int i = 0; i < 3; ++i) {
        Vertex& to = polygon->vertices[i];
        const FaceCorner& from = face.work[i];
        to.x = from.x;
        to.y = from.y;
        to.z = from.z;
        if (textured) {
            to.u = from.u;
            to.v = from.v;
        }
    }
}

void DrawFace(const DrawJob& job, Kind kind, const RenderFace& face, ScreenPolygon* polygon) {
    // Class the face. Without a texture there is no unlit one, and gouraud must be asked for.
    const bool textured = (face.flags & MAT_TEXTURED) != 0;
    const Class light = (face.flags & MAT_UNLIT) != 0  ? (textured ? Unlit : FlatLit)
                        : (face.flags & MAT_FLAT) != 0 ? FlatLit
                                                       : GouraudLit;
    if (!textured && light == GouraudLit && (face.flags & MAT_GOURAUD) == 0) {
        return;
    }
    CopyFace(face, light, polygon);

    // The job's level comes before the face's own; no more than the blend tables have.
    const std::uint32_t level =
        std::min(job.level >= 0 ? static_cast<std::uint32_t>(job.level) : face.color >> 24,
                 std::uint32_t{7});
    const bool blended =
        (job.flags & DRAW_BLEND) != 0 && ((face.flags & MAT_TRANSLUCENT) != 0 || job.level >= 0);

    FillerId id = kUntextured[kind][light == GouraudLit][blended];
    if (textured) {
        const Path path = PathOf(job, face.work[0].z);
        if (!ChooseTexture(job, face, polygon) || path == kPathCount) {
            return;
        }
        id = kTextured[kind][light][blended][path];
    }
    activeFillers[static_cast<int>(id)](
        polygon, {job.frame, job.framePitch, job.depth, job.depthPitch, level, job.clip});
}

// Asks for the memory of a face that is drawn soon.
constexpr std::int32_t kFacesAhead = 3;
void Fetch(const RenderFace* face) {
    __builtin_prefetch(&face->state);
    __builtin_prefetch(&face->work[2].v);
}

} // namespace

void DrawFaces(const DrawJob* job) {
    const Kind kind = KindOf(job->flags);
    if (kind == kKindCount) {
        return;
    }
    ScreenPolygon polygon{};
    for (std::int32_t i = 0; i < job->faces->count; ++i) {
        Fetch(job->faces->pointers[std::min(i + kFacesAhead, job->faces->count - 1)]);
        const RenderFace& face = *job->faces->pointers[i];
        if (IsDrawable(face.state)) {
            DrawFace(*job, kind, face, &polygon);
        }
    }
}

} // namespace ombrel
