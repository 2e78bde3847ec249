// The list is read with the production's own reader; the objects stand in the production's table.
#include "list.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>

#include "assets/object_loader.h"
#include "base/data_file.h"
#include "demo/fixed_objects.h"
#include "demo/world.h"
#include "scene/mesh_transform.h"

namespace inspect {

using namespace ombrel;

namespace {

constexpr std::int32_t kTiles = 60;
constexpr std::int32_t kRoomForCuts = 500; // faces that near cuts may add
constexpr std::int32_t kDummyFaces = 16;

// Clearing the world touches all of its memory: only when something is in it.
constinit bool worldLoaded = false;

struct Entry {
    SceneLine line;
    std::int64_t place; // line of the file
};

struct ListText {
    std::string_view text;
    LineCounter lines;
    Report* report;
    std::int64_t commentLine; // a comment whose rest is read as entries
};

std::string PathOf(const SceneLine& line) {
    return Quote(line.path);
}

bool IsThere(const SceneLine& line) {
    std::FILE* const file = OpenDataFile(line.path, "r");
    if (file == nullptr) {
        return false;
    }
    std::fclose(file);
    return true;
}

// What stands where a read stopped, up to the end of the line.
std::string RestAt(std::string_view text, std::size_t offset) {
    return Quote(text.substr(offset, text.find('\n', offset) - offset));
}

void CheckComment(ListText* t, std::int64_t line, std::size_t end, std::int32_t read) {
    if (read == 10) {
        return;
    }
    t->commentLine = line;
    if (t->lines.LineOf(end) == line && t->text.find_first_not_of(" \t\r", end) <
                                            std::min(t->text.find('\n', end), t->text.size())) {
        Warn(t->report, line, nullptr,
             {"a comment that is no entry",
              "only its first word is one: what follows is read as the next entry, " +
                  RestAt(t->text, t->text.find_first_not_of(" \t\r", end)),
              "glue # to the path of a whole entry, or remove the line"});
    }
}

void CheckNumbers(ListText* t, const Entry& entry, std::size_t end, std::int32_t read) {
    if (read < 10) {
        Warn(t->report, t->lines.LineOf(end), nullptr,
             {Format("%d of 9 numbers of ", read - 1) + PathOf(entry.line) + " fit: here stands " +
                  RestAt(t->text, end),
              "the others are those of the entry before, and the next read goes on here",
              "write 'PATH sx, sy, sz; px, py, pz; ax, ay, az;'"});
    }
    const float* const v = entry.line.values;
    if (std::any_of(v, v + 9, [](float value) { return !std::isfinite(value); })) {
        Warn(t->report, entry.place, nullptr,
             {"a number beyond the range of singles", "the object is not drawn",
              "write a smaller number"});
        return;
    }
    const float product = v[0] * v[1] * v[2];
    if (v[0] == 0.0F || v[1] == 0.0F || v[2] == 0.0F) {
        Warn(t->report, entry.place, nullptr,
             {"a scale of 0", "the object is flat and not seen",
              "write 10 for the file's own size"});
    } else if (product < 0.0F) {
        Warn(t->report, entry.place, nullptr,
             {"a negative scale", "the object is mirrored: its faces look the other way",
              "mirror the object in its file"});
    }
}

// The entries that the production loads, in the order of its table.
std::vector<Entry> ReadEntries(ListText* t) {
    std::vector<Entry> entries;
    const char* const first = t->text.data();
    SceneListText reading{first, first + t->text.size()};
    constexpr auto kRoom = static_cast<std::size_t>(kMaxSceneObjects - 1 - kFirstSceneObject);
    Entry entry{};
    for (;;) {
        const std::size_t start = std::min(
            t->text.find_first_not_of(" \t\n\v\f\r", static_cast<std::size_t>(reading.at - first)),
            t->text.size());
        entry.place = t->lines.LineOf(start);
        if (start < t->text.size() && entries.size() >= kRoom) {
            Warn(t->report, entry.place, nullptr,
                 {Format("more than %zu objects", kRoom), "the rest is not read", "remove them"});
            break;
        }
        const std::int32_t read = ReadSceneLine(&reading, &entry.line);
        if (read < 0) {
            break;
        }
        const auto end = static_cast<std::size_t>(reading.at - first);
        if (std::strchr(entry.line.path, '#') != nullptr) {
            CheckComment(t, entry.place, end, read);
            continue;
        }
        const bool ofComment = entry.place == t->commentLine;
        if (!IsThere(entry.line)) {
            if (!ofComment) {
                Warn(t->report, entry.place, nullptr,
                     {PathOf(entry.line) + " is not there", "the entry is skipped",
                      "correct the path; it begins with ./data/ and has no blanks"});
            }
            continue;
        }
        if (ofComment) {
            Warn(t->report, entry.place, nullptr,
                 {PathOf(entry.line) + " stands behind a # with a blank",
                  "it is loaded all the same", "glue # to the path"});
        }
        CheckNumbers(t, entry, end, read);
        entries.push_back(entry);
    }
    return entries;
}

// Loads the fixed objects, each in its place, as start-up does.
void LoadFixed() {
    for (const FixedObject& object : kFixedObjects) {
        Mesh* const mesh = &(world.*object.mesh);
        loadObject(mesh, object.path,
                   LoadRequest{object.scale, &object.position, kFixedOptions, 0});
        MeshRotate(mesh, 0.0F, 0.0F, 90.0F, 0);
    }
}

// What the loader answers for each entry, one after the other. Leaves the world empty and the table
// of materials as after the last.
std::vector<bool> LoadOneByOne(const std::vector<Entry>& entries) {
    ResetWorldOfTool();
    worldLoaded = true;
    LoadFixed();
    std::vector<bool> loaded;
    for (const Entry& entry : entries) {
        Mesh mesh;
        loaded.push_back(loadObject(&mesh, entry.line.path,
                                    LoadRequest{nullptr, nullptr, kListOptions, 0}) != 0);
        releaseObject(&mesh);
    }
    return loaded;
}

void CheckObjects(const std::vector<Entry>& entries, const std::vector<bool>& loads,
                  Report* report) {
    const auto count = static_cast<std::int32_t>(entries.size());
    for (std::int32_t i = 0; i < count; ++i) {
        const Entry& entry = entries[static_cast<std::size_t>(i)];
        if (!loads[static_cast<std::size_t>(i)]) {
            Warn(report, entry.place, entry.line.path,
                 {PathOf(entry.line) + " fails to load", "nothing is drawn in its place",
                  Format("inspect it; %d of %d materials are used", materialBase, kMaxMaterials)});
        }
    }
    if (count == 0) {
        Warn(report, 1, nullptr,
             {"no object", "the world is empty but for sky and ground", "add entries"});
        return;
    }
    const Mesh& last = world.objects[kFirstSceneObject + count];
    if (last.faceCount > kDummyFaces) {
        Warn(report, entries.back().place, nullptr,
             {"the last object has " + Format("%d faces", last.faceCount), "it is never drawn",
              "put a small dummy after it"});
    }
    if (count < 4) {
        Warn(report, entries.back().place, nullptr,
             {Format("%d objects", count), "the empty entry before them takes part in the turning",
              "have at least 4"});
    }
}

std::int32_t FacesOfAll(std::size_t count) {
    std::int32_t faces = kTiles * world.ground.faceCount + world.sky.faceCount;
    for (std::size_t i = 0; i + 1 < count; ++i) {
        faces += world.objects[kFirstSceneObject + 1 + static_cast<std::int32_t>(i)].faceCount;
    }
    return faces;
}

void ListTable(const std::vector<Entry>& entries, Report* report) {
    const std::size_t count = entries.size();
    Row(report, "objects", Format("%zu, the last is never drawn", count));
    Row(report, "faces",
        Format("%d with %d tiles and the sky, %d fit", FacesOfAll(count), kTiles, kMaxRenderFaces));
    Row(report, "materials", Format("%d of %d", materialBase, kMaxMaterials));
    report->table += "    no  line  faces  radius      x      up   ahead  object\n";
    for (std::size_t i = 0; i < count; ++i) {
        const Mesh& mesh = world.objects[kFirstSceneObject + 1 + static_cast<std::int32_t>(i)];
        const char* turns = i + 3 == count ? "  turns" : i + 4 == count ? "  turns back" : "";
        const char* const note = i + 1 == count ? "  not drawn" : turns;
        const float radius = mesh.maxRadius != nullptr ? mesh.maxRadius[0] : 0.0F;
        report->table +=
            Format("  %4zu %5lld %6d %7.1f %6.0f %7.1f %7.0f  ", i + 1,
                   static_cast<long long>(entries[i].place), mesh.faceCount,
                   static_cast<double>(radius), static_cast<double>(mesh.position.x),
                   static_cast<double>(mesh.position.y), static_cast<double>(mesh.position.z)) +
            std::filesystem::path(entries[i].line.path).filename().string() + note + "\n";
    }
}

} // namespace

void ResetWorldOfTool() {
    if (worldLoaded) {
        ResetSceneWorld();
    }
    worldLoaded = false;
    ResetMaterials();
    ResetObjectLoader();
}

void LoadWorld(const std::string& listPath) {
    ResetWorldOfTool();
    worldLoaded = true;
    LoadFixed();
    LoadSceneList(&world, listPath.c_str(), kFormat565);
}

void InspectList(const std::string& path, Report* report) {
    FileBytes file;
    std::string problem;
    if (!ReadFile(path, kMaxListFile, &file, &problem)) {
        Refuse(
            report, 1, nullptr,
            {problem, "the world is empty but for sky and ground", "give a file that can be read"});
        report->summary = "broken";
        return;
    }
    ListText t{file.text, LineCounter(file.text), report, 0};
    const std::vector<Entry> entries = ReadEntries(&t);
    const std::vector<bool> loads = LoadOneByOne(entries);
    LoadWorld(path);
    const std::size_t loaded = static_cast<std::size_t>(world.objectCounter - kFirstSceneObject);
    if (loaded != entries.size()) {
        Refuse(
            report, 1, nullptr,
            {Format("the production has %zu objects, this inspector %zu", loaded, entries.size()),
             "the production is right", "tell the makers of this program"});
    } else {
        CheckObjects(entries, loads, report);
        if (FacesOfAll(loaded) > kMaxRenderFaces - kRoomForCuts) {
            Warn(report, entries.empty() ? 1 : entries.back().place, nullptr,
                 {Format("%d faces with the ground and the sky", FacesOfAll(loaded)),
                  Format("a frame holds %d: what is drawn last is missing", kMaxRenderFaces),
                  "use simpler or fewer objects"});
        }
        ListTable(entries, report);
    }
    report->summary = Format("%zu objects, %d faces with ground and sky, %d materials", loaded,
                             FacesOfAll(loaded), materialBase);
    ResetWorldOfTool();
}

} // namespace inspect
