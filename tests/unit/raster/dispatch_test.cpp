// The dispatcher: which faces it draws, in what order, with which filler, texture, mip level and
// blend level. All fillers are replaced by recorders, and every call is held to a table typed by
// hand.
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <utility>

#include "base/convert.h"
#include "raster/draw_job.h"
#include "support/filler_recorder.h"
#include "support/raster_bench.h"

namespace ombrel::test {
namespace {

// --- the table -----------------------------------------------------------------------------------

enum Kind { kNoDepth, kDepthKeyed, kDepth, kInvDepth, kNoKind };

// clang-format off
// Untextured faces. Rows: kind. Columns: flat, flat blended, gouraud, gouraud blended.
constexpr const char* kUntextured[4][4] = {
    {"FillFlat",  "FillFlatBlend",  "FillGouraud",           "FillGouraudBlend"},
    {"FillFlatZ", "FillFlatZBlend", "FillGouraudZKeyedKind", "FillGouraudZBlend"},
    {"FillFlatZ", "FillFlatZBlend", "FillGouraudZ",          "FillGouraudZBlend"},
    {"FillFlatW", "FillFlatWBlend", "FillGouraudW",          "FillGouraudWBlend"},
};

// Textured faces. Columns: path 1, path 1 with the alternate bit, path 2, path 3, by distance: far,
// near. Rows: unlit, unlit blended, flat-lit, flat-lit blended, gouraud-lit, gouraud-lit blended.
constexpr const char* kTextured[4][6][6] = {
    { // no depth
        {"FillTex",                 "FillTexAlt",              "FillTex",                   "FillTex",                 "FillTex",                 "FillTex"},
        {"FillTexBlend",            "FillTexBlend",            "FillTexBlend",              "FillTexBlend",            "FillTexBlend",            "FillTexBlend"},
        {"FillTexFlat",             "FillTexFlat",             "FillTexFlat",               "FillTexFlat",             "FillTexFlat",             "FillTexFlat"},
        {"FillTexFlatBlend",        "FillTexFlatBlend",        "FillTexFlatBlend",          "FillTexFlatBlend",        "FillTexFlatBlend",        "FillTexFlatBlend"},
        {"FillTexGouraud",          "FillTexGouraud",          "FillTexGouraud",            "FillTexGouraud",          "FillTexGouraud",          "FillTexGouraud"},
        {"FillTexGouraudBlend",     "FillTexGouraudBlend",     "FillTexGouraudBlend",       "FillTexGouraudBlend",     "FillTexGouraudBlend",     "FillTexGouraudBlend"},
    },
    { // depth, keyed
        {"FillTexZKeyed",           "FillTexZAlt",             "FillTexZKeyed",             "FillTexZKeyed",           "FillTexZKeyed",           "FillTexZKeyed"},
        {"FillTexZBlend",           "FillTexZBlend",           "FillTexZBlend",             "FillTexZBlend",           "FillTexZBlend",           "FillTexZBlend"},
        {"FillTexFlatZ",            "FillTexFlatZ",            "FillTexFlatZ",              "FillTexFlatZ",            "FillTexFlatZ",            "FillTexFlatZ"},
        {"FillTexFlatZBlend",       "FillTexFlatZBlend",       "FillTexFlatZBlend",         "FillTexFlatZBlend",       "FillTexFlatZBlend",       "FillTexFlatZBlend"},
        {"FillTexGouraudZ",         "FillTexGouraudZ",         "FillTexGouraudZ",           "FillTexGouraudZ",         "FillTexGouraudZ",         "FillTexGouraudZ"},
        {"FillTexGouraudZBlend",    "FillTexGouraudZBlend",    "FillTexGouraudZBlend",      "FillTexGouraudZBlend",    "FillTexGouraudZBlend",    "FillTexGouraudZBlend"},
    },
    { // depth
        {"FillTexKeyedZWrite",      "FillTexZAlt",             "FillTexZ",                  "FillTexZ",                "FillTexZ",                "FillTexZ"},
        {"FillTexZBlend",           "FillTexZBlend",           "FillTexZBlend",             "FillTexZBlend",           "FillTexZBlend",           "FillTexZBlend"},
        {"FillTexFlatKeyedZWrite",  "FillTexFlatKeyedZWrite",  "FillTexFlatZ",              "FillTexFlatZ",            "FillTexFlatZ",            "FillTexFlatZ"},
        {"FillTexFlatZBlend",       "FillTexFlatZBlend",       "FillTexFlatZBlend",         "FillTexFlatZBlend",       "FillTexFlatZBlend",       "FillTexFlatZBlend"},
        {"FillTexGouraudZ",         "FillTexGouraudZ",         "FillTexGouraudZ",           "FillTexGouraudZ",         "FillTexGouraudZ",         "FillTexGouraudZ"},
        {"FillTexGouraudZBlend",    "FillTexGouraudZBlend",    "FillTexGouraudZBlend",      "FillTexGouraudZBlend",    "FillTexGouraudZBlend",    "FillTexGouraudZBlend"},
    },
    { // inverse depth
        {"FillTexWAffine",          "FillTexWAlt",             "FillTexWPerPixel",          "FillTexWSpan",            "FillTexWAffine",          "FillTexWSpan"},
        {"FillTexWAffineBlend",     "FillTexWAffineBlend",     "FillTexWPerPixelBlend",     "FillTexWSpanBlend",       "FillTexWAffineBlend",     "FillTexWSpanBlend"},
        {"FillTexFlatWAffine",      "FillTexFlatWAffine",      "FillTexFlatWPerPixel",      "FillTexFlatWSpan",        "FillTexFlatWAffine",      "FillTexFlatWSpan"},
        {"FillTexFlatWAffineBlend", "FillTexFlatWAffineBlend", "FillTexFlatWPerPixelBlend", "FillTexFlatWSpanBlend",   "FillTexFlatWAffineBlend", "FillTexFlatWSpanBlend"},
        {"FillTexGouraudW",         "FillTexGouraudW",         "FillTexGouraudW",           "FillTexGouraudW",         "FillTexFlatWAffine",      "FillTexGouraudW"},
        {"FillTexGouraudWBlend",    "FillTexGouraudWBlend",    "FillTexGouraudWBlend",      "FillTexGouraudWBlend",    "FillTexGouraudWBlend",    "FillTexGouraudWBlend"},
    },
};
// clang-format on

Kind KindOf(std::uint32_t flags) {
    return (flags & DRAW_NO_DEPTH) != 0      ? kNoDepth
           : (flags & DRAW_DEPTH_KEYED) != 0 ? kDepthKeyed
           : (flags & DRAW_INV_DEPTH) != 0   ? kInvDepth
           : (flags & DRAW_DEPTH) != 0       ? kDepth
                                             : kNoKind;
}

// The column of kTextured; -1 without a path.
int PathColumn(std::uint32_t flags, float z0, std::int32_t lodDistance) {
    if ((flags & DRAW_PATH_1) != 0) {
        return (flags & DRAW_PATH_1_ALT) != 0 ? 1 : 0;
    }
    if ((flags & DRAW_PATH_2) != 0) {
        return 2;
    }
    if ((flags & DRAW_PATH_3) != 0) {
        return 3;
    }
    if ((flags & DRAW_PATH_BY_DISTANCE) != 0) {
        return static_cast<float>(lodDistance) < z0 ? 4 : 5; // a depth that is no number is near
    }
    return -1;
}

bool IsBlended(const DrawJob& job, const RenderFace& face) {
    return (job.flags & DRAW_BLEND) != 0 && ((face.flags & MAT_TRANSLUCENT) != 0 || job.level >= 0);
}

// The filler that the table names; null: nothing is drawn.
const char* ExpectedFiller(const DrawJob& job, const RenderFace& face) {
    const Kind kind = KindOf(job.flags);
    if (kind == kNoKind || (face.state & 0x7) != FACE_LIVE) {
        return nullptr;
    }
    const int blended = IsBlended(job, face) ? 1 : 0;
    const bool unlit = (face.flags & MAT_UNLIT) != 0;
    const bool flat = (face.flags & MAT_FLAT) != 0;
    if ((face.flags & MAT_TEXTURED) != 0) {
        const int column = PathColumn(job.flags, face.work[0].z, job.lodDistance);
        const int lightClass = unlit ? 0 : (flat ? 1 : 2);
        return column < 0 ? nullptr : kTextured[kind][lightClass * 2 + blended][column];
    }
    if (unlit || flat) {
        return kUntextured[kind][blended];
    }
    return (face.flags & MAT_GOURAUD) != 0 ? kUntextured[kind][2 + blended] : nullptr;
}

std::uint32_t ExpectedLevel(const DrawJob& job, const RenderFace& face) {
    const std::uint32_t level =
        job.level >= 0 ? static_cast<std::uint32_t>(job.level) : face.color >> 24;
    return level > 7 ? 7 : level;
}

// The mip level for a chain of width 256.
std::int32_t ExpectedMip(const DrawJob& job, const RenderFace& face) {
    if ((face.flags & MAT_MIPMAPPED) == 0 || (job.flags & DRAW_MIPMAP) == 0 ||
        job.mipDistance <= 0) {
        return 0;
    }
    const std::int32_t level =
        ToIntChop(8.0F * face.work[0].z / static_cast<float>(job.mipDistance));
    return level < 0 ? 0 : (level > 8 ? 8 : level);
}

// --- the bench -----------------------------------------------------------------------------------

constexpr int kChainLength = 9; // width 256: 256, 128 .. 1

class Dispatch : public RasterBench {
protected:
    void SetUp() override {
        RasterBench::SetUp();
        RecordFillers();
        for (std::int32_t i = 0; i < kMaxRenderFaces; ++i) {
            list_->pointers[i] = &list_->records[i];
        }
        single_ = MakeTexture(32);
        for (int i = 0; i < kChainLength; ++i) {
            levels_[i] = MakeTexture(256 >> i);
            chain_[i] = &levels_[i];
        }
        job_ = {0, list_.get(), frame_, 1234, depth_, 2468, -1, 100, 100, {1, 2, 30, 40}};
    }
    void TearDown() override { ResetFillers(); }

    Texture MakeTexture(std::int32_t width) {
        return {1, TEX_FILLED, 0, 0, width, width, width * width * 2, 16, texels_.data()};
    }

    // A live face whose fields all differ from those of the other faces.
    RenderFace* AddFace(std::uint32_t flags, float z0 = 10.0F) {
        const std::int32_t number = list_->count++;
        RenderFace* face = list_->pointers[number];
        *face = {};
        face->state = FACE_LIVE;
        face->flags = flags;
        // Own levels of 0..7, and now and then one above.
        const std::int32_t own = number % 11 == 0 ? 255 : (number % 13 == 0 ? 8 : number % 8);
        face->color = (static_cast<std::uint32_t>(own) << 24) | 0x00ABCDEFU;
        for (std::uint32_t i = 0; i < 3; ++i) {
            face->litColors[i] = 0x1000 * (i + 1) + static_cast<std::uint32_t>(number);
            const auto shift = static_cast<float>(number * 3) + static_cast<float>(i);
            face->work[i] = {shift, shift + 0.25F, z0 + static_cast<float>(i * 7), shift * 2.0F,
                             shift * 4.0F};
        }
        if ((flags & MAT_MIPMAPPED) != 0) {
            face->texture.chain = chain_;
        } else {
            face->texture.single = (flags & MAT_TEXTURED) != 0 ? &single_ : nullptr;
        }
        return face;
    }

    // What a call was given that its face does not have; empty: nothing.
    std::string WrongCopy(const RenderFace& face, const RecordedCall& call) const {
        const auto same = [](float a, float b) { return std::memcmp(&a, &b, sizeof a) == 0; };
        const bool textured = (face.flags & MAT_TEXTURED) != 0;
        const bool unlit = (face.flags & MAT_UNLIT) != 0;
        const std::int32_t mip = textured ? ExpectedMip(job_, face) : 0;
        const float scale = 1.0F / static_cast<float>(1 << mip);
        for (int i = 0; i < 3; ++i) {
            const FaceCorner& from = face.work[i];
            const Vertex& to = call.polygon.vertices[i];
            if (!same(from.x, to.x) || !same(from.y, to.y) || !same(from.z, to.z)) {
                return "position";
            }
            if (textured && (!same(from.u * scale, to.u) || !same(from.v * scale, to.v))) {
                return "texture coordinates";
            }
        }
        const Texture* texture = (face.flags & MAT_MIPMAPPED) != 0 ? chain_[mip] : &single_;
        if (textured && call.polygon.texture.single != texture) {
            return "texture";
        }
        const int colors = textured && unlit ? 0 : (unlit || (face.flags & MAT_FLAT) != 0 ? 1 : 3);
        for (int i = 0; i < colors; ++i) {
            if ((call.polygon.litColors[i] & 0xFFFF) != (face.litColors[i] & 0xFFFF)) {
                return "colours";
            }
        }
        return "";
    }
    std::string WrongTarget(const RenderFace& face, const RecordedCall& call) const {
        const FillTarget& target = call.target;
        if (target.frame != job_.frame || target.framePitch != job_.framePitch) {
            return "frame";
        }
        if (KindOf(job_.flags) != kNoDepth &&
            (target.depth != job_.depth || target.depthPitch != job_.depthPitch)) {
            return "depth";
        }
        if (std::memcmp(&target.clip, &job_.clip, sizeof job_.clip) != 0) {
            return "clip rectangle";
        }
        return IsBlended(job_, face) && target.level != ExpectedLevel(job_, face) ? "level" : "";
    }

    // Runs the job and holds every call to the table; "" if all are right.
    std::string Check() const {
        ForgetCalls();
        DrawFaces(&job_);
        int call = 0;
        for (std::int32_t i = 0; i < list_->count; ++i) {
            const RenderFace& face = *list_->pointers[i];
            const char* expected = ExpectedFiller(job_, face);
            if (expected == nullptr) {
                continue;
            }
            const std::string which = "flags " + std::to_string(job_.flags) + ", face " +
                                      std::to_string(i) + " with " + std::to_string(face.flags) +
                                      ": ";
            if (call >= recordedCount) {
                return which + expected + " was not called";
            }
            const RecordedCall& done = recordedCalls[call++];
            const std::string actual = kFillerTable[done.number].name;
            if (actual != expected) {
                return which + actual + " instead of " + expected;
            }
            const std::string wrong = WrongTarget(face, done) + WrongCopy(face, done);
            if (!wrong.empty()) {
                return which + actual + " with the wrong " + wrong;
            }
        }
        return call == recordedCount ? ""
                                     : std::to_string(recordedCount - call) + " calls too many";
    }
    // The fillers that a job calls, in order; every call is held to the table.
    std::vector<std::string> Called(std::uint32_t jobFlags) {
        job_.flags = jobFlags;
        EXPECT_EQ(Check(), "");
        std::vector<std::string> names;
        for (int i = 0; i < recordedCount; ++i) {
            names.emplace_back(kFillerTable[recordedCalls[i].number].name);
        }
        return names;
    }
    using Names = std::vector<std::string>;

    std::unique_ptr<FaceList> list_ = std::make_unique<FaceList>();
    std::vector<Pixel16> texels_ = std::vector<Pixel16>(256 * 256); // shared by all textures
    Texture single_;
    Texture levels_[kChainLength];
    Texture* chain_[kChainLength];
    Pixel16 frame_[4];
    std::uint32_t depth_[4];
    DrawJob job_;
};

// --- the decision --------------------------------------------------------------------------------

TEST_F(Dispatch, AllCombinationsCallTheFillerOfTheTable) {
    constexpr std::uint32_t kBits[] = {MAT_TRANSLUCENT, MAT_UNLIT,    MAT_FLAT,
                                       MAT_GOURAUD,     MAT_TEXTURED, MAT_MIPMAPPED};
    for (std::uint32_t bits = 0; bits < 64; ++bits) {
        std::uint32_t flags = 0x1; // a bit that is not read here
        for (std::uint32_t i = 0; i < 6; ++i) {
            flags |= (bits >> i & 1) != 0 ? kBits[i] : 0;
        }
        for (const float z :
             {50.0F, 100.0F, 100.00001F, 150.0F, std::numeric_limits<float>::quiet_NaN()}) {
            AddFace(flags, z);
        }
    }
    ASSERT_EQ(list_->count, 320);
    int jobs = 0;
    for (std::uint32_t bits = 0; bits < 0x1000; ++bits) {
        if ((bits & 0x80) != 0) {
            continue; // no such switch
        }
        for (const std::int32_t level : {-1, -100, 0, 3, 7, 8, 1000}) {
            job_.flags = bits;
            job_.level = level;
            ASSERT_EQ(Check(), "");
            ++jobs;
        }
    }
    EXPECT_EQ(jobs, 2048 * 7);
}

TEST_F(Dispatch, UnknownSwitchesChangeNothing) {
    AddFace(MAT_TEXTURED | MAT_UNLIT);
    EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_PATH_2 | 0x80 | 0xFFFFF000U), Names{"FillTexWPerPixel"});
}

TEST_F(Dispatch, FirstKindWins) {
    AddFace(MAT_FLAT);
    EXPECT_EQ(Called(DRAW_NO_DEPTH | DRAW_DEPTH), Names{"FillFlat"});
    EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_DEPTH), Names{"FillFlatW"});
    EXPECT_EQ(Called(DRAW_DEPTH_KEYED | DRAW_INV_DEPTH), Names{"FillFlatZ"});
}

TEST_F(Dispatch, WithoutKindPathOrMaterialNothingIsDrawn) {
    AddFace(MAT_TEXTURED | MAT_UNLIT);
    AddFace(0);
    EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_PATH_1_ALT), Names{});
    EXPECT_EQ(Called(DRAW_PATH_1 | DRAW_BLEND), Names{});
    list_->count = 0;
    EXPECT_EQ(Called(DRAW_NO_DEPTH | DRAW_PATH_1), Names{});
}

TEST_F(Dispatch, UnlitAndFlatIsUnlitWhenTexturedAndFlatWhenNot) {
    AddFace(MAT_TEXTURED | MAT_UNLIT | MAT_FLAT);
    AddFace(MAT_UNLIT | MAT_FLAT);
    EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_PATH_3), (Names{"FillTexWSpan", "FillFlatW"}));
}

TEST_F(Dispatch, JobLevelBlendsOpaqueFacesWhereBlendingIsAllowed) {
    AddFace(MAT_FLAT);
    job_.level = 3;
    EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_BLEND), Names{"FillFlatWBlend"});
    EXPECT_EQ(recordedCalls[0].target.level, 3U);
    EXPECT_EQ(Called(DRAW_INV_DEPTH), Names{"FillFlatW"});
}

TEST_F(Dispatch, FaceLevelIsTheTopByteOfItsColourAndNeverAboveSeven) {
    RenderFace* face = AddFace(MAT_FLAT | MAT_TRANSLUCENT);
    for (const auto& [color, level] : {std::pair{0x05FFFFFFU, 5U}, {0xFF000000U, 7U}}) {
        face->color = color;
        EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_BLEND), Names{"FillFlatWBlend"});
        EXPECT_EQ(recordedCalls[0].target.level, level);
    }
    job_.level = 0; // the job's comes first
    Called(DRAW_INV_DEPTH | DRAW_BLEND);
    EXPECT_EQ(recordedCalls[0].target.level, 0U);
    job_.level = INT32_MAX;
    Called(DRAW_INV_DEPTH | DRAW_BLEND);
    EXPECT_EQ(recordedCalls[0].target.level, 7U);
}

TEST_F(Dispatch, LodDistanceEqualToTheDepthIsNear) {
    for (const float z : {100.0F, 100.00001F, std::numeric_limits<float>::quiet_NaN()}) {
        AddFace(MAT_TEXTURED | MAT_UNLIT, z);
    }
    EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE | DRAW_PATH_1_ALT),
              (Names{"FillTexWSpan", "FillTexWAffine", "FillTexWSpan"}));
}

TEST_F(Dispatch, R1_FarGouraudFacesAreFlatLitInColourZero) {
    AddFace(MAT_TEXTURED | MAT_GOURAUD, 101.0F);
    AddFace(MAT_TEXTURED | MAT_GOURAUD | MAT_TRANSLUCENT, 101.0F);
    AddFace(MAT_TEXTURED | MAT_GOURAUD, 99.0F);
    EXPECT_EQ(Called(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE | DRAW_BLEND),
              (Names{"FillTexFlatWAffine", "FillTexGouraudWBlend", "FillTexGouraudW"}));
    EXPECT_EQ(recordedCalls[0].polygon.litColors[0], list_->records[0].litColors[0]);
}

TEST_F(Dispatch, JobsOfTheScenesUseTheAffineInverseDepthFillers) {
    constexpr std::uint32_t kSceneJob = DRAW_INV_DEPTH | DRAW_MIPMAP | DRAW_BLEND | DRAW_PATH_1;
    static_assert(kSceneJob == 0x134);
    for (const std::uint32_t translucent : {0U, MAT_TRANSLUCENT}) {
        for (const std::uint32_t flags : {MAT_TEXTURED | MAT_UNLIT, MAT_TEXTURED | MAT_FLAT,
                                          MAT_TEXTURED | MAT_GOURAUD, MAT_FLAT, MAT_GOURAUD}) {
            AddFace(flags | translucent);
        }
    }
    EXPECT_EQ(Called(kSceneJob),
              (Names{"FillTexWAffine", "FillTexFlatWAffine", "FillTexGouraudW", "FillFlatW",
                     "FillGouraudW", "FillTexWAffineBlend", "FillTexFlatWAffineBlend",
                     "FillTexGouraudWBlend", "FillFlatWBlend", "FillGouraudWBlend"}));
}

// --- the walk ------------------------------------------------------------------------------------

TEST_F(Dispatch, OnlyLiveFacesThatWereNotRejectedAreDrawn) {
    for (std::uint32_t state = 0; state < 32; ++state) {
        AddFace(MAT_FLAT)->state = state;
    }
    EXPECT_EQ(Called(DRAW_NO_DEPTH).size(), 4U); // FACE_LIVE, with bits 8 and 16
}

TEST_F(Dispatch, FacesAreDrawnInTheOrderOfThePointers) {
    for (int i = 0; i < 5; ++i) {
        AddFace(MAT_FLAT);
    }
    std::swap(list_->pointers[0], list_->pointers[3]);
    std::swap(list_->pointers[1], list_->pointers[4]);
    EXPECT_EQ(Called(DRAW_DEPTH).size(), 5U);
    EXPECT_EQ(recordedCalls[0].polygon.vertices[0].x, list_->records[3].work[0].x);
}

// Only what the class of a face needs is copied, to one polygon for the whole list; the rest is
// what the face before left.
TEST_F(Dispatch, FieldsThatAClassDoesNotNeedKeepTheirLastValue) {
    AddFace(MAT_TEXTURED, 10.0F);                        // gouraud-lit: everything
    AddFace(MAT_TEXTURED | MAT_FLAT, 20.0F);             // flat-lit: all but colours 1 and 2
    AddFace(MAT_TEXTURED | MAT_UNLIT | MAT_FLAT, 30.0F); // unlit: no colour
    AddFace(MAT_GOURAUD, 40.0F);                         // gouraud: no texture, no u, v
    AddFace(MAT_FLAT, 50.0F);                            // flat: colour 0 only
    ASSERT_EQ(Called(DRAW_INV_DEPTH | DRAW_PATH_1).size(), 5U);
    const RenderFace* faces = list_->records;
    struct {
        int color0, color1, color2, texel; // whose values are there at each call
    } const expected[] = {{0, 0, 0, 0}, {1, 0, 0, 1}, {1, 0, 0, 2}, {3, 3, 3, 2}, {4, 3, 3, 2}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(recordedCalls[i].address, recordedCalls[0].address);
        const ScreenPolygon& polygon = recordedCalls[i].polygon;
        const auto& from = expected[i];
        EXPECT_EQ(polygon.litColors[0] & 0xFFFF, faces[from.color0].litColors[0] & 0xFFFF) << i;
        EXPECT_EQ(polygon.litColors[1] & 0xFFFF, faces[from.color1].litColors[1] & 0xFFFF) << i;
        EXPECT_EQ(polygon.litColors[2] & 0xFFFF, faces[from.color2].litColors[2] & 0xFFFF) << i;
        EXPECT_EQ(polygon.texture.single, &single_) << i;
        for (int k = 0; k < 3; ++k) {
            EXPECT_EQ(polygon.vertices[k].u, faces[from.texel].work[k].u) << i;
            EXPECT_EQ(polygon.vertices[k].v, faces[from.texel].work[k].v) << i;
            EXPECT_EQ(polygon.vertices[k].z, faces[i].work[k].z) << i;
        }
    }
}

TEST_F(Dispatch, FacesThemselvesAreNotChanged) {
    AddFace(MAT_TEXTURED | MAT_MIPMAPPED | MAT_FLAT, 50.0F);
    const RenderFace before = list_->records[0];
    Called(DRAW_INV_DEPTH | DRAW_PATH_1 | DRAW_MIPMAP);
    EXPECT_EQ(std::memcmp(&before, &list_->records[0], sizeof before), 0);
    // Nor by the fillers themselves, which round what they are given.
    ResetFillers();
    Picture picture(64, 48, FillerId::FillFlatW);
    const std::int32_t row = 64 + Picture::kPadding;
    job_ = {DRAW_INV_DEPTH,
            list_.get(),
            picture.frame.data(),
            row * 2,
            picture.depth.data(),
            row * 4,
            -1,
            100,
            100,
            {0, 0, 64, 48}};
    list_->count = 0;
    RenderFace* face = AddFace(MAT_FLAT);
    face->litColors[0] = 0xF800;
    face->work[0] = {4.2F, 4.2F, 9, 0, 0};
    face->work[1] = {12.2F, 4.2F, 9, 0, 0};
    face->work[2] = {4.2F, 12.2F, 9, 0, 0};
    DrawFaces(&job_);
    EXPECT_EQ(picture.At(4, 4), 0xF800);
    EXPECT_EQ(picture.CountDrawn(), 36);
    EXPECT_EQ(face->work[0].x, 4.2F);
}

// The count is read again after every face: a filler may shorten or lengthen the list.
FaceList* changed = nullptr;
int changedCalls = 0;
template <int change> void ChangeCount(ScreenPolygon*, const FillTarget&) {
    changed->count += changedCalls++ == 0 ? change : 0;
}

TEST_F(Dispatch, CountIsReadAgainAfterEveryFace) {
    for (int i = 0; i < 6; ++i) {
        AddFace(MAT_FLAT);
    }
    changed = list_.get();
    job_.flags = DRAW_NO_DEPTH;
    for (const auto& [filler, calls] :
         {std::pair<Filler, int>{ChangeCount<-4>, 2}, {ChangeCount<3>, 5}}) {
        changedCalls = 0;
        activeFillers[static_cast<int>(FillerId::FillFlat)] = filler;
        DrawFaces(&job_);
        EXPECT_EQ(changedCalls, calls);
    }
}

// --- mip levels ----------------------------------------------------------------------------------

class MipLevels : public Dispatch {
protected:
    void SetUp() override {
        Dispatch::SetUp();
        AddFace(MAT_TEXTURED | MAT_UNLIT | MAT_MIPMAPPED);
        list_->records[0].work[1].z = 1.0F; // the others do not count
        list_->records[0].work[2].z = 9999.0F;
    }
    // The level drawn with at a depth of the first corner; -1 when nothing was drawn.
    std::int32_t LevelAt(float z, std::uint32_t jobFlags = DRAW_MIPMAP) {
        RenderFace& face = list_->records[0];
        face.work[0].z = z;
        job_.flags = DRAW_INV_DEPTH | DRAW_PATH_1 | jobFlags;
        ForgetCalls();
        DrawFaces(&job_);
        if (recordedCount == 0) {
            return -1;
        }
        const ScreenPolygon& polygon = recordedCalls[0].polygon;
        const auto level = static_cast<std::int32_t>(polygon.texture.single - levels_);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(polygon.vertices[i].u, face.work[i].u / static_cast<float>(1 << level));
            EXPECT_EQ(polygon.vertices[i].v, face.work[i].v / static_cast<float>(1 << level));
        }
        return level;
    }
};

TEST_F(MipLevels, GrowWithTheDepthOfTheFirstCorner) {
    EXPECT_EQ(LevelAt(0.0F), 0);
    EXPECT_EQ(LevelAt(12.4F), 0); // 0.992 is cut
    EXPECT_EQ(LevelAt(12.5F), 1);
    EXPECT_EQ(LevelAt(50.0F), 4); // 8 * 50 / 100
    EXPECT_EQ(LevelAt(99.9F), 7);
    EXPECT_EQ(LevelAt(100.0F), 8);
    EXPECT_EQ(LevelAt(1000.0F), 8);    // 80, limited
    EXPECT_EQ(LevelAt(1000.0F, 0), 0); // not asked for
}

TEST_F(MipLevels, OutOfRangeAreLimited) {
    EXPECT_EQ(LevelAt(-1000.0F), 0);
    EXPECT_EQ(LevelAt(std::numeric_limits<float>::quiet_NaN()), 0);
    job_.mipDistance = 1;
    EXPECT_EQ(LevelAt(3.0e9F), 0); // no integer: the least one
    job_.mipDistance = 0;
    EXPECT_EQ(LevelAt(50.0F), 0);
    EXPECT_EQ(LevelAt(0.0F), 0);
    job_.mipDistance = -100;
    EXPECT_EQ(LevelAt(50.0F), 0);
    EXPECT_EQ(LevelAt(-1000.0F), 8);
}

TEST_F(MipLevels, WithoutTexelsDrawNothing) {
    levels_[4].pixels = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    chain_[4] = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    chain_[0] = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    list_->records[0].texture.chain = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    list_->records[0].flags = MAT_TEXTURED | MAT_UNLIT;
    EXPECT_EQ(LevelAt(50.0F), -1);
}

} // namespace
} // namespace ombrel::test
