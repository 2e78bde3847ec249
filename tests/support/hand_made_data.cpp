// Writers of small data files.
#include "hand_made_data.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "base/data_file.h"

namespace ombrel {

namespace fs = std::filesystem;

DataFolderForTest::DataFolderForTest() : before_(DataFolder()) {
    std::random_device random;
    char name[32];
    std::snprintf(name, sizeof name, "ombrel-test-%08x%08x", random(), random());
    root_ = (fs::temp_directory_path() / name).string();
    fs::create_directories(root_);
    SetDataFolder(root_);
}

DataFolderForTest::~DataFolderForTest() {
    std::error_code error;
    fs::remove_all(root_, error);
    SetDataFolder(before_);
}

std::string DataFolderForTest::PathOf(const std::string& name) const {
    return (fs::path(root_) / name).string();
}

void DataFolderForTest::Write(const std::string& name, const std::string& content) const {
    const fs::path path = PathOf(name);
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

void DataFolderForTest::Remove(const std::string& name) const {
    std::error_code error;
    fs::remove(PathOf(name), error);
}

std::string DataFolderForTest::Read(const std::string& name) const {
    std::ifstream file(PathOf(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

namespace {

template <typename... Values> std::string Format(const char* format, Values... values) {
    char line[512];
    std::snprintf(line, sizeof line, format, values...);
    return line;
}

std::string ColorShader(const CobMaterial& m) {
    std::string text = "Shader class: color\n";
    if (m.texture == nullptr) {
        return text + "Shader name: \"plain color\"\n";
    }
    text += "Shader name: \"texture map\"\n";
    return text + Format("file name: string \".\\%s\"\n", m.texture);
}

std::string TransparencyShader(const CobMaterial& m) {
    std::string text = "Shader class: transparency\n";
    if (m.filter < 0) {
        return text + "Shader name: \"none\" (none)\n";
    }
    text += "Shader name: \"filter\" (filter)\n";
    return text + Format("colour: color (%d, %d, %d)\n", m.filter, m.filter, m.filter);
}

void AppendLittle(std::string* text, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        text->push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    }
}

std::string BmpHeaders(int width, int height, int bitCount, std::uint32_t sizeImage) {
    std::string text = "BM";
    AppendLittle(&text, 54 + sizeImage, 4);
    AppendLittle(&text, 0, 4);
    AppendLittle(&text, 54, 4);
    AppendLittle(&text, 40, 4);
    AppendLittle(&text, static_cast<std::uint32_t>(width), 4);
    AppendLittle(&text, static_cast<std::uint32_t>(height), 4);
    AppendLittle(&text, 1, 2);
    AppendLittle(&text, static_cast<std::uint32_t>(bitCount), 2);
    AppendLittle(&text, 0, 4);
    AppendLittle(&text, sizeImage, 4);
    AppendLittle(&text, 0, 4);
    AppendLittle(&text, 0, 4);
    AppendLittle(&text, 0, 4);
    AppendLittle(&text, 0, 4);
    return text;
}

} // namespace

std::string CobText(const std::vector<CobVertex>& vertices, const std::vector<CobFace>& faces,
                    const std::vector<CobMaterial>& materials) {
    std::string text = "Object as text\n"
                       "Name Thing,1\n"
                       "center 0 0 0\n"
                       "x axis 1 0 0\n"
                       "y axis 0 1 0\n"
                       "z axis 0 0 1\n"
                       "Transform\n"
                       "1 0 0 0\n0 1 0 0\n0 0 1 0\n0 0 0 1\n";
    text += Format("World Vertices %d\n", static_cast<int>(vertices.size()));
    for (const CobVertex& v : vertices) {
        text += Format("%f %f %f\n", static_cast<double>(v.x), static_cast<double>(v.y),
                       static_cast<double>(v.z));
    }
    text += "Texture Vertices 4\n0.1 0.1\n0.9 0.1\n0.9 0.9\n0.1 0.9\n";
    text += Format("Faces %d\n", static_cast<int>(faces.size()));
    for (const CobFace& f : faces) {
        text += Format("Face verts 3 flags 0 mat %d\n<%d,0> <%d,1> <%d,2>\n", f.material, f.a, f.b,
                       f.c);
    }
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const CobMaterial& m = materials[i];
        text += Format("mat# %d\n", static_cast<int>(i));
        text += Format("rgb %f,%f,%f\n", static_cast<double>(m.r), static_cast<double>(m.g),
                       static_cast<double>(m.b));
        text += "alpha 1 ka 0.1 ks 0.1 exp 0\n";
        text += ColorShader(m) + TransparencyShader(m);
        text += "Shader class: reflectance\n";
        text += Format("Shader name: \"%s\"\n", m.shading);
    }
    return text + "END V1.00\n";
}

std::string BoxCob(float half, bool fromInside, const CobMaterial& material) {
    const float h = half;
    const std::vector<CobVertex> vertices = {
        {-h, -h, -h}, {h, -h, -h}, {h, h, -h}, {-h, h, -h},   {-h, -h, h},
        {h, -h, h},   {h, h, h},   {-h, h, h}, {3 * h, 0, 0},
    };
    // Corners as seen from outside, clockwise in the file's right-handed space.
    const std::vector<CobFace> outside = {
        {0, 1, 2, 0}, {0, 2, 3, 0}, {4, 6, 5, 0}, {4, 7, 6, 0}, {0, 5, 1, 0}, {0, 4, 5, 0},
        {3, 2, 6, 0}, {3, 6, 7, 0}, {0, 3, 7, 0}, {0, 7, 4, 0}, {1, 5, 6, 0}, {1, 6, 2, 0},
    };
    std::vector<CobFace> faces;
    for (const CobFace& f : outside) {
        faces.push_back(fromInside ? CobFace{f.a, f.c, f.b, 0} : f);
    }
    return CobText(vertices, faces, {material});
}

std::string GroundCob(const CobMaterial& material) {
    return CobText({{8.5F, 0, 0}, {-4, -4, 0}, {4, -4, 0}, {4, 4, 0}, {-4, 4, 0}},
                   {{1, 3, 2, 0}, {1, 4, 3, 0}}, {material});
}

std::string BmpText(int width, int height, std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    const int pitch = (width * 3 + 3) / 4 * 4;
    std::string text = BmpHeaders(width, height, 24, static_cast<std::uint32_t>(pitch * height));
    for (int y = 0; y < height; ++y) {
        std::string row;
        for (int x = 0; x < width; ++x) {
            row += static_cast<char>(b);
            row += static_cast<char>(g);
            row += static_cast<char>(r);
        }
        row.resize(static_cast<std::size_t>(pitch), '\0');
        text += row;
    }
    return text;
}

std::string FontSheet(std::uint16_t mark) {
    constexpr int kWidth = 786;
    constexpr int kHeight = 689;
    std::vector<std::uint16_t> pixels(static_cast<std::size_t>(kWidth) * kHeight, 0);
    for (int c = 0; c < 256; ++c) {
        const int x = c % 16 * 49 + 1 + kMarkX;
        const int y = c / 16 * 43 + 1 + kMarkY;
        pixels[static_cast<std::size_t>((kHeight - 1 - y) * kWidth + x)] =
            static_cast<std::uint16_t>(mark + c);
    }
    std::string text = BmpHeaders(kWidth, kHeight, 16, kWidth * kHeight * 2);
    for (const std::uint16_t pixel : pixels) {
        AppendLittle(&text, pixel, 2);
    }
    return text;
}

std::string TrackText(const std::vector<TrackKeyText>& keys) {
    std::string text;
    for (const TrackKeyText& k : keys) {
        text += Format("0.000000, 0.000000, 0.000000;\t%f, %f, %f;\t%f, %f, %f;\t%f;\t%s;\n",
                       static_cast<double>(k.x), static_cast<double>(k.y), static_cast<double>(k.z),
                       static_cast<double>(k.ax), static_cast<double>(k.ay),
                       static_cast<double>(k.az), static_cast<double>(k.fov), k.step);
    }
    return text;
}

std::string PlainTrack(int count, const char* step) {
    std::vector<TrackKeyText> keys;
    for (int i = 0; i < count; ++i) {
        keys.push_back({0, 200, static_cast<float>(10 * i), 10, 0, 0, 90, i == 33 ? "1.0" : step});
    }
    return TrackText(keys);
}

void WriteWholeFolder(const DataFolderForTest& folder, const char* firstTrackStep) {
    const CobMaterial sand{0.8F, 0.6F, 0.4F, "matte", -1, nullptr};
    const CobMaterial glass{0.4F, 0.5F, 0.9F, "matte", 150, nullptr};
    const CobMaterial blue{0.3F, 0.4F, 0.8F, "constant", -1, nullptr};
    const CobMaterial veil{0.3F, 0.4F, 0.8F, "constant", 150, nullptr};
    const CobMaterial painted{1, 1, 1, "matte", -1, "wall.bmp"};
    const CobMaterial round{0.9F, 0.2F, 0.2F, "plastic", -1, nullptr};
    folder.Write("3d/sky-sphere-04.cob", BoxCob(5, true, blue));
    folder.Write("3d/sky-sphere-04-alpha0.cob", BoxCob(5, true, veil));
    folder.Write("3d/sky-sphere-04-alpha-s2.cob", BoxCob(5, true, veil));
    folder.Write("3d/stay-01.cob", BoxCob(1, false, round));
    folder.Write("3d/ground-lowpoly-03.cob", GroundCob(sand));
    folder.Write("3d/ground-lowpoly-03-alpha.cob", GroundCob(glass));
    folder.Write("3d/light_debug.cob", BoxCob(1, false, blue));
    folder.Write("3d/wall.cob", BoxCob(1, false, painted));
    folder.Write("3d/ball.cob", BoxCob(1, false, round));
    folder.Write("texture/wall.bmp", BmpText(8, 8, 200, 120, 40));
    folder.Write("scene1.po",
                 "./data/3d/wall.cob \t500, 500, 500; \t-3000, 1000, 15000; \t0, 30, 0;\n"
                 "./data/3d/ball.cob \t600, 600, 600; \t3000, 1000, 15000; \t0, 0, 0;\n"
                 "#./data/3d/ball.cob \t1, 1, 1; \t0, 0, 0; \t0, 0, 0;\n"
                 "./data/3d/wall.cob \t400, 900, 400; \t6000, 1000, 20000; \t0, 0, 0;\n"
                 "./data/3d/ball.cob \t10, 10, 10; \t0, 0, 0; \t0, 0, 0;\n");
    folder.Write("2d/font-48.bmp", FontSheet(kBigMark));
    folder.Write("2d/font-48-16px.bmp", FontSheet(kSmallMark));
    folder.Write("cam/scene1.trk", PlainTrack(35, firstTrackStep));
    folder.Write("cam/scene2.trk", PlainTrack(35, "0.0078125"));
    folder.Write("sfx/soundtrack.mp3", "not really a song\n");
}

std::vector<std::string> WholeFolderNames() {
    return {"3d/sky-sphere-04.cob",
            "3d/sky-sphere-04-alpha0.cob",
            "3d/sky-sphere-04-alpha-s2.cob",
            "3d/stay-01.cob",
            "3d/ground-lowpoly-03.cob",
            "3d/ground-lowpoly-03-alpha.cob",
            "3d/light_debug.cob",
            "3d/wall.cob",
            "3d/ball.cob",
            "texture/wall.bmp",
            "scene1.po",
            "2d/font-48.bmp",
            "2d/font-48-16px.bmp",
            "cam/scene1.trk",
            "cam/scene2.trk",
            "sfx/soundtrack.mp3"};
}

} // namespace ombrel
