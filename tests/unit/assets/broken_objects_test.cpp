// Object files that are cut, wrong or hostile: the load fails or leaves out what it cannot take,
// and every index and coordinate that stays in the mesh lies inside its array.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>

#include "assets/object_loader.h"

#include "asset_files.h"
#include "base/random15.h"

namespace ombrel {
namespace {

// What the pipeline and the fillers rely on, for a mesh from a load that went well or not.
void CheckMesh(const Mesh& mesh) {
    ASSERT_GE(mesh.vertexCount, 0);
    ASSERT_GE(mesh.faceCount, 0);
    ASSERT_LE(mesh.faceCount, 3 * mesh.vertexCount);
    if (mesh.vertexCount > 0) {
        ASSERT_NE(mesh.vertices, nullptr);
        ASSERT_NE(mesh.transformed, nullptr);
        ASSERT_NE(mesh.maxRadius, nullptr);
    }
    const Texture* texture = mesh.texture.single;
    if ((mesh.flags & MESH_MIPMAPPED) != 0) {
        texture = mesh.texture.chain[0];
    }
    for (std::int32_t i = 0; i < mesh.faceCount; ++i) {
        const Face& face = mesh.faces[i];
        ASSERT_EQ(face.vertexArray, mesh.vertices);
        ASSERT_EQ(face.texCoordArray, mesh.texCoords);
        for (const std::int32_t corner : {face.v0, face.v1, face.v2}) {
            ASSERT_GE(corner, 0);
            ASSERT_LT(corner, mesh.vertexCount);
        }
        for (const std::int32_t corner : {face.t0, face.t1, face.t2}) {
            ASSERT_GE(corner, 0);
            ASSERT_LT(corner, 9 * mesh.vertexCount);
            if ((face.flags & FACE_TEXTURED) != 0) {
                ASSERT_NE(texture, nullptr);
                ASSERT_GE(mesh.texCoords[corner].u, 0.0F);
                ASSERT_LE(mesh.texCoords[corner].u, static_cast<float>(texture->width - 1));
                ASSERT_GE(mesh.texCoords[corner].v, 0.0F);
                ASSERT_LE(mesh.texCoords[corner].v, static_cast<float>(texture->height - 1));
            }
        }
        ASSERT_LE(face.color >> 24, 7U);
    }
}

class BrokenObject : public DataFolderTest {
protected:
    // Loads, checks what stays, and returns the result.
    int Load(const std::string& text, std::int32_t mipMode = 0) {
        const std::int32_t baseBefore = materialBase;
        OwnedMesh mesh;
        const int result =
            loadObject(&mesh, Write("3d/broken.cob", text).c_str(), PlainRequest(0x708, mipMode));
        CheckMesh(mesh);
        if (result == 0) {
            EXPECT_EQ(materialBase, baseBefore);
        }
        EXPECT_GE(materialBase, baseBefore);
        EXPECT_LE(materialBase, kMaxMaterials);
        return result;
    }
    int Load(const CobFile& file) { return Load(file.Text()); }

    CobFile Rich() {
        Write("texture/wall.bmp", PlainBmp(8, 8, 0x336699));
        CobFile file;
        file.faces.push_back({"<1,1> <2,2> <3,3>", 1, 3});
        file.faces.push_back({"<3,3> <2,2> <0,0>", 2, 3});
        file.materials = {CobMaterial{}, CobMaterial{}, CobMaterial{}};
        file.materials[0].texture = "/wall.bmp";
        file.materials[1].number = 1;
        file.materials[1].transparency = "filter";
        file.materials[1].shading = "plastic";
        file.materials[2].number = 2;
        file.materials[2].texture = "/absent.bmp";
        return file;
    }
};

TEST_F(BrokenObject, NoFile) {
    OwnedMesh mesh;
    mesh.vertexCount = 5; // cleared all the same
    EXPECT_EQ(loadObject(&mesh, "./data/3d/absent.cob", PlainRequest()), 0);
    EXPECT_EQ(mesh.vertexCount, 0);
    EXPECT_EQ(mesh.flags, MESH_LOADED);
    EXPECT_EQ(mesh.state, 3U);
    EXPECT_EQ(mesh.copyCount, 1);
    EXPECT_EQ(loadObject(&mesh, "./data/3d", PlainRequest()), 0);
    EXPECT_EQ(loadObject(&mesh, nullptr, PlainRequest()), 0);
    EXPECT_EQ(loadObject(&mesh, "", PlainRequest()), 0);
    EXPECT_EQ(Load(""), 0);
    EXPECT_EQ(Load(std::string(5000, '\0')), 0);
    EXPECT_EQ(Load(std::string(100000, 'x')), 0);
    EXPECT_EQ(Load(PlainBmp(16, 16, 0x123456)), 0);
}

TEST_F(BrokenObject, CutAtEveryByte) {
    const std::string text = Rich().Text();
    // The file is whole once the last shading class can be read.
    const std::size_t whole = text.rfind("matte") + 1;
    for (std::size_t size = 0; size <= text.size(); ++size) {
        ResetMaterials();
        // A cut name is a name, and its closing quote may be missing: one letter is enough.
        EXPECT_EQ(Load(text.substr(0, size)), size >= whole ? 1 : 0) << size;
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_F(BrokenObject, EveryLineLeftOutOrDoubled) {
    const std::string text = Rich().Text();
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find('\n', start) + 1;
        ResetMaterials();
        Load(text.substr(0, start) + text.substr(end));
        ResetMaterials();
        Load(text.substr(0, end) + text.substr(start));
        ASSERT_FALSE(HasFatalFailure()) << text.substr(start, end - start);
        start = end;
    }
}

TEST_F(BrokenObject, CountsOutOfRange) {
    for (const char* const count : {"-1", "-2147483647", "2147483647", "99999999999", "100000",
                                    "8193", "1000000000", "5000"}) {
        CobFile file;
        file.vertexCount = count;
        EXPECT_EQ(Load(file), 0) << "vertices " << count;
        file = CobFile{};
        file.texCoordCount = count;
        EXPECT_EQ(Load(file), 0) << "texture vertices " << count;
        file = CobFile{};
        file.faceCount = count;
        EXPECT_EQ(Load(file), 0) << "faces " << count;
    }
    for (const char* const count : {"x", "", "4.0", "0x4", "-"}) {
        CobFile file;
        file.vertexCount = std::string(" ") + count;
        EXPECT_EQ(Load(file), 0) << count;
    }
}

TEST_F(BrokenObject, VertexCountTakesNoMemoryThatTheFileCannotFill) {
    CobFile file;
    file.vertexCount = "8000";
    const std::string path = Write("3d/huge.cob", file.Text());
    OwnedMesh mesh;
    EXPECT_EQ(loadObject(&mesh, path.c_str(), PlainRequest()), 0);
    EXPECT_EQ(mesh.vertices, nullptr);
    EXPECT_EQ(mesh.vertexCount, 0);
}

TEST_F(BrokenObject, LimitsThatStillLoad) {
    CobFile file;
    file.vertices.assign(kMaxMeshVertices, "1 2 3");
    file.texCoords.assign(9 * kMaxMeshVertices, "1 0");
    file.faces.assign(kMaxMeshFaces, {"<0,0> <1,1> <8191,73727>", 0, 3});
    EXPECT_EQ(Load(file), 1);
    file.vertices.push_back("1 2 3");
    EXPECT_EQ(Load(file), 0) << "a vertex too many";
    file.vertices.pop_back();
    file.texCoords.push_back("1 0");
    EXPECT_EQ(Load(file), 0) << "a texture vertex too many";
    file.texCoords.pop_back();
    file.faces.push_back(file.faces[0]);
    EXPECT_EQ(Load(file), 0) << "a face too many";
    CobFile small;
    small.vertices = {"0 0 0", "1 1 1"};
    small.faces.assign(6, {"<0,0> <1,1> <1,17>", 0, 3});
    EXPECT_EQ(Load(small), 1) << "three faces and nine texture vertices for each vertex";
    small.faces.push_back(small.faces[0]);
    EXPECT_EQ(Load(small), 0);
}

// Holes in the file, which take no room on the disk.
TEST_F(BrokenObject, LargerFilesThanAllowedAreNotRead) {
    const std::string path = Write("3d/long.cob", CobFile().Text());
    for (const auto& [size, result] : {std::pair<std::uintmax_t, int>{kMaxObjectFile, 1},
                                       {kMaxObjectFile + 1, 0},
                                       {std::uintmax_t{3} << 30, 0}}) {
        std::filesystem::resize_file(FindDataFile(path.c_str()), size);
        OwnedMesh mesh;
        EXPECT_EQ(loadObject(&mesh, path.c_str(), PlainRequest()), result) << size;
        EXPECT_EQ(mesh.vertices != nullptr, result == 1) << size;
    }
}

TEST_F(BrokenObject, ShortestVertexLinesAreNotRefused) {
    CobFile file;
    file.vertices.assign(200, "0 0 0");
    file.texCoords.clear();
    file.faces.clear();
    file.materials.clear();
    EXPECT_EQ(Load(file), 1);
}

// What was read before a load failed stays, though it were the end of the file that failed it.
TEST_F(BrokenObject, VerticesUpToTheLastByteAreRead) {
    CobFile file;
    file.vertices.assign(200, "0 0 0");
    const std::string whole = file.Text();
    const std::string cut = whole.substr(0, whole.find("\nTexture Vertices"));
    OwnedMesh mesh;
    EXPECT_EQ(loadObject(&mesh, Write("3d/cut.cob", cut).c_str(), PlainRequest()), 0);
    EXPECT_EQ(mesh.vertexCount, 200);
    ASSERT_NE(mesh.vertices, nullptr);
    EXPECT_NE(mesh.vertices[199].vflags & VERTEX_LOADED, 0U);
}

TEST_F(BrokenObject, CornersOutsideTheirArrays) {
    for (const char* const corners :
         {"<4,0> <1,1> <2,2>", "<0,0> <-1,1> <2,2>", "<0,0> <1,1> <2147483647,2>",
          "<0,36> <1,1> <2,2>", "<0,0> <1,-1> <2,2>", "<0,0> <1,1> <2,99999999999>"}) {
        CobFile file;
        file.faces[1].corners = corners;
        EXPECT_EQ(Load(file), 0) << corners;
        OwnedMesh mesh;
        EXPECT_EQ(loadObject(&mesh, Write("3d/c.cob", file.Text()).c_str(), PlainRequest()), 0);
        EXPECT_EQ(mesh.faceCount, 1) << "the face before stays";
    }
    CobFile file;
    file.faces[1].corners = "<0,35> <1,1> <2,2>";
    EXPECT_EQ(Load(file), 1) << "the array holds nine for each vertex";
}

TEST_F(BrokenObject, MaterialNumbers) {
    for (const int number : {-1, 256, 255, 1000000, INT32_MAX}) {
        CobFile file;
        file.faces[1].material = number;
        file.materials.push_back(file.materials[0]);
        file.materials[1].number = number;
        EXPECT_EQ(Load(file), 0) << "face " << number;
        CobFile block;
        block.materials[0].number = number;
        EXPECT_EQ(Load(block), 0) << "block " << number;
    }
    CobFile last;
    last.faces[1].material = 254;
    last.materials.push_back(last.materials[0]);
    last.materials[1].number = 254;
    EXPECT_EQ(Load(last), 1);
}

TEST_F(BrokenObject, FullMaterialTable) {
    CobFile file;
    file.faces[1].material = 1;
    file.materials.push_back(file.materials[0]);
    file.materials[1].number = 1;
    std::int32_t loads = 0;
    while (loads < 200 && Load(file) == 1) {
        ++loads;
    }
    EXPECT_EQ(loads, 127);
    EXPECT_EQ(materialBase, 254);
    EXPECT_EQ(Load(CobFile{}), 1) << "one record is left";
    EXPECT_EQ(Load(CobFile{}), 0);
    EXPECT_EQ(materialBase, 255);
    CobFile none;
    none.faces.clear();
    none.materials.clear();
    EXPECT_EQ(Load(none), 1) << "needs no record";
}

TEST_F(BrokenObject, WhatAFailedLoadLeftInTheTableDoesNoHarm) {
    // The first file fails after its texture map; its flags stay in record 0 of the table, and the
    // next object uses that record.
    CobFile file;
    file.materials[0].texture = "/absent.bmp";
    std::string text = file.Text();
    ASSERT_EQ(Load(text.substr(0, text.find("Shader class: transparency"))), 0);
    EXPECT_EQ(materials[0].flags, Material::MAT_TEXTURED);
    OwnedMesh mesh;
    EXPECT_EQ(loadObject(&mesh, Write("3d/n.cob", CobFile{}.Text()).c_str(), PlainRequest()), 1);
    EXPECT_EQ(mesh.faces[0].flags & FACE_TEXTURED, 0U);
    EXPECT_EQ(mesh.texture.single, nullptr);
}

TEST_F(BrokenObject, NumbersThatAreNone) {
    for (const char* const vertex : {"nan nan nan", "inf inf inf", "1e99 1e99 1e99", "- . e",
                                     "1e-40 1e-45 0", "0x1 0 0", "1,2,3"}) {
        CobFile file;
        file.vertices[3] = vertex;
        file.materials[0].shading = "plastic";
        Load(file); // some of these lines are skipped, so the file may end early
        ASSERT_FALSE(HasFatalFailure()) << vertex;
    }
    CobFile huge;
    huge.vertices[1] = "1e99 -1e99 1e38";
    huge.axes[0] = "1e38 1e38 1e38";
    huge.materials[0].rgb = "1e99,-1e99,1e38";
    huge.materials[0].alpha = "1e99";
    huge.materials[0].factors = "ka 1e38 ks -1e38 exp 1e99";
    EXPECT_EQ(Load(huge), 1);
}

TEST_F(BrokenObject, LongWordsAndLines) {
    CobFile file;
    file.name = std::string(3000, 'n');
    EXPECT_EQ(Load(file), 1);
    file.name = "a " + std::string(200, ' ') + "b";
    file.vertices[0] = std::string(500, '0') + "1 2 3"; // the word is cut to zeros
    EXPECT_EQ(Load(file), 1);
    file.materials[0].shading = std::string(200, 's');
    file.materials[0].transparency = std::string(200, 't');
    EXPECT_EQ(Load(file), 1);
}

TEST_F(BrokenObject, TextureFilesOfEveryKind) {
    CobFile file;
    file.materials[0].texture = "/wall.bmp";
    for (const std::string& bytes :
         {std::string(), std::string("BM"), std::string(54, 'B'), file.Text(),
          PlainBmp(8, 8, 0).substr(0, 100), BmpBytes({8, 8, 32, std::string(256, 'x')}),
          BmpBytes({8, -8, 24, std::string(192, 'x')}),
          BmpBytes({8, 8, 24, std::string(192, 'x'), 0})}) {
        Write("texture/wall.bmp", bytes);
        ResetMaterials();
        EXPECT_EQ(Load(file.Text()), 1);
        EXPECT_EQ(Load(file.Text(), 1), 1);
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST_F(BrokenObject, RandomDamage) {
    const std::string text = Rich().Text();
    SeedRandom15(4711);
    for (int round = 0; round < 3000; ++round) {
        std::string damaged = text;
        const int hits = 1 + Random15() % 4;
        for (int i = 0; i < hits; ++i) {
            const std::size_t at = static_cast<std::size_t>(Random15()) % damaged.size();
            switch (Random15() % 4) {
            case 0:
                damaged[at] = static_cast<char>(Random15());
                break;
            case 1:
                damaged.erase(at, static_cast<std::size_t>(Random15() % 20));
                break;
            case 2:
                damaged.insert(at, std::to_string(Random15() * 65537 - 1));
                break;
            default:
                damaged[at] = "0123456789-.<>,\"\n \0e"[Random15() % 20];
                break;
            }
        }
        ResetMaterials();
        Load(damaged, round & 1);
        ASSERT_FALSE(HasFatalFailure()) << damaged;
    }
    ResetRandom15();
}

TEST_F(BrokenObject, TheLargestObjectIsQuick) {
    CobFile file;
    file.vertices.assign(kMaxMeshVertices, "1.2345678 2.3456789 3.4567891");
    file.texCoords.assign(9 * kMaxMeshVertices, "0.12345678 0.23456789");
    file.faces.assign(kMaxMeshFaces, {"<0,0> <1,1> <8191,73727>", 0, 3});
    const std::string path = Write("3d/largest.cob", file.Text());
    OwnedMesh mesh;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(loadObject(&mesh, path.c_str(), PlainRequest()), 1);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_LT(taken.count(), 10.0); // about 0.07 s without sanitizers
    RecordProperty("seconds", std::to_string(taken.count()));
}

TEST_F(BrokenObject, LoadingIsLinear) {
    // Two megabytes of lines that look like what is searched for, and do not fit.
    std::string text = "Name cube\n";
    while (text.size() < 2000000) {
        text += "center 1 2 x center 1 2 x center 1 2 x center 1 2 x center 1 2 x center 1 2 x\n";
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Load(text), 0);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_LT(taken.count(), 10.0); // about 0.1 s without sanitizers
}

} // namespace
} // namespace ombrel
