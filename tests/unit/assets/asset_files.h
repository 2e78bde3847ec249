// Files for the tests of the asset loaders: a data folder of its own for each test, and builders of
// small object files and BMP images.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <vector>

#include "assets/mesh.h"
#include "assets/object_loader.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "base/pixel16.h"

namespace ombrel {

// A folder that "./data" stands for while the test runs; the shared tables are as at process start,
// and floats are cut as in the running production.
class DataFolderTest : public testing::Test {
protected:
    DataFolderTest() : mode_(FloatMode::Chop), before_(DataFolder()) {
        static std::int32_t number = 0;
        const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
        root_ = std::filesystem::temp_directory_path() /
                ("ombrel-" + std::string(info->test_suite_name()) + "-" + info->name() + "-" +
                 std::to_string(reinterpret_cast<std::uintptr_t>(this)) + "-" +
                 std::to_string(++number));
        std::filesystem::create_directories(root_ / "texture");
        std::filesystem::create_directories(root_ / "3d");
        SetDataFolder(root_.string());
        ResetMaterials();
        ResetObjectLoader();
    }
    ~DataFolderTest() override {
        SetDataFolder(before_);
        ResetMaterials();
        ResetObjectLoader();
        std::error_code error;
        std::filesystem::remove_all(root_, error);
    }

    // Writes a file below the data folder; returns its name as the production would write it.
    std::string Write(const std::string& name, const std::string& bytes) const {
        // A new file each time: some systems wait for the disk when a file is written over.
        std::error_code error;
        std::filesystem::remove(root_ / name, error);
        std::ofstream(root_ / name, std::ios::binary) << bytes;
        return "./data/" + name;
    }

    const std::filesystem::path& Root() const { return root_; }

private:
    ScopedFloatMode mode_;
    std::string before_;
    std::filesystem::path root_;
};

// A mesh that frees what it holds.
struct OwnedMesh : Mesh {
    OwnedMesh() : Mesh{} {}
    ~OwnedMesh() { releaseObject(this); }
    OwnedMesh(const OwnedMesh&) = delete;
    OwnedMesh& operator=(const OwnedMesh&) = delete;
};

inline void Put16(std::string* bytes, std::uint32_t value) {
    bytes->push_back(static_cast<char>(value & 0xFF));
    bytes->push_back(static_cast<char>((value >> 8) & 0xFF));
}
inline void Put32(std::string* bytes, std::uint32_t value) {
    Put16(bytes, value & 0xFFFF);
    Put16(bytes, value >> 16);
}

// A BMP file: the headers for these values, then the pixel bytes as given.
struct BmpRecipe {
    std::int32_t width = 4;
    std::int32_t height = 4;
    std::uint32_t bitCount = 24;
    std::string pixels;          // bottom row first
    std::int64_t sizeImage = -1; // -1: the pixel bytes
    std::uint32_t dataOffset = 54;
    std::string type = "BM";
    std::string between = {}; // bytes between headers and pixels
};

inline std::string BmpBytes(const BmpRecipe& recipe) {
    std::string bytes = recipe.type;
    Put32(&bytes, static_cast<std::uint32_t>(54 + recipe.pixels.size()));
    Put32(&bytes, 0);
    Put32(&bytes, recipe.dataOffset);
    Put32(&bytes, 40);
    Put32(&bytes, static_cast<std::uint32_t>(recipe.width));
    Put32(&bytes, static_cast<std::uint32_t>(recipe.height));
    Put16(&bytes, 1);
    Put16(&bytes, recipe.bitCount);
    Put32(&bytes, 0);
    Put32(&bytes, recipe.sizeImage >= 0 ? static_cast<std::uint32_t>(recipe.sizeImage)
                                        : static_cast<std::uint32_t>(recipe.pixels.size()));
    for (int i = 0; i < 4; ++i) {
        Put32(&bytes, 0);
    }
    return bytes + recipe.between + recipe.pixels;
}

// A 24-bit image of one colour.
inline std::string PlainBmp(std::int32_t width, std::int32_t height, std::uint32_t rgb) {
    BmpRecipe recipe;
    recipe.width = width;
    recipe.height = height;
    for (std::int32_t i = 0; i < width * height; ++i) {
        recipe.pixels.push_back(static_cast<char>(rgb & 0xFF));
        recipe.pixels.push_back(static_cast<char>((rgb >> 8) & 0xFF));
        recipe.pixels.push_back(static_cast<char>((rgb >> 16) & 0xFF));
    }
    return BmpBytes(recipe);
}

// One material block of an object file; empty texture: plain colour.
struct CobMaterial {
    int number = 0;
    std::string rgb = "0.2,0.4,0.6";
    std::string alpha = "1";
    std::string factors = "ka 0.5 ks 0.25 exp 3";
    std::string texture;
    std::string transparency = "none";
    std::string filter = "colour: color (255, 255, 255)";
    std::string shading = "matte";
};

// An object file: a square of two triangles unless changed.
struct CobFile {
    std::string name = "cube";
    std::string center = "0 0 0";
    std::string axes[3] = {"1 0 0", "0 1 0", "0 0 1"};
    std::string transform[4] = {"1 0 0 0", "0 1 0 0", "0 0 1 0", "0 0 0 1"};
    std::vector<std::string> vertices = {"0 0 0", "1 0 0", "1 1 0", "0 1 0"};
    std::vector<std::string> texCoords = {"0 0", "1 0", "1 1", "0 1"};
    struct CobFace {
        std::string corners;
        int material;
        int count;
    };
    std::vector<CobFace> faces = {{"<0,0> <1,1> <2,2>", 0, 3}, {"<0,0> <2,2> <3,3>", 0, 3}};
    std::vector<CobMaterial> materials = {CobMaterial{}};
    std::string vertexCount; // empty: as many as there are; likewise the next two
    std::string texCoordCount;
    std::string faceCount;

    std::string Text() const {
        std::string t = "Object file, made by a test\n";
        t += "Name " + name + "\n";
        t += "center " + center + "\n";
        const char letters[] = {'x', 'y', 'z'};
        for (int i = 0; i < 3; ++i) {
            t += std::string(1, letters[i]) + " axis " + axes[i] + "\n";
        }
        t += "Transform\n";
        for (const std::string& row : transform) {
            t += row + "\n";
        }
        const auto count = [](const std::string& given, std::size_t real) {
            return given.empty() ? std::to_string(real) : given;
        };
        t += "World Vertices " + count(vertexCount, vertices.size()) + "\n";
        for (const std::string& vertex : vertices) {
            t += vertex + "\n";
        }
        t += "Texture Vertices " + count(texCoordCount, texCoords.size()) + "\n";
        for (const std::string& coord : texCoords) {
            t += coord + "\n";
        }
        t += "Faces " + count(faceCount, faces.size()) + "\n";
        for (const CobFace& face : faces) {
            t += "Face verts " + std::to_string(face.count) + " flags 0 mat " +
                 std::to_string(face.material) + "\n" + face.corners + "\n";
        }
        for (const CobMaterial& m : materials) {
            t += "mat# " + std::to_string(m.number) + "\n";
            t += "rgb " + m.rgb + "\nalpha " + m.alpha + " " + m.factors + "\n";
            t += "Shader class: color\n";
            if (m.texture.empty()) {
                t += "Shader name: \"plain color\"\n";
            } else {
                t += "Shader name: \"texture map\"\nfile name: string \"" + m.texture + "\"\n";
            }
            t += "Shader class: transparency\nShader name: \"" + m.transparency + "\"\n";
            if (m.transparency == "filter") {
                t += m.filter + "\n";
            }
            t += "Shader class: reflectance\nShader name: \"" + m.shading + "\"\n";
        }
        return t + "END\n";
    }
};

inline LoadRequest PlainRequest(std::uint32_t options = 0, std::int32_t mipMode = 0) {
    return {nullptr, nullptr, options, mipMode};
}

} // namespace ombrel
