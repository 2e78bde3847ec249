// Which filler is called for which face: every combination of list kind, material, blending, path,
// level and distance against tables typed a second time.
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "base/convert.h"
#include "base/float_mode.h"
#include "raster/draw_job.h"
#include "support/filler_recorder.h"

namespace ombrel {
namespace {

// --- the tables --------------------------------------------------------------------------------

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
    if ((flags & 0x1) != 0) {
        return kNoDepth;
    }
    if ((flags & 0x2) != 0) {
        return kDepthKeyed;
    }
    if ((flags & 0x4) != 0) {
        return kInvDepth;
    }
    return (flags & 0x8) != 0 ? kDepth : kNoKind;
}

// The column of kTextured; -1 without a path.
int PathColumn(std::uint32_t flags, float z0, std::int32_t lodDistance) {
    if ((flags & 0x100) != 0) {
        return (flags & 0x40) != 0 ? 1 : 0;
    }
    if ((flags & 0x200) != 0) {
        return 2;
    }
    if ((flags & 0x400) != 0) {
        return 3;
    }
    if ((flags & 0x800) != 0) {
        return static_cast<float>(lodDistance) < z0 ? 4 : 5; // a depth that is no number is near
    }
    return -1;
}

bool Blended(const DrawJob& job, const RenderFace& face) {
    return (job.flags & 0x20) != 0 && ((face.flags & 0x2) != 0 || job.level >= 0);
}

// The filler that the tables name; null: nothing is drawn.
const char* ExpectedFiller(const DrawJob& job, const RenderFace& face) {
    const Kind kind = KindOf(job.flags);
    if (kind == kNoKind || (face.state & 0x7) != 0x1) {
        return nullptr;
    }
    const int blended = Blended(job, face) ? 1 : 0;
    const bool unlit = (face.flags & 0x20) != 0;
    const bool flat = (face.flags & 0x40) != 0;
    const bool gouraud = (face.flags & 0x80) != 0;
    if ((face.flags & 0x200) != 0) {
        const int column = PathColumn(job.flags, face.work[0].z, job.lodDistance);
        const int lightClass = unlit ? 0 : (flat ? 1 : 2);
        return column < 0 ? nullptr : kTextured[kind][lightClass * 2 + blended][column];
    }
    if (unlit || flat) {
        return kUntextured[kind][blended];
    }
    return gouraud ? kUntextured[kind][2 + blended] : nullptr;
}

std::uint32_t ExpectedLevel(const DrawJob& job, const RenderFace& face) {
    const std::uint32_t level =
        job.level >= 0 ? static_cast<std::uint32_t>(job.level) : face.color >> 24;
    return level > 7 ? 7 : level;
}

// --- the scenery -------------------------------------------------------------------------------

constexpr int kChainLength = 9; // width 256: 256, 128 .. 1

struct Scenery {
    std::unique_ptr<FaceList> list;
    Texture single;
    Texture levels[kChainLength];
    Texture* chain[kChainLength];
    Pixel16 texels[256 * 256]; // shared by all textures
    Pixel16 frame[4];
    std::uint32_t depth[4];
    DrawJob job;
};

Texture MakeTexture(Scenery* scenery, std::int32_t width) {
    return {1, TEX_FILLED, 0, 0, width, width, width * width * 2, 16, scenery->texels};
}

std::unique_ptr<Scenery> MakeScenery() {
    auto scenery = std::make_unique<Scenery>();
    scenery->list = std::make_unique<FaceList>();
    for (std::int32_t i = 0; i < kMaxRenderFaces; ++i) {
        scenery->list->pointers[i] = &scenery->list->records[i];
    }
    scenery->single = MakeTexture(scenery.get(), 32);
    for (int i = 0; i < kChainLength; ++i) {
        scenery->levels[i] = MakeTexture(scenery.get(), 256 >> i);
        scenery->chain[i] = &scenery->levels[i];
    }
    scenery->job = {0,   scenery->list.get(), scenery->frame, 1234, scenery->depth, 2468, -1, 100,
                    100, {1, 2, 30, 40}};
    return scenery;
}

RenderFace* AddFace(Scenery* scenery, std::uint32_t flags, float z0) {
    FaceList* list = scenery->list.get();
    const std::int32_t number = list->count;
    RenderFace* face = list->pointers[number];
    *face = {};
    face->state = 0x1;
    face->flags = flags;
    // Own levels of 0..7, and now and then one above.
    const std::int32_t own = number % 11 == 0 ? 255 : (number % 13 == 0 ? 8 : number % 8);
    face->color = (static_cast<std::uint32_t>(own) << 24) | 0x00ABCDEFU;
    for (std::uint32_t i = 0; i < 3; ++i) {
        face->litColors[i] = 0x1000 * (i + 1) + static_cast<std::uint32_t>(number);
        FaceCorner& vertex = face->work[i];
        const auto shift = static_cast<float>(number * 3) + static_cast<float>(i);
        vertex = {shift, shift + 0.25F, z0 + static_cast<float>(i * 7), shift * 2.0F, shift * 4.0F};
    }
    if ((flags & 0x400) != 0) {
        face->texture.chain = scenery->chain;
    } else {
        face->texture.single = (flags & 0x200) != 0 ? &scenery->single : nullptr;
    }
    ++list->count;
    return face;
}

// The mip level for a chain of width 256.
std::int32_t ExpectedMip(const DrawJob& job, const RenderFace& face) {
    if ((face.flags & 0x400) == 0 || (job.flags & 0x10) == 0 || job.mipDistance <= 0) {
        return 0;
    }
    const std::int32_t level =
        ToIntChop(8.0F * face.work[0].z / static_cast<float>(job.mipDistance));
    return level < 0 ? 0 : (level > 8 ? 8 : level);
}

bool SameBits(float a, float b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// What the class of the face needs has been copied.
std::string WrongCopy(const Scenery& scenery, const RenderFace& face, const RecordedCall& call) {
    const DrawJob& job = scenery.job;
    const bool textured = (face.flags & 0x200) != 0;
    const bool unlit = (face.flags & 0x20) != 0;
    const bool flat = (face.flags & 0x40) != 0;
    const std::int32_t mip = textured ? ExpectedMip(job, face) : 0;
    const float scale = 1.0F / static_cast<float>(1 << mip);
    for (int i = 0; i < 3; ++i) {
        const FaceCorner& from = face.work[i];
        const Vertex& to = call.polygon.vertices[i];
        if (!SameBits(from.x, to.x) || !SameBits(from.y, to.y) || !SameBits(from.z, to.z)) {
            return "position";
        }
        if (textured && (!SameBits(from.u * scale, to.u) || !SameBits(from.v * scale, to.v))) {
            return "texture coordinates";
        }
    }
    if (textured) {
        const Texture* texture = (face.flags & 0x400) != 0 ? scenery.chain[mip] : &scenery.single;
        if (call.polygon.texture.single != texture) {
            return "texture";
        }
    }
    const int colors = textured && unlit ? 0 : (unlit || flat ? 1 : 3);
    for (int i = 0; i < colors; ++i) {
        if ((call.polygon.litColors[i] & 0xFFFF) != (face.litColors[i] & 0xFFFF)) {
            return "colours";
        }
    }
    return "";
}

std::string WrongTarget(const DrawJob& job, const RenderFace& face, const RecordedCall& call) {
    if (call.target.frame != job.frame || call.target.framePitch != job.framePitch) {
        return "frame";
    }
    const bool hasDepth = KindOf(job.flags) != kNoDepth;
    if (hasDepth && (call.target.depth != job.depth || call.target.depthPitch != job.depthPitch)) {
        return "depth";
    }
    if (std::memcmp(&call.target.clip, &job.clip, sizeof job.clip) != 0) {
        return "clip rectangle";
    }
    if (Blended(job, face) && call.target.level != ExpectedLevel(job, face)) {
        return "level";
    }
    return "";
}

// Runs the job and holds every call against the tables; "" if all are right.
std::string CheckJob(const Scenery& scenery) {
    const DrawJob& job = scenery.job;
    ForgetCalls();
    DrawFaces(&job);
    int call = 0;
    for (std::int32_t i = 0; i < scenery.list->count; ++i) {
        const RenderFace& face = *scenery.list->pointers[i];
        const char* expected = ExpectedFiller(job, face);
        if (expected == nullptr) {
            continue;
        }
        const std::string which = "flags " + std::to_string(job.flags) + ", face " +
                                  std::to_string(i) + " with " + std::to_string(face.flags) + ": ";
        if (call >= recordedCount) {
            return which + expected + " was not called";
        }
        const RecordedCall& done = recordedCalls[call++];
        const std::string actual = kFillerTable[done.number].name;
        if (actual != expected) {
            return which + actual + " instead of " + expected;
        }
        const std::string wrong = WrongTarget(job, face, done) + WrongCopy(scenery, face, done);
        if (!wrong.empty()) {
            return which + actual + " with the wrong " + wrong;
        }
    }
    return call == recordedCount ? "" : std::to_string(recordedCount - call) + " calls too many";
}

class DecisionTable : public testing::Test {
protected:
    void SetUp() override {
        SetFloatMode(FloatMode::Chop);
        scenery = MakeScenery();
        RecordFillers();
    }
    void TearDown() override {
        ResetFillers();
        SetFloatMode(FloatMode::Nearest);
    }
    std::unique_ptr<Scenery> scenery;
};

constexpr std::uint32_t kMaterialBits[] = {0x2, 0x20, 0x40, 0x80, 0x200, 0x400};

// --- tests -------------------------------------------------------------------------------------

TEST_F(DecisionTable, AllCombinationsCallTheFillerOfTheTable) {
    const float distances[] = {50.0F, 100.0F, 100.00001F, 150.0F,
                               std::numeric_limits<float>::quiet_NaN()};
    for (std::uint32_t bits = 0; bits < 64; ++bits) {
        std::uint32_t flags = 0x1; // a bit that is not read here
        for (std::uint32_t i = 0; i < 6; ++i) {
            flags |= (bits >> i & 1) != 0 ? kMaterialBits[i] : 0;
        }
        for (const float z : distances) {
            AddFace(scenery.get(), flags, z);
        }
    }
    ASSERT_EQ(scenery->list->count, 320);
    int jobs = 0;
    for (std::uint32_t bits = 0; bits < 0x1000; ++bits) {
        if ((bits & 0x80) != 0) {
            continue; // no such switch
        }
        for (const std::int32_t level : {-1, -100, 0, 3, 7, 8, 1000}) {
            scenery->job.flags = bits;
            scenery->job.level = level;
            ASSERT_EQ(CheckJob(*scenery), "");
            ++jobs;
        }
    }
    EXPECT_EQ(jobs, 2048 * 7);
}

TEST_F(DecisionTable, UnknownSwitchesChangeNothing) {
    AddFace(scenery.get(), 0x200 | 0x20, 10.0F);
    scenery->job.flags = 0x4 | 0x200 | 0x80 | 0xFFFFF000U;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_STREQ(kFillerTable[recordedCalls[0].number].name, "FillTexWPerPixel");
}

TEST_F(DecisionTable, OnlyFacesThatAreLiveAndNotRejectedAreDrawn) {
    for (std::uint32_t state = 0; state < 32; ++state) {
        AddFace(scenery.get(), 0x40, 10.0F)->state = state;
    }
    scenery->job.flags = 0x1;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_EQ(recordedCount, 4); // 1, with bits 8 and 16
}

TEST_F(DecisionTable, FacesAreDrawnInTheOrderOfThePointers) {
    for (int i = 0; i < 5; ++i) {
        AddFace(scenery.get(), 0x40, 10.0F);
    }
    std::swap(scenery->list->pointers[0], scenery->list->pointers[3]);
    std::swap(scenery->list->pointers[1], scenery->list->pointers[4]);
    scenery->job.flags = 0x8;
    EXPECT_EQ(CheckJob(*scenery), "");
    ASSERT_EQ(recordedCount, 5);
    EXPECT_EQ(recordedCalls[0].polygon.vertices[0].x, scenery->list->records[3].work[0].x);
}

TEST_F(DecisionTable, ThereIsOnePolygonForTheWholeList) {
    for (int i = 0; i < 3; ++i) {
        AddFace(scenery.get(), 0x200 | 0x40, 10.0F);
    }
    AddFace(scenery.get(), 0x80, 10.0F);
    scenery->job.flags = 0x4 | 0x100;
    EXPECT_EQ(CheckJob(*scenery), "");
    ASSERT_EQ(recordedCount, 4);
    for (int i = 1; i < 4; ++i) {
        EXPECT_EQ(recordedCalls[i].address, recordedCalls[0].address);
    }
}

// Only what the class of a face needs is copied; the rest is what the face before left.
TEST_F(DecisionTable, FieldsThatAClassDoesNotNeedKeepTheirLastValue) {
    AddFace(scenery.get(), 0x200, 10.0F);               // gouraud-lit: everything
    AddFace(scenery.get(), 0x200 | 0x40, 20.0F);        // flat-lit: all but colours 1 and 2
    AddFace(scenery.get(), 0x200 | 0x20 | 0x40, 30.0F); // unlit: no colour
    AddFace(scenery.get(), 0x80, 40.0F);                // gouraud: no texture, no u, v
    AddFace(scenery.get(), 0x40, 50.0F);                // flat: colour 0 only
    const RenderFace* faces = scenery->list->records;
    scenery->job.flags = 0x4 | 0x100;
    EXPECT_EQ(CheckJob(*scenery), "");
    ASSERT_EQ(recordedCount, 5);
    struct {
        int color0, color1, color2, texel; // whose values are there at each call
    } const expected[] = {{0, 0, 0, 0}, {1, 0, 0, 1}, {1, 0, 0, 2}, {3, 3, 3, 2}, {4, 3, 3, 2}};
    for (int i = 0; i < 5; ++i) {
        const ScreenPolygon& polygon = recordedCalls[i].polygon;
        const auto& from = expected[i];
        EXPECT_EQ(polygon.litColors[0] & 0xFFFF, faces[from.color0].litColors[0] & 0xFFFF) << i;
        EXPECT_EQ(polygon.litColors[1] & 0xFFFF, faces[from.color1].litColors[1] & 0xFFFF) << i;
        EXPECT_EQ(polygon.litColors[2] & 0xFFFF, faces[from.color2].litColors[2] & 0xFFFF) << i;
        EXPECT_EQ(polygon.texture.single, &scenery->single) << i;
        for (int k = 0; k < 3; ++k) {
            EXPECT_EQ(polygon.vertices[k].u, faces[from.texel].work[k].u) << i;
            EXPECT_EQ(polygon.vertices[k].v, faces[from.texel].work[k].v) << i;
            EXPECT_EQ(polygon.vertices[k].z, faces[i].work[k].z) << i;
        }
    }
}

TEST_F(DecisionTable, TheFacesThemselvesAreNotChanged) {
    AddFace(scenery.get(), 0x200 | 0x400 | 0x40, 50.0F);
    const RenderFace before = scenery->list->records[0];
    scenery->job.flags = 0x4 | 0x100 | 0x10;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_EQ(std::memcmp(&before, &scenery->list->records[0], sizeof before), 0);
}

// --- edge cases --------------------------------------------------------------------------------

TEST_F(DecisionTable, NoDepthWinsOverDepth) {
    AddFace(scenery.get(), 0x40, 10.0F);
    scenery->job.flags = 0x1 | 0x8;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_STREQ(kFillerTable[recordedCalls[0].number].name, "FillFlat");
}

TEST_F(DecisionTable, UnlitAndFlatIsUnlitWhenTexturedAndFlatWhenNot) {
    AddFace(scenery.get(), 0x200 | 0x20 | 0x40, 10.0F);
    AddFace(scenery.get(), 0x20 | 0x40, 10.0F);
    scenery->job.flags = 0x4 | 0x400;
    EXPECT_EQ(CheckJob(*scenery), "");
    ASSERT_EQ(recordedCount, 2);
    EXPECT_STREQ(kFillerTable[recordedCalls[0].number].name, "FillTexWSpan");
    EXPECT_STREQ(kFillerTable[recordedCalls[1].number].name, "FillFlatW");
}

TEST_F(DecisionTable, AJobLevelBlendsOpaqueFacesOnlyWhereBlendingIsAllowed) {
    AddFace(scenery.get(), 0x40, 10.0F);
    scenery->job.level = 3;
    scenery->job.flags = 0x4 | 0x20;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_STREQ(kFillerTable[recordedCalls[0].number].name, "FillFlatWBlend");
    EXPECT_EQ(recordedCalls[0].target.level, 3U);
    scenery->job.flags = 0x4;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_STREQ(kFillerTable[recordedCalls[0].number].name, "FillFlatW");
}

TEST_F(DecisionTable, MipLevelFollowsTheDepthOfTheFirstVertex) {
    struct {
        float z0;
        std::int32_t mipDistance, level;
    } const rows[] = {
        {50.0F, 100, 4}, {1000.0F, 100, 8}, {0.0F, 100, 0},   {12.4F, 100, 0},
        {12.5F, 100, 1}, {99.9F, 100, 7},   {100.0F, 100, 8}, {-50.0F, 100, 0},
        {50.0F, 0, 0},   {50.0F, -100, 0},  {50.0F, 1000, 0}, {3.0e9F, 1, 0},
    };
    for (const auto& row : rows) {
        scenery->list->count = 0;
        AddFace(scenery.get(), 0x200 | 0x400 | 0x20, row.z0);
        scenery->list->records[0].work[1].z = 1.0F; // the others do not count
        scenery->list->records[0].work[2].z = 9999.0F;
        scenery->job.flags = 0x4 | 0x100 | 0x10;
        scenery->job.mipDistance = row.mipDistance;
        // A level that does not fit an integer is INT32_MIN and so counts as below 0.
        EXPECT_EQ(CheckJob(*scenery), "") << row.z0;
        ASSERT_EQ(recordedCount, 1);
        const RecordedCall& call = recordedCalls[0];
        EXPECT_EQ(call.polygon.texture.single, scenery->chain[row.level]) << row.z0;
        const FaceCorner& from = scenery->list->records[0].work[2];
        EXPECT_EQ(call.polygon.vertices[2].u, from.u / static_cast<float>(1 << row.level));
        EXPECT_EQ(call.polygon.vertices[2].v, from.v / static_cast<float>(1 << row.level));
    }
}

TEST_F(DecisionTable, LodDistanceEqualToTheDepthIsNear) {
    AddFace(scenery.get(), 0x200 | 0x20, 100.0F);
    AddFace(scenery.get(), 0x200 | 0x20, 100.00001F);
    scenery->job.flags = 0x4 | 0x800 | 0x40;
    EXPECT_EQ(CheckJob(*scenery), "");
    ASSERT_EQ(recordedCount, 2);
    EXPECT_STREQ(kFillerTable[recordedCalls[0].number].name, "FillTexWSpan");
    EXPECT_STREQ(kFillerTable[recordedCalls[1].number].name, "FillTexWAffine");
}

TEST_F(DecisionTable, AFarGouraudLitFaceByDistanceIsFlat) {
    AddFace(scenery.get(), 0x200, 101.0F);
    scenery->job.flags = 0x4 | 0x800;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_STREQ(kFillerTable[recordedCalls[0].number].name, "FillTexFlatWAffine");
    EXPECT_EQ(recordedCalls[0].polygon.litColors[0] & 0xFFFF,
              scenery->list->records[0].litColors[0] & 0xFFFF);
}

TEST_F(DecisionTable, TheScenesJobsUseTheAffineInverseDepthFillers) {
    AddFace(scenery.get(), 0x200 | 0x20, 10.0F);
    AddFace(scenery.get(), 0x200 | 0x40, 10.0F);
    AddFace(scenery.get(), 0x200 | 0x80, 10.0F);
    AddFace(scenery.get(), 0x40, 10.0F);
    AddFace(scenery.get(), 0x80, 10.0F);
    for (int i = 0; i < 5; ++i) {
        AddFace(scenery.get(), scenery->list->records[i].flags | 0x2, 10.0F);
    }
    scenery->job.flags = 0x134;
    EXPECT_EQ(CheckJob(*scenery), "");
    const char* names[] = {
        "FillTexWAffine", "FillTexFlatWAffine",  "FillTexGouraudW",         "FillFlatW",
        "FillGouraudW",   "FillTexWAffineBlend", "FillTexFlatWAffineBlend", "FillTexGouraudWBlend",
        "FillFlatWBlend", "FillGouraudWBlend"};
    ASSERT_EQ(recordedCount, 10);
    for (int i = 0; i < 10; ++i) {
        EXPECT_STREQ(kFillerTable[recordedCalls[i].number].name, names[i]);
    }
}

TEST_F(DecisionTable, WithoutKindPathOrMaterialNothingIsDrawn) {
    AddFace(scenery.get(), 0x200 | 0x20, 10.0F);
    AddFace(scenery.get(), 0, 10.0F);
    scenery->job.flags = 0x4 | 0x40;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_EQ(recordedCount, 0);
    scenery->job.flags = 0x100;
    EXPECT_EQ(CheckJob(*scenery), "");
    EXPECT_EQ(recordedCount, 0);
}

// The count is read again behind every face: a filler that shortens the list ends the walk.
FaceList* shortened = nullptr;
int shortenedCalls = 0;
void ShortenList(ScreenPolygon*, const FillTarget&) {
    ++shortenedCalls;
    shortened->count = 2;
}

TEST_F(DecisionTable, TheCountIsReadAgainBehindEveryFace) {
    for (int i = 0; i < 6; ++i) {
        AddFace(scenery.get(), 0x40, 10.0F);
    }
    shortened = scenery->list.get();
    shortenedCalls = 0;
    activeFillers[static_cast<int>(FillerId::FillFlat)] = ShortenList;
    scenery->job.flags = 0x1;
    DrawFaces(&scenery->job);
    EXPECT_EQ(shortenedCalls, 2);
}

} // namespace
} // namespace ombrel
