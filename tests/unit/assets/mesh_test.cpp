// The object model: arrays, radii, face sizes, normals, record layouts.
#include "assets/mesh.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstring>

#include "asset_files.h"

namespace ombrel {
namespace {

template <class Record> bool AllZero(const Record* records, std::size_t count) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(records);
    for (std::size_t i = 0; i < count * sizeof(Record); ++i) {
        if (bytes[i] != 0) {
            return false;
        }
    }
    return true;
}

TEST(MeshRecords, LayoutInWords) {
    EXPECT_EQ(sizeof(Vertex), 12U * 4);
    EXPECT_EQ(sizeof(TexCoord), 2U * 4);
    EXPECT_EQ(offsetof(Vertex, nx), 4U * 4);
    EXPECT_EQ(offsetof(Vertex, u), 8U * 4);
    EXPECT_EQ(offsetof(Vertex, vflags), 11U * 4);
    EXPECT_EQ(sizeof(Material::textureName), 208U);
    EXPECT_EQ(sizeof(Material), 4U + 4 + 16 + 12 + 208);
    EXPECT_EQ(offsetof(Material, ambient), 24U);
    if (sizeof(void*) == 4) {
        EXPECT_EQ(sizeof(Face), 17U * 4);
        EXPECT_EQ(sizeof(Mesh), 44U * 4);
    }
}

TEST(MeshArrays, SizesAndPointers) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 5, 15, 2, false), 1);
    EXPECT_EQ(mesh.vertexCount, 5);
    EXPECT_EQ(mesh.copyCount, 2);
    EXPECT_EQ(mesh.slotCount, 10);
    EXPECT_EQ(mesh.faceCount, 15);
    EXPECT_EQ(mesh.curVertices, mesh.vertices);
    EXPECT_EQ(mesh.curTransformed, mesh.transformed);
    EXPECT_TRUE(AllZero(mesh.vertices, 10));
    EXPECT_TRUE(AllZero(mesh.transformed, 10));
    EXPECT_TRUE(AllZero(mesh.texCoords, 45));
    EXPECT_TRUE(AllZero(mesh.avgRadius, 2));
    EXPECT_TRUE(AllZero(mesh.maxRadius, 2));
    EXPECT_TRUE(AllZero(mesh.faces, 15));
}

TEST(MeshArrays, ReleaseFirstClearsTheRecord) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 5, 15, 1, false), 1);
    mesh.state = 7;
    mesh.position.x = 4.0F;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 2, 6, 1, true), 1);
    EXPECT_EQ(mesh.state, 0U);
    EXPECT_EQ(mesh.position.x, 0.0F);
    EXPECT_EQ(mesh.vertexCount, 2);
}

TEST(MeshArrays, ZeroFacesAndZeroVertices) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 0, 0, 1, false), 1);
    EXPECT_EQ(mesh.faceCount, 0);
    EXPECT_NE(mesh.faces, nullptr);
    EXPECT_EQ(ComputeMeshRadius(&mesh), 0.0F);
    EXPECT_TRUE(std::isnan(mesh.avgRadius[0]));
    EXPECT_EQ(mesh.maxRadius[0], 0.0F);
    EXPECT_EQ(ComputeFaceSizes(&mesh), 1);
    EXPECT_EQ(SmoothVertexNormals(&mesh), 1);
}

TEST(MeshArrays, AbsurdCountsFail) {
    OwnedMesh mesh;
    EXPECT_EQ(AllocateMeshArrays(&mesh, -1, 0, 1, false), 0);
    EXPECT_EQ(AllocateMeshArrays(&mesh, 1, -1, 1, false), 0);
    EXPECT_EQ(AllocateMeshArrays(&mesh, 1, 1, -1, false), 0);
    EXPECT_EQ(AllocateMeshArrays(&mesh, INT32_MAX, 0, INT32_MAX, false), 0);
    EXPECT_EQ(mesh.vertices, nullptr);
    EXPECT_EQ(mesh.vertexCount, 0);
}

TEST(MeshArrays, ReleaseClearsAndCanBeRepeated) {
    Mesh mesh = {};
    ASSERT_EQ(AllocateMeshArrays(&mesh, 3, 9, 1, false), 1);
    EXPECT_EQ(ReleaseMesh(&mesh), 1);
    EXPECT_TRUE(AllZero(&mesh, 1));
    EXPECT_EQ(ReleaseMesh(&mesh), 1);
}

TEST(MeshRadius, MeanAndMaximumOfTheCurrentCopy) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 2, 6, 2, false), 1);
    mesh.vertices[0] = {3.0F, 4.0F, 0.0F, 1.0F, 0, 0, 0, 0, 0, 0, 0, 0};
    mesh.vertices[1] = {0.0F, 0.0F, -1.0F, 1.0F, 0, 0, 0, 0, 0, 0, 0, 0};
    mesh.vertices[2] = {0.0F, 10.0F, 0.0F, 1.0F, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(ComputeMeshRadius(&mesh), 5.0F);
    EXPECT_EQ(mesh.avgRadius[0], 3.0F);
    EXPECT_EQ(mesh.maxRadius[0], 5.0F);
    EXPECT_EQ(mesh.maxRadius[1], 0.0F);
    mesh.currentCopy = 1;
    EXPECT_EQ(ComputeMeshRadius(&mesh), 10.0F);
    EXPECT_EQ(mesh.avgRadius[1], 5.0F);
    EXPECT_EQ(mesh.maxRadius[0], 5.0F);
}

TEST(MeshRadius, DistanceInDoublePrecision) {
    const ScopedFloatMode chop(FloatMode::Chop);
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 1, 3, 1, false), 1);
    // In single precision the squares overflow.
    mesh.vertices[0].x = 3.0e30F;
    mesh.vertices[0].y = 4.0e30F;
    const float radius = ComputeMeshRadius(&mesh);
    EXPECT_NEAR(static_cast<double>(radius), 5.0e30, 1.0e24);
    EXPECT_TRUE(std::isfinite(radius));
}

TEST(FaceSizes, TwiceTheArea) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 3, 2, 1, false), 1);
    mesh.vertices[1].x = 3.0F;
    mesh.vertices[2].y = 4.0F;
    mesh.faces[0].v1 = 1;
    mesh.faces[0].v2 = 2;
    EXPECT_EQ(ComputeFaceSizes(&mesh), 1);
    EXPECT_EQ(mesh.faces[0].size, 12.0F);
    EXPECT_EQ(mesh.faces[1].size, 0.0F) << "three times the same corner";
    EXPECT_EQ(ComputeFaceSizes(nullptr), 0);
}

TEST(SmoothNormals, OnlyPlasticFacesWeighedByArea) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 5, 3, 1, false), 1);
    // Two plastic faces that share vertices 0 and 1: one in the plane z = 0 with cross product
    // (0, 0, 3), one in the plane y = 0 with (0, -4, 0); one matte face.
    mesh.vertices[1].x = 1.0F;
    mesh.vertices[2].y = 3.0F;
    mesh.vertices[3].z = 4.0F;
    mesh.vertices[4].x = 9.0F;
    mesh.faces[0].flags = FACE_PLASTIC;
    mesh.faces[0].v1 = 1;
    mesh.faces[0].v2 = 2;
    mesh.faces[1].flags = FACE_PLASTIC;
    mesh.faces[1].v1 = 1;
    mesh.faces[1].v2 = 3;
    mesh.faces[2].flags = FACE_MATTE;
    mesh.faces[2].v0 = 4;
    mesh.faces[2].v1 = 2;
    mesh.faces[2].v2 = 3;
    EXPECT_EQ(SmoothVertexNormals(&mesh), 1);
    EXPECT_EQ(mesh.vertices[2].nx, 0.0F);
    EXPECT_EQ(mesh.vertices[2].ny, 0.0F);
    EXPECT_FLOAT_EQ(mesh.vertices[2].nz, 1.0F);
    EXPECT_FLOAT_EQ(mesh.vertices[3].ny, -1.0F);
    EXPECT_FLOAT_EQ(mesh.vertices[0].ny, -0.8F);
    EXPECT_FLOAT_EQ(mesh.vertices[0].nz, 0.6F);
    EXPECT_EQ(mesh.vertices[0].ny, mesh.vertices[1].ny);
    EXPECT_EQ(mesh.vertices[4].nx, 0.0F);
    EXPECT_EQ(mesh.vertices[4].ny, 0.0F);
    EXPECT_EQ(mesh.vertices[4].nz, 0.0F);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(mesh.vertices[i].nw, 0.0F);
    }
    EXPECT_EQ(SmoothVertexNormals(nullptr), 0);
}

TEST(SmoothNormals, TooShortToNormaliseStays) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, 3, 1, 1, false), 1);
    mesh.vertices[1].x = 0.001F;
    mesh.vertices[2].y = 0.001F;
    mesh.faces[0].flags = FACE_PLASTIC;
    mesh.faces[0].v1 = 1;
    mesh.faces[0].v2 = 2;
    EXPECT_EQ(SmoothVertexNormals(&mesh), 1);
    EXPECT_FLOAT_EQ(mesh.vertices[0].nz, 1.0e-6F);
}

TEST(SmoothNormals, MoreVerticesThanTheTableHolds) {
    OwnedMesh mesh;
    ASSERT_EQ(AllocateMeshArrays(&mesh, kMaxMeshVertices + 2, 1, 1, false), 1);
    mesh.vertices[kMaxMeshVertices].x = 1.0F;
    mesh.vertices[1].y = 1.0F;
    mesh.faces[0].flags = FACE_PLASTIC;
    mesh.faces[0].v1 = kMaxMeshVertices;
    mesh.faces[0].v2 = 1;
    EXPECT_EQ(SmoothVertexNormals(&mesh), 1);
    EXPECT_EQ(mesh.vertices[0].nz, 1.0F);
    EXPECT_EQ(mesh.vertices[kMaxMeshVertices].nz, 0.0F) << "beyond the table: no normal";
}

TEST(Materials, ResetClearsTheTable) {
    materials[254].flags = Material::MAT_MATTE;
    materials[0].textureName[0] = 'x';
    materialBase = 9;
    ResetMaterials();
    EXPECT_TRUE(AllZero(materials, kMaxMaterials));
    EXPECT_EQ(materialBase, 0);
}

} // namespace
} // namespace ombrel
