// Objects on the move, and the face list that takes their faces.
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include <cmath>

#include "scene/mesh_transform.h"
#include "scene_fixture.h"

using namespace ombrel;
using test::ExpectCorner;

namespace {

// Two vertices in each of two copies, one face; vertex 0 has a normal, vertex 1 has none.
class MeshMoves : public testing::Test {
protected:
    void SetUp() override {
        InitTrigTables();
        test::ResetList();
        vertices_.resize(4);
        transformed_.assign(4, Vertex{});
        for (int i = 0; i < 4; ++i) {
            const auto n = static_cast<float>(i);
            vertices_[static_cast<std::size_t>(i)] = test::VertexAt(n + 1.0F, n + 2.0F, n + 3.0F);
        }
        vertices_[0].vflags |= VERTEX_HAS_NORMAL;
        vertices_[0].nx = 1.0F;
        vertices_[1].nx = 1.0F;
        vertices_[0].nw = vertices_[1].nw = 0.0F;
        faces_.assign(3, Face{});
        for (Face& face : faces_) {
            face.active = FACE_LIVE;
            face.vertexArray = nullptr;
            face.v1 = 1;
            face.v2 = 2;
        }
        mesh_ = Mesh{};
        mesh_.state = MESH_LIVE | MESH_DRAWABLE;
        mesh_.position = {10.0F, 20.0F, 30.0F, 1.0F};
        mesh_.axes[0] = {1.0F, 0.0F, 0.0F, 0.0F};
        mesh_.axes[1] = {0.0F, 1.0F, 0.0F, 0.0F};
        mesh_.axes[2] = {0.0F, 0.0F, 1.0F, 1.0F};
        mesh_.vertexCount = 2;
        mesh_.copyCount = 2;
        mesh_.slotCount = 4;
        mesh_.vertices = mesh_.curVertices = vertices_.data();
        mesh_.transformed = mesh_.curTransformed = transformed_.data();
        mesh_.faces = faces_.data();
        mesh_.faceCount = 3;
    }

    std::vector<Vertex> vertices_;
    std::vector<Vertex> transformed_;
    std::vector<Face> faces_;
    Mesh mesh_;
};

// x' = 2 y, y' = x, z' = 3 z, shifted by (100, 200, 300).
constexpr Matrix4 kMatrix = {{{0, 1, 0, 0}, {2, 0, 0, 0}, {0, 0, 3, 0}, {100, 200, 300, 1}}};

void ExpectAt(const Vertex& v, float x, float y, float z, float w) {
    EXPECT_EQ(v.x, x);
    EXPECT_EQ(v.y, y);
    EXPECT_EQ(v.z, z);
    EXPECT_EQ(v.w, w);
}

TEST_F(MeshMoves, Mode0MultipliesTheVerticesInPlace) {
    MeshTransform(&mesh_, &kMatrix, {TransformMode::InPlace, 0, 0});
    ExpectAt(vertices_[0], 104.0F, 201.0F, 309.0F, 1.0F);
    ExpectAt(vertices_[1], 106.0F, 202.0F, 312.0F, 1.0F);
    ExpectAt(vertices_[2], 3.0F, 4.0F, 5.0F, 1.0F); // beyond vertexCount
    ExpectAt(transformed_[0], 0.0F, 0.0F, 0.0F, 0.0F);
    EXPECT_EQ(mesh_.axes[0].x, 1.0F);
}

TEST_F(MeshMoves, ANormalTurnsWhereThereIsOneWithItsOwnW) {
    vertices_[2] = vertices_[0];
    vertices_[2].nw = 1.0F;
    mesh_.vertexCount = 3;
    MeshTransform(&mesh_, &kMatrix, {TransformMode::InPlace, 0, 0});
    EXPECT_EQ(vertices_[0].nx, 0.0F); // w 0: not shifted
    EXPECT_EQ(vertices_[0].ny, 1.0F);
    EXPECT_EQ(vertices_[0].nz, 0.0F);
    EXPECT_EQ(vertices_[0].nw, 0.0F);
    EXPECT_EQ(vertices_[1].nx, 1.0F); // no normal: untouched
    EXPECT_EQ(vertices_[1].ny, 0.0F);
    EXPECT_EQ(vertices_[2].nx, 100.0F); // w 1: shifted like a point
    EXPECT_EQ(vertices_[2].ny, 201.0F);
}

TEST_F(MeshMoves, Mode1MultipliesTheTransformedInPlace) {
    transformed_[0] = test::VertexAt(1.0F, 1.0F, 1.0F);
    MeshTransform(&mesh_, &kMatrix, {TransformMode::TransformedInPlace, 0, 0});
    ExpectAt(transformed_[0], 102.0F, 201.0F, 303.0F, 1.0F);
    ExpectAt(vertices_[0], 1.0F, 2.0F, 3.0F, 1.0F);
}

TEST_F(MeshMoves, Mode2MultipliesFromOneIntoTheOther) {
    MeshTransform(&mesh_, &kMatrix, {TransformMode::IntoTransformed, 0, 0});
    ExpectAt(vertices_[0], 1.0F, 2.0F, 3.0F, 1.0F);
    ExpectAt(transformed_[0], 104.0F, 201.0F, 309.0F, 1.0F);
    EXPECT_EQ(transformed_[0].ny, 1.0F);
    ExpectAt(transformed_[1], 106.0F, 202.0F, 312.0F, 1.0F);
    EXPECT_EQ(transformed_[1].nx, 0.0F);
    ExpectAt(transformed_[2], 0.0F, 0.0F, 0.0F, 0.0F);
}

TEST_F(MeshMoves, OtherModesDoNothing) {
    const auto vertices = vertices_;
    for (const std::int32_t mode : {-1, 3, 4}) {
        MeshTransform(&mesh_, &kMatrix, {TransformMode{mode}, 1, 0});
    }
    EXPECT_EQ(std::memcmp(vertices.data(), vertices_.data(), sizeof(Vertex) * 4), 0);
    EXPECT_EQ(mesh_.axes[0].x, 1.0F);
    EXPECT_EQ(mesh_.axes[0].y, 0.0F);
}

TEST_F(MeshMoves, UseCurrentTakesTheCurrentArraysOverAllSlots) {
    std::vector<Vertex> current(4, test::VertexAt(1.0F, 1.0F, 1.0F));
    std::vector<Vertex> result(4, Vertex{});
    mesh_.curVertices = current.data();
    mesh_.curTransformed = result.data();
    MeshTransform(&mesh_, &kMatrix, {TransformMode::IntoTransformed, 0, 1});
    ExpectAt(result[3], 102.0F, 201.0F, 303.0F, 1.0F);
    MeshTransform(&mesh_, &kMatrix, {TransformMode::TransformedInPlace, 0, 1});
    ExpectAt(result[3], 502.0F, 302.0F, 1209.0F, 1.0F);
    MeshTransform(&mesh_, &kMatrix, {TransformMode::InPlace, 0, 1});
    ExpectAt(current[3], 102.0F, 201.0F, 303.0F, 1.0F);
    ExpectAt(vertices_[0], 1.0F, 2.0F, 3.0F, 1.0F);
    ExpectAt(transformed_[0], 0.0F, 0.0F, 0.0F, 0.0F);
}

TEST_F(MeshMoves, AxesTurnWhenAskedFor) {
    MeshTransform(&mesh_, &kMatrix, {TransformMode::IntoTransformed, 1, 0});
    EXPECT_EQ(mesh_.axes[0].y, 1.0F);
    EXPECT_EQ(mesh_.axes[0].x, 0.0F);
    EXPECT_EQ(mesh_.axes[1].x, 2.0F);
    EXPECT_EQ(mesh_.axes[2].x, 100.0F); // its w is 1
    EXPECT_EQ(mesh_.axes[2].z, 303.0F);
}

TEST_F(MeshMoves, RotateTurnsVerticesNormalsAndAxesAndAccumulates) {
    MeshRotate(&mesh_, 0.0F, 0.0F, 90.0F, 0); // x to y, y to -x
    EXPECT_NEAR(vertices_[0].x, -2.0F, 1e-5F);
    EXPECT_NEAR(vertices_[0].y, 1.0F, 1e-5F);
    EXPECT_EQ(vertices_[0].z, 3.0F);
    EXPECT_NEAR(vertices_[0].ny, 1.0F, 1e-5F);
    EXPECT_EQ(vertices_[1].nx, 1.0F);
    EXPECT_NEAR(mesh_.axes[0].y, 1.0F, 1e-5F);
    ExpectAt(vertices_[2], 3.0F, 4.0F, 5.0F, 1.0F);
    MeshRotate(&mesh_, 0.0F, 0.0F, 90.0F, 0);
    EXPECT_NEAR(vertices_[0].x, -1.0F, 1e-5F);
    EXPECT_NEAR(vertices_[0].y, -2.0F, 1e-5F);
    MeshRotate(&mesh_, 0.0F, 0.0F, 180.0F, 1); // all slots of the current arrays
    EXPECT_NEAR(vertices_[0].x, 1.0F, 1e-5F);
    EXPECT_NEAR(vertices_[2].x, -3.0F, 1e-5F);
}

TEST_F(MeshMoves, R38_TurningObjectsShrink) {
    // 450 turns of 0.2 degrees make a right angle; four of five of them lie off the whole degrees.
    vertices_[0] = test::VertexAt(100.0F, 0.0F, 0.0F);
    for (int i = 0; i < 450; ++i) {
        MeshRotate(&mesh_, 0.0F, 0.2F, 0.0F, 0);
    }
    const Vec3 v = {vertices_[0].x, 0.0F, vertices_[0].z, 1.0F};
    EXPECT_NEAR(v.x, 0.0F, 0.1F);
    EXPECT_LT(Vec3Length(&v), 99.0F);
    EXPECT_GT(Vec3Length(&v), 98.0F);
    // About the other two axes as well.
    vertices_[0] = test::VertexAt(0.0F, 100.0F, 0.0F);
    vertices_[1] = test::VertexAt(100.0F, 0.0F, 0.0F);
    for (int i = 0; i < 450; ++i) {
        MeshRotate(&mesh_, 0.2F, 0.0F, 0.0F, 0);
    }
    EXPECT_NEAR(vertices_[0].y, 0.0F, 0.1F);
    EXPECT_NEAR(std::fabs(vertices_[0].z), 98.5F, 0.5F);
    EXPECT_EQ(vertices_[1].x, 100.0F);
    for (int i = 0; i < 450; ++i) {
        MeshRotate(&mesh_, 0.0F, 0.0F, 0.2F, 0);
    }
    EXPECT_NEAR(vertices_[1].x, 0.0F, 0.1F);
    EXPECT_NEAR(std::fabs(vertices_[1].y), 98.5F, 0.5F);
}

TEST_F(MeshMoves, TranslateMode2WritesWorldPositionsWithWOneAndCopiesNormals) {
    vertices_[1].w = 7.0F;
    vertices_[1].nw = 5.0F;
    MeshTranslate(&mesh_, TransformMode::IntoTransformed, 0);
    ExpectAt(transformed_[0], 11.0F, 22.0F, 33.0F, 1.0F);
    ExpectAt(transformed_[1], 12.0F, 23.0F, 34.0F, 1.0F);
    EXPECT_EQ(transformed_[0].nx, 1.0F);
    EXPECT_EQ(transformed_[1].nx, 1.0F); // copied with or without the mark
    EXPECT_EQ(transformed_[1].nw, 5.0F);
    ExpectAt(vertices_[0], 1.0F, 2.0F, 3.0F, 1.0F);
    ExpectAt(transformed_[2], 0.0F, 0.0F, 0.0F, 0.0F);
}

TEST_F(MeshMoves, TranslateInAnyOtherModeAddsToTheTransformedInPlace) {
    transformed_[1] = test::VertexAt(1.0F, 1.0F, 1.0F);
    MeshTranslate(&mesh_, TransformMode::InPlace, 0);
    ExpectAt(transformed_[1], 11.0F, 21.0F, 31.0F, 1.0F);
    MeshTranslate(&mesh_, TransformMode{77}, 0);
    ExpectAt(transformed_[1], 21.0F, 41.0F, 61.0F, 1.0F);
    ExpectAt(vertices_[1], 2.0F, 3.0F, 4.0F, 1.0F);
}

TEST_F(MeshMoves, TranslateWithUseCurrentGoesOverAllSlots) {
    MeshTranslate(&mesh_, TransformMode::IntoTransformed, 1);
    ExpectAt(transformed_[3], 14.0F, 25.0F, 36.0F, 1.0F);
}

TEST_F(MeshMoves, AddsLiveFacesFromTheArrayAskedFor) {
    faces_[1].active = FACE_LIVE | FACE_BACK;
    EXPECT_EQ(MeshAddFaces(&test::list, &mesh_, 1), 1);
    ASSERT_EQ(test::list.count, 2);
    ExpectCorner(test::list.records[0].work[1], 2.0F, 3.0F, 4.0F);
    EXPECT_EQ(faces_[0].vertexArray, vertices_.data());

    MeshTranslate(&mesh_, TransformMode::IntoTransformed, 0);
    faces_[1].active = FACE_LIVE | FACE_OUTSIDE;
    faces_[2].active = 0;
    EXPECT_EQ(MeshAddFaces(&test::list, &mesh_, 0), 1);
    ASSERT_EQ(test::list.count, 3);
    ExpectCorner(test::list.records[2].work[1], 12.0F, 23.0F, 34.0F);
    EXPECT_EQ(faces_[0].vertexArray, transformed_.data());
    // A lit face is added too.
    faces_[0].active = FACE_LIVE | FACE_LIT;
    EXPECT_EQ(MeshAddFaces(&test::list, &mesh_, 0), 1);
    EXPECT_EQ(test::list.count, 4);
}

TEST_F(MeshMoves, AddsNothingOfAMeshThatIsNotDrawable) {
    for (const std::uint32_t state :
         {0U, MESH_LIVE, MESH_DRAWABLE, MESH_LIVE | MESH_DRAWABLE | MESH_CULLED}) {
        mesh_.state = state;
        EXPECT_EQ(MeshAddFaces(&test::list, &mesh_, 1), 0);
        EXPECT_EQ(test::list.count, 0);
    }
}

TEST_F(MeshMoves, AnEmptyMeshAddsNothingAndSucceeds) {
    mesh_.faceCount = 0;
    EXPECT_EQ(MeshAddFaces(&test::list, &mesh_, 1), 1);
    EXPECT_EQ(test::list.count, 0);
}

TEST_F(MeshMoves, ResetFrameClearsTheMarksOfLiveFaces) {
    mesh_.state |= MESH_CULLED;
    faces_[0].active = FACE_LIVE | FACE_OUTSIDE | FACE_BACK | FACE_LIT | 0x10;
    faces_[1].active = FACE_OUTSIDE | FACE_BACK | FACE_LIT;
    MeshResetFrame(&mesh_);
    EXPECT_EQ(mesh_.state, MESH_LIVE | MESH_DRAWABLE);
    EXPECT_EQ(faces_[0].active, FACE_LIVE | 0x10U);
    EXPECT_EQ(faces_[1].active, FACE_OUTSIDE | FACE_BACK | FACE_LIT);
    EXPECT_EQ(faces_[2].active, FACE_LIVE);
}

// --- the list ----------------------------------------------------------------------------------

TEST(FaceListTest, ClearPutsEveryPointerOnItsRecord) {
    test::list.count = 99;
    test::list.pointers[0] = &test::list.records[5];
    FaceListClear(&test::list);
    EXPECT_EQ(test::list.count, 0);
    for (std::int32_t i = 0; i < kMaxRenderFaces; ++i) {
        ASSERT_EQ(test::list.pointers[i], &test::list.records[i]);
    }
}

TEST(FaceListTest, ARecordIsACopyOfTheFace) {
    test::ResetList();
    Vertex vertices[4] = {test::VertexAt(1, 2, 3), test::VertexAt(4, 5, 6), test::VertexAt(7, 8, 9),
                          test::VertexAt(10, 11, 12)};
    vertices[3].u = 0.25F;
    vertices[3].ny = 0.5F;
    Texture texture = {};
    Face face = {};
    face.active = FACE_LIVE | 0x40;
    face.flags = FACE_MATTE | FACE_LOADED;
    face.color = 0x05001234;
    face.litColors[2] = 0x77;
    face.texture.single = &texture;
    face.vertexArray = vertices;
    face.v0 = 3;
    face.v1 = 0;
    face.v2 = 2;
    face.size = 2.5F;
    RenderFace& r = test::list.records[0];
    EXPECT_EQ(FaceListAdd(&test::list, &face), 1);
    EXPECT_EQ(test::list.count, 1);
    EXPECT_EQ(test::list.pointers[0], &r);
    EXPECT_EQ(r.state, FACE_LIVE | 0x40U);
    EXPECT_EQ(r.flags, FACE_MATTE | FACE_LOADED);
    EXPECT_EQ(r.color, 0x05001234U);
    EXPECT_EQ(r.litColors[2], 0x77U);
    EXPECT_EQ(r.texture.single, &texture);
    EXPECT_EQ(r.size, 2.5F);
    const int want[3] = {3, 0, 2};
    for (int i = 0; i < 3; ++i) {
        const Vertex& v = vertices[want[i]];
        ExpectCorner(r.work[i], v.x, v.y, v.z);
        EXPECT_EQ(r.work[i].u, v.u);
        EXPECT_EQ(test::list.NormalsOf(&r).corners[i].y, v.ny);
    }
}

TEST(FaceListTest, TexturedFacesTakeTheirTexels) {
    test::ResetList();
    Vertex vertices[3] = {test::VertexAt(1, 2, 3), test::VertexAt(4, 5, 6),
                          test::VertexAt(7, 8, 9)};
    TexCoord texels[3] = {{10, 11}, {20, 21}, {30, 31}};
    Face face = {};
    face.active = FACE_LIVE;
    face.flags = FACE_TEXTURED;
    face.vertexArray = vertices;
    face.texCoordArray = texels;
    face.v1 = 1;
    face.v2 = 2;
    face.t0 = 2;
    face.t1 = 0;
    face.t2 = 1;
    ASSERT_EQ(FaceListAdd(&test::list, &face), 1);
    const RenderFace& r = test::list.records[0];
    EXPECT_EQ(r.work[0].u, 30.0F);
    EXPECT_EQ(r.work[0].v, 31.0F);
    EXPECT_EQ(r.work[1].u, 10.0F);
    EXPECT_EQ(r.work[2].v, 21.0F);
    EXPECT_EQ(vertices[0].u, 0.0F); // the mesh keeps its own
    // Untextured: whatever the vertex holds, and no texel array is needed.
    face.flags = 0;
    face.texCoordArray = nullptr;
    vertices[0].u = 0.5F;
    ASSERT_EQ(FaceListAdd(&test::list, &face), 1);
    EXPECT_EQ(test::list.records[1].work[0].u, 0.5F);
}

TEST(FaceListTest, RecordsStandInOrderOfAddition) {
    test::ResetList();
    const Vertex v = test::VertexAt(0, 0, 1);
    const RenderFace* a = test::AddFace(0, v, v, v);
    const RenderFace* b = test::AddFace(0, v, v, v);
    const RenderFace* c = FaceListAddCopy(&test::list, a);
    EXPECT_EQ(a, &test::list.records[0]);
    EXPECT_EQ(b, &test::list.records[1]);
    EXPECT_EQ(c, &test::list.records[2]);
    EXPECT_EQ(test::list.pointers[2], c);
}

TEST(FaceListTest, TheLastFaceIsNumber65536) {
    test::ResetList();
    const Vertex v = test::VertexAt(0, 0, 1);
    for (std::int32_t i = 0; i < 65536; ++i) {
        ASSERT_NE(test::AddFace(0, v, v, v), nullptr);
    }
    const RenderFace last = test::list.records[65535];
    EXPECT_EQ(test::AddFace(FACE_MATTE, v, v, v), nullptr);
    EXPECT_EQ(FaceListAddCopy(&test::list, &test::list.records[0]), nullptr);
    EXPECT_EQ(test::list.count, 65536);
    EXPECT_EQ(std::memcmp(&last, &test::list.records[65535], sizeof last), 0);
}

TEST(FaceListTest, AMeshStopsAtTheFullList) {
    test::ResetList();
    Vertex vertices[3] = {};
    Face faces[3] = {};
    for (Face& face : faces) {
        face.active = FACE_LIVE;
        face.v1 = 1;
        face.v2 = 2;
    }
    Mesh mesh = {};
    mesh.state = MESH_LIVE | MESH_DRAWABLE;
    mesh.vertices = vertices;
    mesh.faces = faces;
    mesh.faceCount = 3;
    test::list.count = 65534;
    EXPECT_EQ(MeshAddFaces(&test::list, &mesh, 1), 0);
    EXPECT_EQ(test::list.count, 65536);
    test::list.count = 65533;
    EXPECT_EQ(MeshAddFaces(&test::list, &mesh, 1), 1);
    test::ResetList();
}

TEST(FaceListTest, RecordsHaveTheirSizesInWords) {
    EXPECT_EQ(sizeof(Vertex), 48U);
    if (sizeof(void*) == 4) {
        EXPECT_EQ(sizeof(RenderFace), 96U * 4U);
        EXPECT_EQ(sizeof(Face), 17U * 4U);
    }
}

} // namespace
