// A data folder made by the test: the smallest files that give every part of the production
// something to show, with marks that a test can find in a picture.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ombrel {

// A fresh folder in the system's place for such, made the data folder of the program for the life
// of the record; removed at its end.
class DataFolderForTest {
public:
    DataFolderForTest();
    ~DataFolderForTest();
    DataFolderForTest(const DataFolderForTest&) = delete;
    DataFolderForTest& operator=(const DataFolderForTest&) = delete;

    // Name below the data folder ("3d/cube.cob"); makes the folders above it.
    void Write(const std::string& name, const std::string& content) const;
    void Remove(const std::string& name) const;
    std::string Read(const std::string& name) const;
    std::string PathOf(const std::string& name) const;
    const std::string& Root() const { return root_; }

private:
    std::string root_;
    std::string before_;
};

// --- objects -----------------------------------------------------------------------------------
struct CobVertex {
    float x, y, z;
};
struct CobFace {
    int a, b, c;
    int material;
};
struct CobMaterial {
    float r, g, b;       // 0..1
    const char* shading; // "constant", "matte", "plastic"
    int filter;          // -1 opaque, else the brightest component 0..255
    const char* texture; // null, or a file below texture/
};
std::string CobText(const std::vector<CobVertex>& vertices, const std::vector<CobFace>& faces,
                    const std::vector<CobMaterial>& materials);

// A closed box around the origin, seen from inside (sky) or outside, vertex 8
// three times as far out as a helper that gives it a big bounding sphere.
std::string BoxCob(float half, bool fromInside, const CobMaterial& material);
// A level square from -4 to 4, seen from above in a ground object; vertex 0 is a helper.
std::string GroundCob(const CobMaterial& material);

// --- images ------------------------------------------------------------------------------------
// A 24-bit image of one colour.
std::string BmpText(int width, int height, std::uint8_t r, std::uint8_t g, std::uint8_t b);

// In a font sheet every cell has one pixel that is not transparent: at (kMarkX, kMarkY) of the
// cell, with the value mark + character code. So a text on a picture can be read back exactly.
inline constexpr int kMarkX = 3;
inline constexpr int kMarkY = 5;
inline constexpr std::uint16_t kBigMark = 0x8000;
inline constexpr std::uint16_t kSmallMark = 0x4000;
std::string FontSheet(std::uint16_t mark);

// --- tracks and the whole folder ---------------------------------------------------------------
struct TrackKeyText {
    float x, y, z;
    float ax, ay, az;
    float fov;
    const char* step;
};
std::string TrackText(const std::vector<TrackKeyText>& keys);
// count keys, 10 units apart along z from (0, 200, 0), looking ahead, all with the same step but
// key 33, which has 1.0.
std::string PlainTrack(int count, const char* step);

// Every file of the production but the soundtrack, which is a short text. Scene one lasts 33 frames
// at the shortest.
void WriteWholeFolder(const DataFolderForTest& folder, const char* firstTrackStep);
// The names of all those files.
std::vector<std::string> WholeFolderNames();

} // namespace ombrel
