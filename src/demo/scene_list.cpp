// Reading the scene list. The scanner is our own, so that every system reads a list alike.
#include "demo/scene_list.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>

#include "assets/object_loader.h"
#include "base/data_file.h"
#include "base/parse_number.h"
#include "base/text.h"
#include "scene/mesh_transform.h"

namespace ombrel {

namespace {

// A number longer than this is cut: what is left out is used up but does not count.
constexpr std::ptrdiff_t kMaxNumber = 127;

void SkipBlanks(SceneListText* text) {
    while (text->at < text->end && IsBlank(*text->at)) {
        ++text->at;
    }
}

bool ReadWord(SceneListText* text, char* word, std::int32_t capacity) {
    SkipBlanks(text);
    if (text->at == text->end) {
        return false;
    }
    std::int32_t length = 0;
    for (; text->at < text->end && !IsBlank(*text->at); ++text->at) {
        if (length < capacity) {
            word[length++] = *text->at;
        }
    }
    word[length] = '\0';
    return true;
}

bool ReadNumber(SceneListText* text, Single* value) {
    const ScannedNumber number = ScanNumber(text->at, text->end);
    text->at = number.end;
    if (!number.complete) {
        return false;
    }
    // Closed by a zero, for there may be none in the text.
    char characters[kMaxNumber + 1] = {};
    std::memcpy(characters, number.first,
                static_cast<std::size_t>(std::min(number.end - number.first, kMaxNumber)));
    *value = ParseFloat(characters, nullptr);
    return true;
}

bool SkipLiteral(SceneListText* text, char literal) {
    if (text->at == text->end || *text->at != literal) {
        return false;
    }
    ++text->at;
    return true;
}

bool FileExists(const char* path) {
    std::FILE* const file = OpenDataFile(path, "r");
    if (file == nullptr) {
        return false;
    }
    std::fclose(file);
    return true;
}

void LoadSceneObject(Mesh* mesh, const SceneLine& line, const DisplayFormat& format) {
    const Single* const v = line.values;
    const Single scale[3] = {v[0] * 0.1F, v[1] * 0.1F, v[2] * 0.1F};
    const Vec3 position{v[3] * 0.1F, v[4] * 0.1F, v[5] * 0.1F, 1.0F};
    loadObject(mesh, line.path, LoadRequest{scale, &position, kListOptions, 0, format});
    MeshRotate(mesh, v[6], v[7], v[8], 0);
}

} // namespace

std::int32_t ReadSceneLine(SceneListText* text, SceneLine* line) {
    if (!ReadWord(text, line->path, kMaxScenePath)) {
        return -1;
    }
    // REQUIRED R47: what is not reached keeps the value of the read before.
    for (std::int32_t i = 0; i < 9; ++i) {
        // Each number skips blanks before itself, which covers the blanks of the pattern.
        if (!ReadNumber(text, &line->values[i])) {
            return 1 + i;
        }
        if (!SkipLiteral(text, i % 3 == 2 ? ';' : ',')) {
            return 2 + i;
        }
    }
    SkipBlanks(text);
    return 10;
}

bool NamesObject(const SceneLine& line) {
    return std::strchr(line.path, '#') == nullptr && FileExists(line.path);
}

void LoadSceneList(World* destination, const char* path, const DisplayFormat& format) {
    const std::string content = ReadDataFile(path, kMaxListFile);
    SceneListText text{content.data(), content.data() + content.size()};
    SceneLine line{};
    while (destination->objectCounter < kMaxSceneObjects - 1 && ReadSceneLine(&text, &line) >= 0) {
        if (!NamesObject(line)) {
            continue;
        }
        LoadSceneObject(&destination->objects[destination->objectCounter + 1], line, format);
        ++destination->objectCounter;
    }
    Mesh* const last = &destination->objects[destination->objectCounter];
    for (std::int32_t i = 0; i < last->faceCount; ++i) {
        last->faces[i].flags |= FACE_TWO_SIDED;
    }
}

} // namespace ombrel
