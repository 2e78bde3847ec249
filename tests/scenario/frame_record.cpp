// Writing, reading and comparing frame records.
#include "scenario/frame_record.h"

#include <zlib.h>

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <type_traits>

#include "base/hash.h"
#include "base/shell_state.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/world.h"
#include "scene/camera.h"

namespace ombrel {

bool operator==(const FrameLine& a, const FrameLine& b) {
    return a.frame == b.frame && a.scene == b.scene && a.faces == b.faces && a.state == b.state &&
           a.picture == b.picture;
}

std::string FormatFrameLine(const FrameLine& line) {
    char text[160];
    std::snprintf(text, sizeof text,
                  "frame %" PRId64 " scene %d faces %d state %016" PRIx64 " picture %016" PRIx64,
                  line.frame, line.scene, line.faces, line.state, line.picture);
    return text;
}

bool ParseFrameLine(const std::string& text, FrameLine* line) {
    FrameLine read{};
    int used = 0;
    const int got = std::sscanf(
        text.c_str(),
        "frame %" SCNd64 " scene %d faces %d state %16" SCNx64 " picture %16" SCNx64 "%n",
        &read.frame, &read.scene, &read.faces, &read.state, &read.picture, &used);
    if (got != 5 || static_cast<std::size_t>(used) != text.size()) {
        return false;
    }
    *line = read;
    return true;
}

bool WriteFrameRecord(const std::string& path, const std::vector<FrameLine>& lines) {
    gzFile file = gzopen(path.c_str(), "wb9");
    if (file == nullptr) {
        return false;
    }
    bool good = true;
    for (const FrameLine& line : lines) {
        const std::string text = FormatFrameLine(line) + "\n";
        good = good && gzwrite(file, text.data(), static_cast<unsigned>(text.size())) ==
                           static_cast<int>(text.size());
    }
    return gzclose(file) == Z_OK && good;
}

bool ReadFrameRecord(const std::string& path, std::vector<FrameLine>* lines) {
    gzFile file = gzopen(path.c_str(), "rb");
    if (file == nullptr) {
        return false;
    }
    lines->clear();
    bool good = true;
    char text[256];
    while (good && gzgets(file, text, sizeof text) != nullptr) {
        std::string line = text;
        good = !line.empty() && line.back() == '\n';
        if (good) {
            line.pop_back();
            lines->emplace_back();
            good = ParseFrameLine(line, &lines->back());
        }
    }
    int error = Z_OK;
    gzerror(file, &error);
    const bool whole = error == Z_OK || error == Z_STREAM_END;
    gzclose(file);
    return good && whole;
}

namespace {

std::string WhatDiffers(const FrameLine& stored, const FrameLine& played) {
    std::string text;
    const auto add = [&text](bool differs, const char* name) {
        if (differs) {
            text += text.empty() ? name : std::string(", ") + name;
        }
    };
    add(stored.frame != played.frame, "number");
    add(stored.scene != played.scene, "scene");
    add(stored.faces != played.faces, "faces");
    add(stored.state != played.state, "state");
    add(stored.picture != played.picture, "picture");
    return text;
}

} // namespace

std::string CompareFrameRecords(const std::vector<FrameLine>& stored,
                                const std::vector<FrameLine>& played) {
    const std::size_t both = std::min(stored.size(), played.size());
    std::size_t first = both;
    std::size_t count = 0;
    for (std::size_t i = 0; i < both; ++i) {
        if (!(stored[i] == played[i])) {
            first = count == 0 ? i : first;
            ++count;
        }
    }
    std::string text;
    if (count > 0) {
        text = "first bad frame " + std::to_string(played[first].frame) + " (" +
               WhatDiffers(stored[first], played[first]) + "), " + std::to_string(count) +
               " frames differ\n  stored " + FormatFrameLine(stored[first]) + "\n  played " +
               FormatFrameLine(played[first]) + "\n";
    }
    if (stored.size() != played.size()) {
        text += "stored " + std::to_string(stored.size()) + " frames, played " +
                std::to_string(played.size()) + "\n";
    }
    return text;
}

namespace {

// Values only, field by field: no padding, no pointer takes part.
struct Digest {
    std::uint64_t hash = kHashStart;
    template <typename Value> void Add(const Value& value) {
        static_assert(std::is_arithmetic_v<Value>);
        hash = HashBytes(hash, &value, sizeof value);
    }
    void Add(const Vec3& v) {
        Add(v.x);
        Add(v.y);
        Add(v.z);
    }
    template <typename Value, std::size_t N> void Add(const Value (&values)[N]) {
        for (const Value& value : values) {
            Add(value);
        }
    }
};

void AddCamera(Digest* digest) {
    const Camera& c = world.camera;
    digest->Add(c.position);
    digest->Add(c.angles);
    digest->Add(c.fov);
    digest->Add(c.tanHalfFov);
    digest->Add(c.view.m[0]);
    digest->Add(c.view.m[1]);
    digest->Add(c.view.m[2]);
    digest->Add(c.view.m[3]);
    digest->Add(trackSegment);
    digest->Add(trackT);
}

void AddLights(Digest* digest) {
    for (const Light& light : world.lights) {
        digest->Add(light.ambientColor);
        digest->Add(light.lightColor);
        digest->Add(light.position);
        digest->Add(light.direction);
    }
}

void AddSceneOne(Digest* digest) {
    digest->Add(sceneOne.titleDone);
    digest->Add(sceneOne.insideBox);
    digest->Add(sceneOne.ambientFade);
    digest->Add(sceneOne.lightFade);
}

void AddSceneTwo(Digest* digest) {
    digest->Add(sceneTwo.endFlag);
    digest->Add(sceneTwo.closingCount);
    digest->Add(sceneTwo.lightPhase);
    digest->Add(sceneTwo.block.stage);
    digest->Add(sceneTwo.block.delay);
    digest->Add(sceneTwo.block.angles);
    for (const GreetingColumn& column : sceneTwo.columns) {
        digest->Add(column.phase);
        digest->Add(column.speed);
        digest->Add(column.index);
        digest->Add(column.on);
    }
    digest->Add(sceneTwo.scroller.frameCount);
    digest->Add(sceneTwo.scroller.line);
    digest->Add(sceneTwo.scroller.page);
    digest->Add(sceneTwo.scroller.delay);
    digest->Add(sceneTwo.scroller.angles);
}

// The list as it was drawn: where every face's corners came to lie, and their colours.
void AddFaces(Digest* digest) {
    digest->Add(sceneFaces.count);
    for (std::int32_t i = 0; i < sceneFaces.count; ++i) {
        const RenderFace& face = *sceneFaces.pointers[i];
        digest->Add(face.state);
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (const FaceCorner& v : face.work) {
            digest->Add(v.x);
            digest->Add(v.y);
            digest->Add(v.z);
        }
        digest->Add(face.litColors[0]);
    }
}

} // namespace

std::uint64_t DigestState() {
    Digest digest;
    digest.Add(driver.sceneIndex);
    digest.Add(driver.frameCounter);
    AddCamera(&digest);
    AddLights(&digest);
    AddSceneOne(&digest);
    AddSceneTwo(&digest);
    AddFaces(&digest);
    return digest.hash;
}

} // namespace ombrel
