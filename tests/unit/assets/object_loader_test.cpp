// The object loader: what a good file gives, option by option and field by field.
#include "assets/object_loader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "asset_files.h"

namespace ombrel {
namespace {

struct Triple {
    float x, y, z;
    bool operator==(const Triple&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Triple& t) {
    return out << t.x << " " << t.y << " " << t.z;
}

Triple PositionOf(const Mesh& mesh, std::int32_t i) {
    return {mesh.vertices[i].x, mesh.vertices[i].y, mesh.vertices[i].z};
}

using Bytes4 = std::vector<int>;
Bytes4 BytesOf(const std::uint8_t (&bytes)[4]) {
    return {bytes[0], bytes[1], bytes[2], bytes[3]};
}

class ObjectLoader : public DataFolderTest {
protected:
    int LoadText(Mesh* mesh, const std::string& text, const LoadRequest& request = PlainRequest()) {
        return loadObject(mesh, Write("3d/object.cob", text).c_str(), request);
    }
    int Load(Mesh* mesh, const CobFile& file, const LoadRequest& request = PlainRequest()) {
        return LoadText(mesh, file.Text(), request);
    }
    // The corners as one vertex each: position after the options.
    Triple Place(const std::string& vertex, std::uint32_t options, CobFile file = {}) {
        file.vertices[0] = vertex;
        OwnedMesh mesh;
        EXPECT_EQ(Load(&mesh, file, PlainRequest(options)), 1);
        return PositionOf(mesh, 0);
    }
    // A file with a texture-map material and that texture, of one colour.
    CobFile Textured(std::int32_t width, std::int32_t height) {
        Write("texture/wall.bmp", PlainBmp(width, height, 0x00FF00));
        CobFile file;
        file.materials[0].texture = ".\\wall.bmp";
        return file;
    }

    OwnedMesh mesh_;
};

// --- the whole record --------------------------------------------------------------------------

TEST_F(ObjectLoader, FillsTheMesh) {
    ASSERT_EQ(Load(&mesh_, CobFile{}), 1);
    EXPECT_EQ(mesh_.flags, MESH_LOADED);
    EXPECT_EQ(mesh_.state, MESH_LIVE | MESH_DRAWABLE);
    EXPECT_EQ(mesh_.vertexCount, 4);
    EXPECT_EQ(mesh_.copyCount, 1);
    EXPECT_EQ(mesh_.slotCount, 4);
    EXPECT_EQ(mesh_.currentCopy, 0);
    EXPECT_EQ(mesh_.faceCount, 2);
    EXPECT_EQ(mesh_.curVertices, mesh_.vertices);
    EXPECT_EQ(mesh_.curTransformed, mesh_.transformed);
    EXPECT_EQ(mesh_.texture.single, nullptr);
    EXPECT_EQ(mesh_.position.x, 0.0F);
    EXPECT_EQ(mesh_.position.w, 1.0F);
    EXPECT_EQ(PositionOf(mesh_, 2), (Triple{1, 1, 0}));
    EXPECT_EQ(mesh_.vertices[2].w, 1.0F);
    EXPECT_EQ(mesh_.vertices[2].vflags, VERTEX_LOADED);
    EXPECT_EQ(mesh_.transformed[2].w, 0.0F);
    EXPECT_EQ(mesh_.texCoords[2].u, 1.0F) << "no texture: as in the file";
    EXPECT_FLOAT_EQ(mesh_.maxRadius[0], std::sqrt(2.0F));
    EXPECT_EQ(materialBase, 1);
    const Face& face = mesh_.faces[1];
    EXPECT_EQ(face.active, FACE_LIVE);
    EXPECT_EQ(face.flags, FACE_LOADED | FACE_MATTE | FACE_FLATCOLOR16);
    EXPECT_EQ(face.vertexArray, mesh_.vertices);
    EXPECT_EQ(face.texCoordArray, mesh_.texCoords);
    EXPECT_EQ(face.v0, 0);
    EXPECT_EQ(face.v1, 2);
    EXPECT_EQ(face.v2, 3);
    EXPECT_EQ(face.size, 1.0F);
    EXPECT_EQ(face.litColors[0] | face.litColors[1] | face.litColors[2], 0U);
    EXPECT_EQ(face.texture.single, nullptr);
}

TEST_F(ObjectLoader, PositionAndScaleFromTheCaller) {
    const Vec3 position = {1.0F, 2.0F, 3.0F, 4.0F};
    const float scale[3] = {2.0F, 3.0F, 4.0F};
    CobFile file;
    file.vertices[0] = "5 6 7";
    ASSERT_EQ(Load(&mesh_, file, {scale, &position, 0, 0}), 1);
    EXPECT_EQ(mesh_.position.x, 1.0F);
    EXPECT_EQ(mesh_.position.z, 3.0F);
    EXPECT_EQ(mesh_.position.w, 4.0F);
    EXPECT_EQ(PositionOf(mesh_, 0), (Triple{10, 18, 28}));
    for (const Vec3& axis : mesh_.axes) {
        EXPECT_EQ(axis.x, 0.0F);
        EXPECT_EQ(axis.w, 0.0F);
    }
}

TEST_F(ObjectLoader, ScaleComesAfterTheSwap) {
    const float scale[3] = {2.0F, 3.0F, 4.0F};
    CobFile file;
    file.vertices[0] = "5 6 7";
    ASSERT_EQ(Load(&mesh_, file, {scale, nullptr, LOAD_SWAP_YZ, 0}), 1);
    EXPECT_EQ(PositionOf(mesh_, 0), (Triple{10, 21, 24}));
}

TEST_F(ObjectLoader, VertexOptions) {
    EXPECT_EQ(Place("1 2 3", 0), (Triple{1, 2, 3}));
    EXPECT_EQ(Place("1 2 3", LOAD_NEGATE_X), (Triple{-1, 2, 3}));
    EXPECT_EQ(Place("1 2 3", LOAD_NEGATE_Y), (Triple{1, -2, 3}));
    EXPECT_EQ(Place("1 2 3", LOAD_NEGATE_Z), (Triple{1, 2, -3}));
    EXPECT_EQ(Place("1 2 3", LOAD_SWAP_YZ), (Triple{1, 3, 2}));
    EXPECT_EQ(Place("1 2 3", LOAD_SWAP_XZ), (Triple{3, 2, 1}));
    EXPECT_EQ(Place("1 2 3", LOAD_SWAP_XY), (Triple{2, 1, 3}));
    // Negation first, then y and z, x and z, x and y.
    EXPECT_EQ(Place("1 2 3", LOAD_NEGATE_X | LOAD_SWAP_XZ), (Triple{3, 2, -1}));
    EXPECT_EQ(Place("1 2 3", LOAD_SWAP_YZ | LOAD_SWAP_XZ), (Triple{2, 3, 1}));
    EXPECT_EQ(Place("1 2 3", LOAD_SWAP_YZ | LOAD_SWAP_XZ | LOAD_SWAP_XY), (Triple{3, 2, 1}));
}

TEST_F(ObjectLoader, ObjectFrame) {
    CobFile file;
    file.center = "10 20 30";
    EXPECT_EQ(Place("1 2 3", LOAD_OBJECT_FRAME, file), (Triple{-9, -18, -27}));
    EXPECT_EQ(Place("1 2 3", LOAD_TRANSFORM, file), (Triple{1, 2, 3}));
    // Each axis is a column: x' = v . (x axis).
    file.center = "0 0 0";
    file.axes[0] = "1 2 3";
    file.axes[1] = "4 5 6";
    file.axes[2] = "7 8 10";
    EXPECT_EQ(Place("1 10 100", LOAD_OBJECT_FRAME, file), (Triple{321, 654, 1087}));
    // The centre is taken off after the axes.
    file.center = "1 1 1";
    EXPECT_EQ(Place("1 10 100", LOAD_OBJECT_FRAME, file), (Triple{320, 653, 1086}));
}

TEST_F(ObjectLoader, TransformRowsAreColumnsWithoutTranslation) {
    CobFile file;
    file.transform[0] = "1 2 3 1000";
    file.transform[1] = "4 5 6 1000";
    file.transform[2] = "7 8 10 1000";
    file.transform[3] = "9 9 9 9";
    EXPECT_EQ(Place("1 10 100", LOAD_TRANSFORM, file), (Triple{321, 654, 1087}));
    EXPECT_EQ(Place("1 10 100", 0, file), (Triple{1, 10, 100}));
}

TEST_F(ObjectLoader, FrameComesBeforeTransform) {
    CobFile file;
    file.center = "1 0 0";
    file.transform[0] = "2 0 0 0";
    EXPECT_EQ(Place("5 0 0", LOAD_OBJECT_FRAME | LOAD_TRANSFORM, file), (Triple{8, 0, 0}));
}

// --- faces -------------------------------------------------------------------------------------

TEST_F(ObjectLoader, CornersInOrderAndReversed) {
    CobFile file;
    file.faces = {{"<0,0> <1,1> <2,2>", 0, 3}, {"<3,5> <1,0> <2,4>", 0, 3}};
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.faces[0].v0, 0);
    EXPECT_EQ(mesh_.faces[0].v1, 1);
    EXPECT_EQ(mesh_.faces[0].v2, 2);
    EXPECT_EQ(mesh_.faces[0].t0, 0);
    EXPECT_EQ(mesh_.faces[0].t1, 1);
    EXPECT_EQ(mesh_.faces[0].t2, 2);
    OwnedMesh reversed;
    ASSERT_EQ(Load(&reversed, file, PlainRequest(LOAD_REVERSE_CORNERS)), 1);
    EXPECT_EQ(reversed.faces[0].v0, 2);
    EXPECT_EQ(reversed.faces[0].v1, 1);
    EXPECT_EQ(reversed.faces[0].v2, 0);
    EXPECT_EQ(reversed.faces[0].t0, 2);
    EXPECT_EQ(reversed.faces[0].t1, 1);
    EXPECT_EQ(reversed.faces[0].t2, 0);
    EXPECT_EQ(reversed.faces[1].v0, 2);
    EXPECT_EQ(reversed.faces[1].t0, 4);
    EXPECT_EQ(reversed.faces[1].v2, 3);
    EXPECT_EQ(reversed.faces[1].t2, 5);
}

TEST_F(ObjectLoader, FourCornersFailAndKeepTheVertices) {
    CobFile file;
    file.faces[0] = {"<0,0> <1,1> <2,2> <3,3>", 0, 4};
    EXPECT_EQ(Load(&mesh_, file), 0);
    EXPECT_EQ(mesh_.vertexCount, 4);
    EXPECT_EQ(PositionOf(mesh_, 2), (Triple{1, 1, 0}));
    EXPECT_EQ(mesh_.faceCount, 0) << "the faces filled so far";
    EXPECT_EQ(mesh_.flags, MESH_LOADED);
    EXPECT_EQ(materialBase, 0);
    file.faces[0].count = 2;
    OwnedMesh other;
    EXPECT_EQ(Load(&other, file), 0);
}

TEST_F(ObjectLoader, ZeroFacesStillLoad) {
    CobFile file;
    file.faces.clear();
    file.materials.clear();
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.faceCount, 0);
    EXPECT_NE(mesh_.faces, nullptr);
    EXPECT_EQ(materialBase, 0);
}

TEST_F(ObjectLoader, NothingAtAllStillLoads) {
    CobFile file;
    file.vertices.clear();
    file.texCoords.clear();
    file.faces.clear();
    file.materials.clear();
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.vertexCount, 0);
    EXPECT_EQ(mesh_.maxRadius[0], 0.0F);
    EXPECT_TRUE(std::isnan(mesh_.avgRadius[0]));
}

TEST_F(ObjectLoader, FaceSizesAndSmoothNormals) {
    CobFile file;
    file.vertices = {"0 0 0", "3 0 0", "0 4 0", "9 9 9"};
    file.faces = {{"<0,0> <1,0> <2,0>", 0, 3}, {"<0,0> <1,0> <3,0>", 1, 3}};
    file.materials = {CobMaterial{}, CobMaterial{}};
    file.materials[0].shading = "plastic";
    file.materials[1].number = 1;
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.faces[0].size, 12.0F);
    EXPECT_NEAR(mesh_.vertices[0].nz, 1.0F, 1e-6F);
    EXPECT_EQ(mesh_.vertices[0].nx, 0.0F);
    EXPECT_EQ(mesh_.vertices[0].vflags, VERTEX_LOADED | VERTEX_HAS_NORMAL);
    EXPECT_EQ(mesh_.vertices[3].nz, 0.0F);
    EXPECT_EQ(mesh_.vertices[3].vflags, VERTEX_LOADED);
}

TEST_F(ObjectLoader, OtherLinesBlanksAndLineEndsBetween) {
    std::string text = CobFile{}.Text();
    std::string loose;
    for (const char c : text) {
        loose += c == '\n' ? std::string(" \r\n\r\n   \n") : std::string(1, c);
    }
    ASSERT_EQ(LoadText(&mesh_, loose), 1);
    EXPECT_EQ(mesh_.faceCount, 2);
    OwnedMesh other;
    const std::size_t at = text.find("World");
    ASSERT_EQ(LoadText(&other, text.substr(0, at) + "some words\nWorlds\n" + text.substr(at)), 1);
    OwnedMesh tabs;
    const std::size_t face = text.find("<0,0>");
    text.replace(face, 17, "< 0 , 0 >\t<1,1><2,2>  ");
    ASSERT_EQ(LoadText(&tabs, text), 1);
    EXPECT_EQ(tabs.faces[0].v1, 1);
}

TEST_F(ObjectLoader, TheExampleOfTheDocumentation) {
    std::ifstream file(std::string(OMBREL_SOURCE_DIR) + "/docs/data-formats.md");
    const std::string page((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    const std::size_t start = page.find("```\nName tile\n");
    ASSERT_NE(start, std::string::npos);
    const std::size_t end = page.find("```", start + 4);
    Write("texture/tile.bmp", PlainBmp(16, 16, 0xFF0000));
    ASSERT_EQ(LoadText(&mesh_, page.substr(start + 4, end - start - 4), PlainRequest(0x610)), 1);
    EXPECT_EQ(mesh_.faceCount, 1);
    EXPECT_EQ(mesh_.texture.single->width, 16);
    EXPECT_EQ(mesh_.faces[0].flags,
              FACE_TEXTURED | FACE_MATTE | FACE_TRANSPARENT | FACE_LOADED | FACE_FLATCOLOR16);
    EXPECT_EQ(mesh_.faces[0].color, 0x0400FFFFU);
    EXPECT_EQ(PositionOf(mesh_, 2), (Triple{0, 0, 4}));
    EXPECT_EQ(mesh_.texCoords[1].v, 15.0F);
}

// --- lines that are taken as they come -----------------------------------------------------------

TEST_F(ObjectLoader, R17_LinesThatDoNotFitLeaveTheNumbersBefore) {
    // The z axis is no such line: the numbers of the y axis are used again.
    std::string text = CobFile{}.Text();
    text.replace(text.find("z axis 0 0 1"), 12, "z-axis 7 8 9");
    text.replace(text.find("World Vertices 4\n0 0 0"), 22, "World Vertices 4\n1 2 3");
    ASSERT_EQ(LoadText(&mesh_, text, PlainRequest(LOAD_OBJECT_FRAME)), 1);
    EXPECT_EQ(PositionOf(mesh_, 0), (Triple{1, 2, 2}));
    // A corner line that does not fit: the integers before, the first of them replaced by what the
    // line gave. Face line 3 0 0, corners of the face before 0 0 1 1 2 2.
    CobFile file;
    file.faces[1].corners = "<1,x> <2,2> <3,3>";
    OwnedMesh other;
    ASSERT_EQ(Load(&other, file), 1);
    // The attempts keep 1; then 2 2 3 3: fewer than six, so no match.
    EXPECT_EQ(other.faces[1].v0, 1);
    EXPECT_EQ(other.faces[1].t0, 2);
    EXPECT_EQ(other.faces[1].v1, 2);
    EXPECT_EQ(other.faces[1].t1, 3);
    EXPECT_EQ(other.faces[1].v2, 3);
    EXPECT_EQ(other.faces[1].t2, 2) << "from the face before";
}

// --- materials ---------------------------------------------------------------------------------

TEST_F(ObjectLoader, ColorBytes) {
    CobFile file;
    file.materials[0].rgb = "1,0.5,0";
    file.materials[0].alpha = "0.25";
    file.materials[0].transparency = "other";
    ASSERT_EQ(Load(&mesh_, file), 1);
    // level (alpha), blue, green, red
    EXPECT_EQ(BytesOf(materials[0].color), (Bytes4{64, 0, 128, 255}));
    EXPECT_EQ(mesh_.faces[0].color, static_cast<std::uint32_t>(31 << 11 | 32 << 5 | 0));
}

TEST_F(ObjectLoader, ColorBytesKeepTheirLowEightBits) {
    CobFile file;
    file.materials[0].rgb = "2,-1,1e30"; // 510.5; -254.5; out of range
    file.materials[0].alpha = "-0.5";    // -127
    file.materials[0].transparency = "other";
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(BytesOf(materials[0].color), (Bytes4{0x81, 0, 2, 0xFE}));
}

TEST_F(ObjectLoader, ColorsAreCutNotRounded) {
    CobFile file;
    file.materials[0].rgb = "0.0999,0.1001,0.998"; // 25.97 26.03 254.99
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(materials[0].color[3], 25);
    EXPECT_EQ(materials[0].color[2], 26);
    EXPECT_EQ(materials[0].color[1], 254);
}

TEST_F(ObjectLoader, R19_DerivedColorsLeaveOutRed) {
    CobFile file;
    file.materials[0].rgb = "1,0.5,0.2"; // 255 128 51
    file.materials[0].alpha = "1";
    file.materials[0].factors = "ka 0.5 ks 0.25 exp 7.5";
    ASSERT_EQ(Load(&mesh_, file), 1);
    const Material& m = materials[0];
    EXPECT_EQ(m.ka, 0.5F);
    EXPECT_EQ(m.kd, 1.0F);
    EXPECT_EQ(m.ks, 0.25F);
    EXPECT_EQ(m.exponent, 7.5F);
    // of level 255, blue 51, green 128
    EXPECT_EQ(BytesOf(m.ambient), (Bytes4{128, 26, 64, 0}));
    EXPECT_EQ(BytesOf(m.diffuse), (Bytes4{255, 51, 128, 0}));
    EXPECT_EQ(BytesOf(m.specular), (Bytes4{64, 13, 32, 0}));
    EXPECT_EQ(m.color[0], 0) << "none: level 0 afterwards";
}

TEST_F(ObjectLoader, FilterLevels) {
    struct Case {
        const char* filter;
        int level;
    };
    for (const Case& c : {Case{"(255, 0, 0)", 7}, Case{"(128, 128, 128)", 4}, Case{"(0, 0, 0)", 0},
                          Case{"(18, 0, 0)", 0}, Case{"(0, 19, 0)", 1}, Case{"(0, 0, 236)", 6},
                          Case{"(237, 0, 0)", 7}, Case{"(300, 0, 0)", 7}, Case{"(9999, 0, 0)", 7},
                          Case{"(-1000, -1000, -1000)", 7}, Case{"(2147483647, 0, 0)", 7}}) {
        CobFile file;
        file.materials[0].transparency = "filter";
        file.materials[0].filter = std::string("colour: color ") + c.filter;
        OwnedMesh mesh;
        ResetMaterials();
        ASSERT_EQ(Load(&mesh, file), 1) << c.filter;
        EXPECT_EQ(materials[0].color[0], c.level) << c.filter;
        EXPECT_EQ(materials[0].flags, Material::MAT_FILTER | Material::MAT_MATTE);
        EXPECT_EQ(mesh.faces[0].color >> 24, static_cast<std::uint32_t>(c.level)) << c.filter;
        EXPECT_EQ(mesh.faces[0].flags & FACE_TRANSPARENT, FACE_TRANSPARENT);
    }
}

TEST_F(ObjectLoader, OtherTransparencyLeavesLevelAtAlpha) {
    CobFile file;
    file.materials[0].alpha = "0.5";
    file.materials[0].transparency = "glass";
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(materials[0].color[0], 128);
    EXPECT_EQ(mesh_.faces[0].flags & FACE_TRANSPARENT, 0U);
    EXPECT_EQ(mesh_.faces[0].color >> 24, 0U);
}

TEST_F(ObjectLoader, ALevelAboveSevenNeverReachesAFace) {
    // Two blocks of one number: the filter of the first stays, the alpha of the second is its
    // level.
    CobFile file;
    file.faces[1].material = 1;
    file.materials = {CobMaterial{}, CobMaterial{}};
    file.materials[0].transparency = "filter";
    file.materials[1].transparency = "glass";
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(materials[0].color[0], 255);
    EXPECT_EQ(mesh_.faces[0].color >> 24, 7U);
}

TEST_F(ObjectLoader, ShadingClasses) {
    struct Case {
        const char* word;
        std::uint32_t material, face, vertex;
    };
    for (const Case& c : {Case{"constant", Material::MAT_CONSTANT, FACE_CONSTANT, 0},
                          Case{"matte", Material::MAT_MATTE, FACE_MATTE, 0},
                          Case{"plastic", Material::MAT_PLASTIC, FACE_PLASTIC, VERTEX_HAS_NORMAL},
                          Case{"phong", Material::MAT_PHONG, FACE_PHONG, VERTEX_HAS_NORMAL},
                          Case{"metal", Material::MAT_MATTE, FACE_MATTE, 0},
                          Case{"Plastic", Material::MAT_MATTE, FACE_MATTE, 0}}) {
        CobFile file;
        file.materials[0].shading = c.word;
        OwnedMesh mesh;
        ResetMaterials();
        ASSERT_EQ(Load(&mesh, file), 1);
        EXPECT_EQ(materials[0].flags, c.material) << c.word;
        EXPECT_EQ(mesh.faces[0].flags, c.face | FACE_LOADED | FACE_FLATCOLOR16) << c.word;
        EXPECT_EQ(mesh.vertices[0].vflags, VERTEX_LOADED | c.vertex) << c.word;
    }
}

TEST_F(ObjectLoader, ClassesOfOneMaterialInOrder) {
    // What an earlier object left in a record of the table: constant wins over matte over plastic
    // over phong.
    struct Case {
        std::uint32_t left, face;
    };
    for (const Case& c :
         {Case{Material::MAT_CONSTANT, FACE_CONSTANT}, Case{Material::MAT_MATTE, FACE_MATTE},
          Case{Material::MAT_PLASTIC, FACE_PLASTIC}, Case{Material::MAT_PHONG, FACE_PHONG}}) {
        ResetMaterials();
        materials[0].flags = c.left;
        CobFile file;
        file.materials[0].shading = "phong";
        OwnedMesh mesh;
        ASSERT_EQ(Load(&mesh, file), 1);
        EXPECT_EQ(mesh.faces[0].flags & 0x1E0, c.face);
    }
}

TEST_F(ObjectLoader, R20_PlasticGoesToThePlaceNotTheNumber) {
    CobFile file;
    file.faces[1].material = 1;
    file.materials = {CobMaterial{}, CobMaterial{}};
    file.materials[0].number = 1;
    file.materials[0].rgb = "1,0,0";
    file.materials[0].shading = "plastic";
    file.materials[1].number = 0;
    file.materials[1].rgb = "0,1,0";
    file.materials[1].shading = "constant";
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(materials[1].color[3], 255) << "colour by number";
    EXPECT_EQ(materials[0].color[2], 255);
    EXPECT_EQ(materials[0].flags, Material::MAT_PLASTIC | Material::MAT_CONSTANT)
        << "plastic by place";
    EXPECT_EQ(materials[1].flags, 0U);
    EXPECT_EQ(mesh_.faces[1].flags & 0x1E0, FACE_MATTE) << "no class at all is matte";
}

TEST_F(ObjectLoader, R21_MaterialBaseGrowsByTheCount) {
    CobFile file;
    file.faces[1].material = 1;
    file.materials = {CobMaterial{}, CobMaterial{}};
    file.materials[1].number = 1;
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(materialBase, 2);
    // A second object with the same numbers has records of its own.
    file.materials[0].rgb = "1,1,1";
    file.materials[1].rgb = "0,0,1";
    OwnedMesh second;
    ASSERT_EQ(Load(&second, file), 1);
    EXPECT_EQ(materialBase, 4);
    EXPECT_EQ(materials[2].color[3], 255);
    EXPECT_EQ(materials[3].color[1], 255);
    EXPECT_EQ(materials[0].color[3], 51);
    EXPECT_EQ(second.faces[0].color, 0xFFFFU);
    EXPECT_EQ(second.faces[1].color, 0x001FU);
    // Numbers 0 and 9 are two distinct numbers.
    file.faces[1].material = 9;
    file.materials[1].number = 9;
    OwnedMesh third;
    ASSERT_EQ(Load(&third, file), 1);
    EXPECT_EQ(materialBase, 6);
    EXPECT_EQ(materials[13].color[1], 255);
}

TEST_F(ObjectLoader, FlatColorOnlyAtSixteenBits) {
    LoadRequest request = PlainRequest();
    request.format.bitsPerPixel = 32;
    CobFile file;
    file.materials[0].transparency = "filter";
    ASSERT_EQ(Load(&mesh_, file, request), 1);
    EXPECT_EQ(mesh_.faces[0].color, 7U << 24);
    EXPECT_EQ(mesh_.faces[0].flags & FACE_FLATCOLOR16, 0U);
}

TEST_F(ObjectLoader, ThePackerOfTheDisplayIsUsed) {
    LoadRequest request = PlainRequest();
    request.format.pack = PackRgb555;
    CobFile file;
    file.materials[0].rgb = "1,0,0";
    ASSERT_EQ(Load(&mesh_, file, request), 1);
    EXPECT_EQ(mesh_.faces[0].color, 0x7C00U);
}

// --- textures ----------------------------------------------------------------------------------

TEST_F(ObjectLoader, TextureIsLoadedAndFacesAreWhite) {
    ASSERT_EQ(Load(&mesh_, Textured(8, 8)), 1);
    EXPECT_EQ(mesh_.flags, MESH_LOADED | MESH_TEXTURED);
    const Texture* const texture = mesh_.texture.single;
    ASSERT_NE(texture, nullptr);
    EXPECT_EQ(texture->width, 8);
    EXPECT_EQ(texture->height, 8);
    EXPECT_EQ(texture->bitsPerPixel, 16);
    EXPECT_EQ(texture->originX, 0);
    EXPECT_EQ(texture->texFlags, TEX_FILLED);
    EXPECT_EQ(static_cast<const Pixel16*>(texture->pixels)[63], 0x07E0);
    EXPECT_EQ(mesh_.faces[0].texture.single, texture);
    EXPECT_EQ(mesh_.faces[0].flags, FACE_TEXTURED | FACE_MATTE | FACE_LOADED | FACE_FLATCOLOR16);
    EXPECT_EQ(mesh_.faces[0].color, 0xFFFFU) << "whatever rgb says";
    EXPECT_EQ(mesh_.vertices[0].vflags, VERTEX_LOADED | VERTEX_TEXTURED);
    EXPECT_EQ(materials[0].flags, Material::MAT_TEXTURED | Material::MAT_MATTE);
    EXPECT_STREQ(materials[0].textureName, " .\\wall.bmp ");
    EXPECT_EQ(loaderImage.pixels, nullptr);
}

TEST_F(ObjectLoader, R22_TextureCoordinatesScaleByTheWidth) {
    CobFile file = Textured(256, 256);
    file.texCoords = {"0.5 1.0", "0.25 0", "0 0", "1 1"};
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.texCoords[0].u, 127.5F);
    EXPECT_EQ(mesh_.texCoords[0].v, 255.0F);
    OwnedMesh mirrored;
    ASSERT_EQ(Load(&mirrored, file, PlainRequest(LOAD_MIRROR_U)), 1);
    EXPECT_EQ(mirrored.texCoords[0].u, 127.5F);
    EXPECT_EQ(mirrored.texCoords[0].v, 255.0F);
    EXPECT_EQ(mirrored.texCoords[1].u, 191.25F);
    OwnedMesh mirroredV;
    ASSERT_EQ(Load(&mirroredV, file, PlainRequest(LOAD_MIRROR_V)), 1);
    EXPECT_EQ(mirroredV.texCoords[0].v, 0.0F);
    EXPECT_EQ(mirroredV.texCoords[1].v, 255.0F);
    OwnedMesh swapped;
    ASSERT_EQ(Load(&swapped, file, PlainRequest(LOAD_SWAP_UV | LOAD_MIRROR_U)), 1);
    EXPECT_EQ(swapped.texCoords[1].u, 0.0F) << "mirrored first, then swapped";
    EXPECT_EQ(swapped.texCoords[1].v, 191.25F);
    // A texture that is not square: v by the width as well, then no further than the last row.
    Write("texture/wall.bmp", PlainBmp(16, 8, 0));
    OwnedMesh flat;
    ASSERT_EQ(Load(&flat, file), 1);
    EXPECT_EQ(flat.texCoords[0].u, 7.5F);
    EXPECT_EQ(flat.texCoords[0].v, 7.0F);
    Write("texture/wall.bmp", PlainBmp(8, 16, 0));
    OwnedMesh high;
    ASSERT_EQ(Load(&high, file), 1);
    EXPECT_EQ(high.texCoords[0].v, 7.0F);
}

TEST_F(ObjectLoader, TextureCoordinatesAreClampedToTheImage) {
    CobFile file = Textured(8, 8);
    file.texCoords = {"-0.5 1.5", "1e30 -1e30", "1e39 -1e39", "1.0001 -0.0001"};
    ASSERT_EQ(Load(&mesh_, file), 1);
    const float expected[4][2] = {{0, 7}, {7, 0}, {7, 0}, {7, 0}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(mesh_.texCoords[i].u, expected[i][0]) << i;
        EXPECT_EQ(mesh_.texCoords[i].v, expected[i][1]) << i;
    }
    // Infinity times 0 is not a number: a texture one texel wide.
    Write("texture/wall.bmp", PlainBmp(4, 1, 0));
    Write("texture/dot.bmp", BmpBytes({1, 1, 16, "ab"}));
    file.materials[0].texture = "/dot.bmp";
    OwnedMesh dot;
    ASSERT_EQ(Load(&dot, file), 1);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(dot.texCoords[i].u, 0.0F);
        EXPECT_EQ(dot.texCoords[i].v, 0.0F);
    }
}

TEST_F(ObjectLoader, OnlyTheFirstTextureIsLoaded) {
    CobFile file = Textured(8, 8);
    Write("texture/other.bmp", PlainBmp(4, 4, 0xFF0000));
    file.faces[1].material = 1;
    file.materials.push_back(CobMaterial{});
    file.materials[1].number = 1;
    file.materials[1].texture = "x/other.bmp";
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.texture.single->width, 8);
    EXPECT_EQ(mesh_.faces[0].texture.single, mesh_.texture.single);
    EXPECT_EQ(mesh_.faces[1].texture.single, mesh_.texture.single);
    EXPECT_STREQ(materials[1].textureName, " x/other.bmp ");
    EXPECT_EQ(+loaderImage.infoHeader.width, 8) << "the second file is not opened";
}

TEST_F(ObjectLoader, R18_NameStartsBehindEighteenCharacters) {
    Write("texture/wall.bmp", PlainBmp(4, 4, 0));
    struct Case {
        const char* line;
        bool found;
    };
    for (const Case& c :
         {Case{"file name: string \".\\wall.bmp\"", true},
          Case{"file name: string \"a/b\\c/wall.bmp\"", true},
          Case{"file name: string \"a/WALL.bmp\"", true},
          Case{"file name: string \"/wall.bmp   \"", true},
          Case{"  file name: string \"/wall.bmp\"", true},
          Case{"file name: string /wall.bmp", true},
          Case{"file name: string \"\xC4wall.bmp\"", true},
          Case{"file name: string \"wall.bmp\"", false}, // keeps its blank
          Case{"file name: string wall.bmp", true}, Case{"file name: string  wall.bmp", false},
          Case{"file  name: string wall.bmp", false}, // cut one too early
          Case{"file name: string", false}, Case{"file name: string \"\"", false},
          Case{"file name: string \"a/\"", false},
          Case{"file name: string \"../../../../etc/passwd\"", false}}) {
        CobFile file;
        file.materials[0].texture = "?";
        std::string text = file.Text();
        text.replace(text.find("file name: string \"?\""), 21, c.line);
        OwnedMesh mesh;
        ResetMaterials();
        ResetObjectLoader();
        ASSERT_EQ(LoadText(&mesh, text), 1) << c.line;
        EXPECT_EQ(mesh.texture.single != nullptr, c.found) << c.line;
    }
}

TEST_F(ObjectLoader, LongTextureNamesAreCut) {
    CobFile file;
    file.materials[0].texture = std::string(900, 'n') + "/wall.bmp";
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(std::strlen(materials[0].textureName), 207U);
    EXPECT_EQ(mesh_.texture.single, nullptr);
}

TEST_F(ObjectLoader, NoTextureWasEverReadMeansWhiteAndUntextured) {
    CobFile file;
    file.materials[0].texture = "/absent.bmp";
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.texture.single, nullptr);
    EXPECT_EQ(mesh_.flags, MESH_LOADED);
    EXPECT_EQ(mesh_.faces[0].color, 0xFFFFU);
    EXPECT_EQ(mesh_.faces[0].flags, FACE_MATTE | FACE_LOADED | FACE_FLATCOLOR16);
    EXPECT_EQ(mesh_.faces[0].texture.single, nullptr);
    EXPECT_EQ(mesh_.texCoords[2].u, 1.0F) << "not scaled";
    EXPECT_EQ(materials[0].flags & Material::MAT_TEXTURED, Material::MAT_TEXTURED);
    OwnedMesh chained;
    ASSERT_EQ(Load(&chained, file, PlainRequest(0, 1)), 1);
    EXPECT_EQ(chained.flags, MESH_LOADED);
    EXPECT_EQ(chained.texture.chain, nullptr);
}

TEST_F(ObjectLoader, R23_AnUnreadableTextureTakesTheLastShape) {
    ASSERT_EQ(Load(&mesh_, Textured(8, 4)), 1);
    CobFile file;
    file.materials[0].texture = "/absent.bmp";
    OwnedMesh other;
    ASSERT_EQ(Load(&other, file), 1);
    ASSERT_NE(other.texture.single, nullptr);
    EXPECT_NE(other.texture.single, mesh_.texture.single);
    EXPECT_EQ(other.texture.single->width, 8);
    EXPECT_EQ(other.texture.single->height, 4);
    EXPECT_EQ(other.texture.single->bitsPerPixel, 16);
    EXPECT_EQ(other.faces[0].flags & FACE_TEXTURED, FACE_TEXTURED);
    for (int i = 0; i < 32; ++i) {
        EXPECT_EQ(static_cast<const Pixel16*>(other.texture.single->pixels)[i], 0);
    }
}

TEST_F(ObjectLoader, TexturesTheFillersCannotTake) {
    CobFile file;
    file.materials[0].texture = "/big.bmp";
    Write("texture/big.bmp", BmpBytes({1025, 1, 8, std::string(1025, 'x')}));
    ASSERT_EQ(Load(&mesh_, file), 1);
    EXPECT_EQ(mesh_.texture.single, nullptr);
    Write("texture/big.bmp", BmpBytes({1, 1025, 8, std::string(1025, 'x')}));
    OwnedMesh high;
    ASSERT_EQ(Load(&high, file), 1);
    EXPECT_EQ(high.texture.single, nullptr);
    Write("texture/big.bmp", BmpBytes({1024, 2, 8, std::string(2048, 'x')}));
    OwnedMesh fits;
    ASSERT_EQ(Load(&fits, file), 1);
    ASSERT_NE(fits.texture.single, nullptr);
    EXPECT_EQ(fits.texture.single->bitsPerPixel, 8);
    EXPECT_EQ(static_cast<const char*>(fits.texture.single->pixels)[2047], 'x');
}

TEST_F(ObjectLoader, R23_TooLargeTextureIsAnUnreadableOne) {
    CobFile file;
    file.materials[0].texture = "/good.bmp";
    Write("texture/good.bmp", BmpBytes({8, 4, 8, std::string(32, 'x')}));
    ASSERT_EQ(Load(&mesh_, file), 1);
    for (const char* const name : {"/wide.bmp", "/none.bmp"}) {
        Write("texture/wide.bmp", BmpBytes({1025, 1, 8, std::string(1025, 'x')}));
        file.materials[0].texture = name;
        OwnedMesh mesh;
        ASSERT_EQ(Load(&mesh, file), 1);
        ASSERT_NE(mesh.texture.single, nullptr) << name;
        EXPECT_EQ(mesh.texture.single->width, 8) << name;
        EXPECT_EQ(mesh.texture.single->height, 4) << name;
        EXPECT_EQ(mesh.texture.single->bitsPerPixel, 8) << name;
        for (int i = 0; i < 32; ++i) {
            ASSERT_EQ(static_cast<const char*>(mesh.texture.single->pixels)[i], 0) << name;
        }
    }
}

TEST_F(ObjectLoader, MipModeOneBuildsAChain) {
    ASSERT_EQ(Load(&mesh_, Textured(8, 8), PlainRequest(0, 1)), 1);
    EXPECT_EQ(mesh_.flags, MESH_LOADED | MESH_TEXTURED | MESH_MIPMAPPED);
    Texture** const chain = mesh_.texture.chain;
    ASSERT_NE(chain, nullptr);
    EXPECT_EQ(chain[0]->width, 8);
    EXPECT_EQ(chain[3]->width, 1);
    EXPECT_EQ(mesh_.faces[0].texture.chain, chain);
    EXPECT_EQ(mesh_.faces[0].flags & (FACE_TEXTURED | FACE_MIPMAPPED),
              FACE_TEXTURED | FACE_MIPMAPPED);
    EXPECT_EQ(mesh_.texCoords[2].u, 7.0F) << "by the width of level 0";
    EXPECT_EQ(static_cast<const Pixel16*>(chain[1]->pixels)[0], 0x07E0);
}

// A hundredth brighter, half a step added, and cut: 49 becomes 49.99, 55 becomes 56.05.
TEST_F(ObjectLoader, R26_LevelsGrowBrighterByAHundredth) {
    CobFile file = Textured(8, 8);
    for (const auto& [green, brighter] : {std::pair{49U, 49U}, {55U, 56U}}) {
        Write("texture/wall.bmp", PlainBmp(8, 8, green << 10));
        OwnedMesh mesh;
        ASSERT_EQ(Load(&mesh, file, PlainRequest(0, 1)), 1);
        Texture** const chain = mesh.texture.chain;
        EXPECT_EQ(static_cast<const Pixel16*>(chain[0]->pixels)[0], green << 5);
        EXPECT_EQ(static_cast<const Pixel16*>(chain[1]->pixels)[0], brighter << 5);
    }
}

TEST_F(ObjectLoader, AnotherMipModeOnlyMarksTheFaces) {
    for (const std::int32_t mode : {2, -1}) {
        OwnedMesh mesh;
        ASSERT_EQ(Load(&mesh, Textured(8, 8), PlainRequest(0, mode)), 1);
        EXPECT_EQ(mesh.flags, MESH_LOADED | MESH_TEXTURED);
        EXPECT_EQ(mesh.faces[0].flags & FACE_MIPMAPPED, FACE_MIPMAPPED);
        EXPECT_EQ(mesh.texture.single->width, 8);
        EXPECT_EQ(mesh.texCoords[2].u, 7.0F);
    }
}

TEST_F(ObjectLoader, ReleaseFreesTextureAndChain) {
    // A leak or a double free is the address sanitizer's to find; here only the record.
    for (const std::int32_t mode : {0, 1}) {
        Mesh mesh;
        ASSERT_EQ(Load(&mesh, Textured(8, 8), PlainRequest(0, mode)), 1);
        EXPECT_EQ(releaseObject(&mesh), 1);
        EXPECT_EQ(mesh.texture.single, nullptr);
        EXPECT_EQ(mesh.faces, nullptr);
        EXPECT_EQ(releaseObject(&mesh), 1);
    }
}

} // namespace
} // namespace ombrel
