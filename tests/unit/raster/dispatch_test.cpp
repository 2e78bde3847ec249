// The dispatcher: which faces it draws, with which filler, texture, mip level and blend level.
// Every filler is replaced by one that only notes its call.
#include "canvas.h"

#include <limits>
#include <memory>
#include <string>

namespace ombrel {
namespace {

struct Call {
    FillerId id;
    ScreenPolygon polygon;
    FillTarget target;
};
constinit Call lastCall{};
constinit std::int32_t callCount = 0;
constinit std::int32_t* countToChange = nullptr; // set: the next call adds one to it

template <int id> void NoteCall(ScreenPolygon* polygon, const FillTarget& target) {
    lastCall = {static_cast<FillerId>(id), *polygon, target};
    ++callCount;
    if (countToChange != nullptr) {
        ++*countToChange;
        countToChange = nullptr;
    }
}
template <int... id> void NoteAllCalls(std::integer_sequence<int, id...>) {
    ((activeFillers[id] = NoteCall<id>), ...);
}

class DispatchTest : public RasterTest {
protected:
    void SetUp() override {
        RasterTest::SetUp();
        NoteAllCalls(std::make_integer_sequence<int, kFillerCount>{});
        lastCall = {};
        callCount = 0;
        countToChange = nullptr;
        list_->count = 1;
        for (std::int32_t i = 0; i < 4; ++i) {
            list_->pointers[i] = &list_->records[i];
            list_->records[i].state = FACE_LIVE;
        }
        job_ = {0, list_.get(), &pixel_, 1280, &cell_, 2560, -1, 100, 500, {0, 0, 640, 480}};
        Face().texture.single = &texture_.record;
    }
    void TearDown() override { ResetFillers(); }

    RenderFace& Face(std::int32_t i = 0) { return list_->records[i]; }
    // The filler that a job with one face chose; empty when none was called.
    std::string Chosen(std::uint32_t jobFlags, std::uint32_t faceFlags) {
        callCount = 0;
        job_.flags = jobFlags;
        Face().flags = faceFlags;
        DrawFaces(&job_);
        EXPECT_LE(callCount, 1);
        return callCount == 0 ? "" : kFillerTable[static_cast<int>(lastCall.id)].name;
    }

    std::unique_ptr<FaceList> list_ = std::make_unique<FaceList>();
    TestTexture texture_{8, 8, CountedTexels(64)};
    Pixel16 pixel_ = 0;
    std::uint32_t cell_ = 0;
    DrawJob job_{};
};

// The decisions once more, typed from the rules and in another order: by name, class first.
struct Decision {
    const char* path1;
    const char* path1Alt;
    const char* path2;
    const char* path3;
    const char* far;
    const char* near;
};
const Decision& Wanted(std::uint32_t kind, const std::string& light, bool blended) {
    const auto same = [](const char* name) { return Decision{name, name, name, name, name, name}; };
    static_assert(DRAW_NO_DEPTH == 1 && DRAW_DEPTH_KEYED == 2 && DRAW_INV_DEPTH == 4 &&
                  DRAW_DEPTH == 8);
    thread_local Decision result;
    const auto choose = [&]() -> Decision {
        if (light == "unlit" && !blended) {
            switch (kind) {
            case 1:
                return {"FillTex", "FillTexAlt", "FillTex", "FillTex", "FillTex", "FillTex"};
            case 2:
                return {"FillTexZKeyed", "FillTexZAlt",   "FillTexZKeyed",
                        "FillTexZKeyed", "FillTexZKeyed", "FillTexZKeyed"};
            case 4:
                return {"FillTexWAffine", "FillTexWAlt",    "FillTexWPerPixel",
                        "FillTexWSpan",   "FillTexWAffine", "FillTexWSpan"};
            default:
                return {"FillTexKeyedZWrite", "FillTexZAlt", "FillTexZ",
                        "FillTexZ",           "FillTexZ",    "FillTexZ"};
            }
        }
        if (light == "unlit") {
            if (kind == 4) {
                return {"FillTexWAffineBlend", "FillTexWAffineBlend", "FillTexWPerPixelBlend",
                        "FillTexWSpanBlend",   "FillTexWAffineBlend", "FillTexWSpanBlend"};
            }
            return same(kind == 1 ? "FillTexBlend" : "FillTexZBlend");
        }
        if (light == "flat" && !blended) {
            switch (kind) {
            case 1:
                return same("FillTexFlat");
            case 2:
                return same("FillTexFlatZ");
            case 4:
                return {"FillTexFlatWAffine", "FillTexFlatWAffine", "FillTexFlatWPerPixel",
                        "FillTexFlatWSpan",   "FillTexFlatWAffine", "FillTexFlatWSpan"};
            default:
                return {"FillTexFlatKeyedZWrite", "FillTexFlatKeyedZWrite", "FillTexFlatZ",
                        "FillTexFlatZ",           "FillTexFlatZ",           "FillTexFlatZ"};
            }
        }
        if (light == "flat") {
            if (kind == 4) {
                return {"FillTexFlatWAffineBlend",   "FillTexFlatWAffineBlend",
                        "FillTexFlatWPerPixelBlend", "FillTexFlatWSpanBlend",
                        "FillTexFlatWAffineBlend",   "FillTexFlatWSpanBlend"};
            }
            return same(kind == 1 ? "FillTexFlatBlend" : "FillTexFlatZBlend");
        }
        if (!blended) {
            if (kind == 4) {
                return {"FillTexGouraudW", "FillTexGouraudW",    "FillTexGouraudW",
                        "FillTexGouraudW", "FillTexFlatWAffine", "FillTexGouraudW"};
            }
            return same(kind == 1 ? "FillTexGouraud" : "FillTexGouraudZ");
        }
        return same(kind == 1   ? "FillTexGouraudBlend"
                    : kind == 4 ? "FillTexGouraudWBlend"
                                : "FillTexGouraudZBlend");
    };
    result = choose();
    return result;
}
std::string WantedPlain(std::uint32_t kind, bool gouraud, bool blended) {
    const std::string suffix = kind == 1 ? "" : kind == 4 ? "W" : "Z";
    if (gouraud && !blended && kind == 2) {
        return "FillGouraudZKeyedKind";
    }
    return (gouraud ? "FillGouraud" : "FillFlat") + suffix + (blended ? "Blend" : "");
}

TEST_F(DispatchTest, EveryCombinationOfFlagsAgainstASecondTable) {
    std::int32_t compared = 0;
    for (std::uint32_t low = 0; low < 128; ++low) {          // kinds, mip, blend, alternate
        for (std::uint32_t paths = 0; paths < 16; ++paths) { // 0x100 .. 0x800
            for (std::uint32_t material = 0; material < 32; ++material) {
                for (const std::int32_t level : {-1, 0, 3}) {
                    for (const float z : {499.0F, 501.0F}) { // lodDistance is 500
                        const std::uint32_t jobFlags = low | (paths << 8);
                        const std::uint32_t faceFlags =
                            ((material & 1) != 0 ? MAT_TRANSLUCENT : 0) |
                            ((material & 2) != 0 ? MAT_UNLIT : 0) |
                            ((material & 4) != 0 ? MAT_FLAT : 0) |
                            ((material & 8) != 0 ? MAT_GOURAUD : 0) |
                            ((material & 16) != 0 ? MAT_TEXTURED : 0);
                        job_.level = level;
                        Face().work[0].z = z;

                        std::uint32_t kind = 0;
                        for (const std::uint32_t bit : {8U, 4U, 2U, 1U}) {
                            kind = (low & bit) != 0 ? bit : kind;
                        }
                        const bool blended =
                            (low & DRAW_BLEND) != 0 && ((material & 1) != 0 || level >= 0);
                        std::string wanted;
                        if (kind == 0) {
                            wanted = "";
                        } else if ((material & 16) != 0) {
                            const Decision& row = Wanted(kind,
                                                         (material & 2) != 0   ? "unlit"
                                                         : (material & 4) != 0 ? "flat"
                                                                               : "gouraud",
                                                         blended);
                            wanted = (paths & 1) != 0
                                         ? ((low & 0x40) != 0 ? row.path1Alt : row.path1)
                                     : (paths & 2) != 0 ? row.path2
                                     : (paths & 4) != 0 ? row.path3
                                     : (paths & 8) != 0 ? (z > 500 ? row.far : row.near)
                                                        : "";
                        } else if ((material & 6) != 0) {
                            wanted = WantedPlain(kind, false, blended);
                        } else if ((material & 8) != 0) {
                            wanted = WantedPlain(kind, true, blended);
                        }
                        ASSERT_EQ(Chosen(jobFlags, faceFlags), wanted)
                            << std::hex << jobFlags << " " << faceFlags << " level " << level;
                        ++compared;
                    }
                }
            }
        }
    }
    EXPECT_EQ(compared, 128 * 16 * 32 * 3 * 2);
}

TEST_F(DispatchTest, FirstKindWins) {
    EXPECT_EQ(Chosen(DRAW_NO_DEPTH | DRAW_DEPTH, MAT_FLAT), "FillFlat");
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_DEPTH, MAT_FLAT), "FillFlatW");
    EXPECT_EQ(Chosen(DRAW_DEPTH_KEYED | DRAW_INV_DEPTH, MAT_GOURAUD), "FillGouraudZKeyedKind");
}

TEST_F(DispatchTest, JobWithoutKindDrawsNothing) {
    EXPECT_EQ(Chosen(DRAW_PATH_1 | DRAW_BLEND, MAT_FLAT), "");
    EXPECT_EQ(Chosen(DRAW_PATH_1, MAT_TEXTURED | MAT_UNLIT), "");
}

TEST_F(DispatchTest, TexturedFaceWithoutPathIsNotDrawn) {
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_1_ALT, MAT_TEXTURED | MAT_UNLIT), "");
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH, MAT_FLAT), "FillFlatW");
}

TEST_F(DispatchTest, UntexturedFaceOfNoClassIsNotDrawn) {
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_1, 0), "");
}

TEST_F(DispatchTest, UnlitAndFlatIsUnlitWhenTexturedAndFlatWhenNot) {
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_1, MAT_TEXTURED | MAT_UNLIT | MAT_FLAT),
              "FillTexWAffine");
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_1, MAT_UNLIT | MAT_FLAT), "FillFlatW");
}

TEST_F(DispatchTest, JobLevelMakesOpaqueFacesTranslucentWhenBlendingIsAllowed) {
    job_.level = 3;
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_BLEND, MAT_FLAT), "FillFlatWBlend");
    EXPECT_EQ(lastCall.target.level, 3U);
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH, MAT_FLAT), "FillFlatW");
}

TEST_F(DispatchTest, FaceLevelIsTheTopByteOfTheColourWord) {
    Face().color = 0x05FFFFFF;
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_BLEND, MAT_FLAT | MAT_TRANSLUCENT), "FillFlatWBlend");
    EXPECT_EQ(lastCall.target.level, 5U);
    job_.level = 0;
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_BLEND, MAT_FLAT | MAT_TRANSLUCENT), "FillFlatWBlend");
    EXPECT_EQ(lastCall.target.level, 0U);
}

TEST_F(DispatchTest, LevelIsLimitedToTheBlendTables) {
    Face().color = 0xFF000000;
    Chosen(DRAW_INV_DEPTH | DRAW_BLEND, MAT_FLAT | MAT_TRANSLUCENT);
    EXPECT_EQ(lastCall.target.level, 7U);
    for (const std::int32_t level : {8, 100, INT32_MAX}) {
        job_.level = level;
        Chosen(DRAW_INV_DEPTH | DRAW_BLEND, MAT_FLAT);
        EXPECT_EQ(lastCall.target.level, 7U);
    }
}

TEST_F(DispatchTest, LodDistanceEqualToDepthIsNear) {
    Face().work[0].z = 500.0F;
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE, MAT_TEXTURED | MAT_UNLIT),
              "FillTexWSpan");
    Face().work[0].z = 500.5F;
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE, MAT_TEXTURED | MAT_UNLIT),
              "FillTexWAffine");
    Face().work[0].z = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE, MAT_TEXTURED | MAT_UNLIT),
              "FillTexWSpan");
}

TEST_F(DispatchTest, R1_FarGouraudFacesAreFlatLit) {
    Face().work[0].z = 501.0F;
    Face().litColors[0] = 0x4321;
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE, MAT_TEXTURED | MAT_GOURAUD),
              "FillTexFlatWAffine");
    EXPECT_EQ(lastCall.polygon.litColors[0], 0x4321U);
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE | DRAW_BLEND,
                     MAT_TEXTURED | MAT_GOURAUD | MAT_TRANSLUCENT),
              "FillTexGouraudWBlend");
    Face().work[0].z = 499.0F;
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_BY_DISTANCE, MAT_TEXTURED | MAT_GOURAUD),
              "FillTexGouraudW");
}

TEST_F(DispatchTest, JobsOfTheScenes) {
    constexpr std::uint32_t kSceneJob = 0x134;
    static_assert(kSceneJob == (DRAW_INV_DEPTH | DRAW_MIPMAP | DRAW_BLEND | DRAW_PATH_1));
    EXPECT_EQ(Chosen(kSceneJob, MAT_TEXTURED | MAT_UNLIT), "FillTexWAffine");
    EXPECT_EQ(Chosen(kSceneJob, MAT_TEXTURED | MAT_FLAT), "FillTexFlatWAffine");
    EXPECT_EQ(Chosen(kSceneJob, MAT_TEXTURED | MAT_GOURAUD), "FillTexGouraudW");
    EXPECT_EQ(Chosen(kSceneJob, MAT_FLAT), "FillFlatW");
    EXPECT_EQ(Chosen(kSceneJob, MAT_GOURAUD), "FillGouraudW");
    EXPECT_EQ(Chosen(kSceneJob, MAT_TEXTURED | MAT_UNLIT | MAT_TRANSLUCENT), "FillTexWAffineBlend");
    EXPECT_EQ(Chosen(kSceneJob, MAT_TEXTURED | MAT_FLAT | MAT_TRANSLUCENT),
              "FillTexFlatWAffineBlend");
    EXPECT_EQ(Chosen(kSceneJob, MAT_TEXTURED | MAT_GOURAUD | MAT_TRANSLUCENT),
              "FillTexGouraudWBlend");
    EXPECT_EQ(Chosen(kSceneJob, MAT_FLAT | MAT_TRANSLUCENT), "FillFlatWBlend");
    EXPECT_EQ(Chosen(kSceneJob, MAT_GOURAUD | MAT_TRANSLUCENT), "FillGouraudWBlend");
}

TEST_F(DispatchTest, OnlyLiveFacesThatWereNotRejectedAreDrawn) {
    for (std::uint32_t state = 0; state < 16; ++state) {
        Face().state = state;
        EXPECT_EQ(Chosen(DRAW_NO_DEPTH, MAT_FLAT) != "", state == 1 || state == 9) << state;
    }
}

TEST_F(DispatchTest, FacesAreDrawnInTheOrderOfThePointers) {
    list_->count = 3;
    std::swap(list_->pointers[0], list_->pointers[2]);
    for (std::int32_t i = 0; i < 3; ++i) {
        Face(i).flags = MAT_FLAT;
        Face(i).litColors[0] = static_cast<std::uint32_t>(i);
    }
    job_.flags = DRAW_NO_DEPTH;
    DrawFaces(&job_);
    EXPECT_EQ(callCount, 3);
    EXPECT_EQ(lastCall.polygon.litColors[0], 0U);
}

TEST_F(DispatchTest, CountIsReadAgainAfterEveryFace) {
    Face(0).flags = Face(1).flags = MAT_FLAT;
    countToChange = &list_->count; // the first face's filler adds a second face
    job_.flags = DRAW_NO_DEPTH;
    DrawFaces(&job_);
    EXPECT_EQ(callCount, 2);
}

TEST_F(DispatchTest, EmptyListDrawsNothing) {
    list_->count = 0;
    EXPECT_EQ(Chosen(DRAW_NO_DEPTH, MAT_FLAT), "");
}

TEST_F(DispatchTest, PolygonCarriesTheFieldsOfItsClassAndTheFaceStaysAsItIs) {
    for (int i = 0; i < 3; ++i) {
        const auto f = static_cast<float>(i);
        Face().litColors[i] = static_cast<std::uint32_t>(i + 70);
        Face().work[i].x = f + 1;
        Face().work[i].y = f + 11;
        Face().work[i].z = f + 21;
        Face().work[i].u = f + 31;
        Face().work[i].v = f + 41;
    }
    const RenderFace before = Face();
    EXPECT_EQ(Chosen(DRAW_DEPTH | DRAW_PATH_2, MAT_TEXTURED | MAT_GOURAUD), "FillTexGouraudZ");
    for (int i = 0; i < 3; ++i) {
        const auto f = static_cast<float>(i);
        EXPECT_EQ(lastCall.polygon.litColors[i], static_cast<std::uint32_t>(i + 70));
        EXPECT_EQ(lastCall.polygon.vertices[i].x, f + 1);
        EXPECT_EQ(lastCall.polygon.vertices[i].y, f + 11);
        EXPECT_EQ(lastCall.polygon.vertices[i].z, f + 21);
        EXPECT_EQ(lastCall.polygon.vertices[i].u, f + 31);
        EXPECT_EQ(lastCall.polygon.vertices[i].v, f + 41);
        EXPECT_EQ(Face().work[i].x, before.work[i].x);
        EXPECT_EQ(Face().work[i].u, before.work[i].u);
    }
    EXPECT_EQ(lastCall.polygon.texture.single, &texture_.record);
    EXPECT_EQ(lastCall.target.frame, &pixel_);
    EXPECT_EQ(lastCall.target.framePitch, 1280);
    EXPECT_EQ(lastCall.target.depth, &cell_);
    EXPECT_EQ(lastCall.target.depthPitch, 2560);
}

TEST_F(DispatchTest, FaceIsDrawnWhereItStands) {
    // With the real fillers: the face itself is not rounded, its pixels are there.
    ResetFillers();
    Canvas canvas(64, 48);
    job_.frame = canvas.frame.data();
    job_.framePitch = canvas.Target().framePitch;
    job_.depth = canvas.depth.data();
    job_.depthPitch = canvas.Target().depthPitch;
    job_.flags = DRAW_INV_DEPTH;
    Face().flags = MAT_FLAT;
    Face().litColors[0] = 0xF800;
    const Point points[3] = {{4.2F, 4.2F, 9, 0, 0}, {12.2F, 4.2F, 9, 0, 0}, {4.2F, 12.2F, 9, 0, 0}};
    for (int i = 0; i < 3; ++i) {
        Face().work[i].x = points[i].x;
        Face().work[i].y = points[i].y;
        Face().work[i].z = points[i].z;
    }
    DrawFaces(&job_);
    EXPECT_EQ(canvas.At(4, 4), 0xF800);
    EXPECT_EQ(canvas.CountChanged(), 36);
    EXPECT_EQ(Face().work[0].x, 4.2F);
}

// --- mip levels
// -----------------------------------------------------------------------------------

class MipTest : public DispatchTest {
protected:
    void SetUp() override {
        DispatchTest::SetUp();
        for (std::int32_t i = 0; i < 9; ++i) {
            levels_[i] = {1, TEX_FILLED, 0, 0, 256 >> i, 256 >> i, 0, 16, &pixel_};
            chain_[i] = &levels_[i];
        }
        Face().texture.chain = chain_;
        for (FaceCorner& vertex : Face().work) {
            vertex.u = 240.0F;
            vertex.v = 16.0F;
        }
    }
    // The level chosen for a depth of the first vertex; -1 when nothing was drawn.
    std::int32_t LevelAt(float z, std::uint32_t jobFlags = DRAW_MIPMAP) {
        Face().work[0].z = z;
        if (Chosen(DRAW_INV_DEPTH | DRAW_PATH_1 | jobFlags,
                   MAT_TEXTURED | MAT_UNLIT | MAT_MIPMAPPED) == "") {
            return -1;
        }
        return static_cast<std::int32_t>(lastCall.polygon.texture.single - levels_);
    }
    Texture levels_[9];
    Texture* chain_[9];
};

TEST_F(MipTest, LevelGrowsWithDepthAndScalesTexels) {
    EXPECT_EQ(LevelAt(50.0F), 4); // 8 * 50 / 100
    for (const Vertex& vertex : lastCall.polygon.vertices) {
        EXPECT_EQ(vertex.u, 15.0F);
        EXPECT_EQ(vertex.v, 1.0F);
    }
    EXPECT_EQ(LevelAt(1000.0F), 8); // 80, limited
    EXPECT_EQ(lastCall.polygon.vertices[2].u, 240.0F / 256);
    EXPECT_EQ(LevelAt(0.0F), 0);
    EXPECT_EQ(lastCall.polygon.vertices[0].u, 240.0F);
    EXPECT_EQ(LevelAt(12.4F), 0); // 0.992 is cut
    EXPECT_EQ(LevelAt(12.5F), 1);
    EXPECT_EQ(LevelAt(100.0F), 8);
}

TEST_F(MipTest, WithoutTheJobFlagTheFullSizeIsTaken) {
    EXPECT_EQ(LevelAt(1000.0F, 0), 0);
    EXPECT_EQ(lastCall.polygon.vertices[0].u, 240.0F);
}

TEST_F(MipTest, OutOfRangeLevelsAreLimited) {
    EXPECT_EQ(LevelAt(-1000.0F), 0);
    job_.mipDistance = 0;
    EXPECT_EQ(LevelAt(50.0F), 0);
    EXPECT_EQ(LevelAt(0.0F), 0);
    job_.mipDistance = -100;
    EXPECT_EQ(LevelAt(50.0F), 0);
    EXPECT_EQ(LevelAt(-1000.0F), 8);
    job_.mipDistance = 100;
    EXPECT_EQ(LevelAt(std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST_F(MipTest, MissingTexelsDrawNothing) {
    levels_[4].pixels = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    chain_[4] = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    chain_[0] = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    Face().texture.chain = nullptr;
    EXPECT_EQ(LevelAt(50.0F), -1);
    EXPECT_EQ(Chosen(DRAW_INV_DEPTH | DRAW_PATH_1, MAT_TEXTURED | MAT_UNLIT), "");
}

} // namespace
} // namespace ombrel
