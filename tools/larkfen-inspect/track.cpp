// The text is read key by key with the production's own reader; what it leaves behind is judged.
#include "track.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "base/float_mode.h"
#include "demo/scene_one.h"

namespace inspect {

using namespace ombrel;

namespace {

constexpr std::int32_t kNeededKeys = 35; // of the first scene
constexpr std::int32_t kUsefulKeys = 35; // of either
constexpr std::size_t kHandOverKey = 33; // its step decides where the second scene starts
constexpr std::int64_t kSceneTwoSamples = kSceneTwoFrames - 1;
constexpr char kBlanks[] = " \t\n\v\f\r";

// Where the text of each key begins.
struct KeyText {
    std::int64_t line;
};

// clang-format off
constexpr const char* kNumberNames[kTrackColumns] = {
    "bias", "continuity", "tension", "x", "y", "z", "angle x", "angle y", "angle z",
    "field of view", "step",
};
// clang-format on

struct TrackText {
    std::string_view text;
    LineCounter* lines;
    Report* report;
    std::vector<KeyText>* keys;
};

void CheckKeyText(const TrackText& t, std::size_t start, std::size_t end, std::int32_t read) {
    const auto number = static_cast<int>(t.keys->size()) - 1;
    if (read < kTrackColumns) {
        Warn(t.report, t.lines->LineOf(end), "short key",
             {Format("key %d has %d of %d numbers: here %s must follow, not ", number, read,
                     kTrackColumns, kNumberNames[read]) +
                  Quote(t.text.substr(end, t.text.find('\n', end) - end)),
              "the others are those of the key before, and the next key begins here",
              "write 'b, c, t;<tab>x, y, z;<tab>ax, ay, az;<tab>fov;<tab>step;'"});
        return;
    }
    const std::string_view body = t.text.substr(start, end - start);
    const std::size_t last = body.find_last_not_of(kBlanks);
    if (body.find('\n') < last) {
        Warn(t.report, t.lines->LineOf(start), "key over lines",
             {Format("key %d takes numbers from the next line", number),
              "the keys are shifted from here on", "write eleven numbers on each line"});
    }
}

void ReadKeys(const TrackText& t) {
    const char* const first = t.text.data();
    const char* p = first;
    float columns[kTrackColumns] = {};
    for (;;) {
        const auto here = static_cast<std::size_t>(p - first);
        const std::size_t start = std::min(t.text.find_first_not_of(kBlanks, here), t.text.size());
        if (start >= t.text.size() || t.text[start] == '\0') {
            break;
        }
        if (t.keys->size() >= static_cast<std::size_t>(kMaxTrackKeys)) {
            Warn(t.report, t.lines->LineOf(start), nullptr,
                 {Format("more than %d keys", kMaxTrackKeys), "the rest is not read",
                  "remove them"});
            return;
        }
        const char* const before = p;
        const std::int32_t read = ReadTrackColumns(&p, columns);
        if (p == before) {
            Warn(t.report, t.lines->LineOf(start), nullptr,
                 {"here a key must begin, not " +
                      Quote(t.text.substr(start, t.text.find('\n', start) - start)),
                  Format("reading ends after %zu keys", t.keys->size()),
                  "leave nothing but keys in the file"});
            return;
        }
        t.keys->push_back({t.lines->LineOf(start)});
        CheckKeyText(t, start, static_cast<std::size_t>(p - first), read);
    }
    const std::size_t zero = t.text.find('\0');
    if (zero != std::string::npos) {
        Warn(t.report, t.lines->LineOf(zero), nullptr,
             {"a zero byte in a text", "reading ends there", "save it as plain text"});
    }
}

bool IsFinite(const TrackKey& key) {
    const float values[] = {key.keyBias,    key.keyContinuity, key.tension,  key.position.x,
                            key.position.y, key.position.z,    key.angles.x, key.angles.y,
                            key.angles.z,   key.fov,           key.step};
    return std::all_of(std::begin(values), std::end(values),
                       [](float value) { return std::isfinite(value); });
}

float LargestTurn(const TrackKey& a, const TrackKey& b) {
    return std::max({std::fabs(b.angles.x - a.angles.x), std::fabs(b.angles.y - a.angles.y),
                     std::fabs(b.angles.z - a.angles.z)});
}

void CheckKey(const TrackText& t, const std::vector<TrackKey>& keys, std::size_t i) {
    const TrackKey& key = keys[i];
    const std::int64_t line = (*t.keys)[i].line;
    if (!IsFinite(key)) {
        Warn(t.report, line, "infinite",
             {Format("key %zu has a number beyond the range of singles", i),
              "nothing is drawn near it", "write a smaller number"});
    }
    if (!(key.fov > 0.0F && key.fov < 180.0F)) {
        Warn(t.report, line, "field of view",
             {Format("key %zu has a field of view of %g degrees", i, static_cast<double>(key.fov)),
              "the picture turns inside out or vanishes",
              "write a number between 0 and 180; 90 is usual, more magnifies"});
    }
    if (i > 0 && LargestTurn(keys[i - 1], key) > 180.0F) {
        Warn(t.report, line, "turn",
             {Format("from key %zu to key %zu an angle changes by %g degrees", i - 1, i,
                     static_cast<double>(LargestTurn(keys[i - 1], key))),
              "angles are interpolated as numbers: the camera turns the long way round",
              "write 350, 370 and not 350, 10"});
    }
    if (FramesOfSegment(key.step) >= kEndless) {
        Warn(t.report, line, "endless",
             {Format("key %zu has a step of %g", i, static_cast<double>(key.step)),
              "its segment does not end", "write 0.015625 for 64 frames"});
    }
}

std::int64_t FramesOf(const std::vector<TrackKey>& keys) {
    std::int64_t frames = 0;
    for (std::size_t i = 1; i + 1 < keys.size(); ++i) {
        frames += FramesOfSegment(keys[i].step);
    }
    return frames;
}

bool IsNamed(const std::string& path, const char* name) {
    return std::filesystem::path(path).filename() == name;
}

void CheckSceneOne(const TrackText& t, const std::vector<TrackKey>& keys) {
    const std::size_t count = keys.size();
    if (count < kNeededKeys) {
        Refuse(t.report, t.keys->back().line, nullptr,
               {Format("%zu keys, the first scene needs %d", count, kNeededKeys),
                "the track starts again and again: the second scene never comes", "add keys"});
        return;
    }
    if (count > kUsefulKeys) {
        Warn(t.report, (*t.keys)[kUsefulKeys].line, nullptr,
             {Format("%zu keys, %d are used", count, kUsefulKeys),
              "the scene is over before this one", "remove it"});
    }
    if (keys[kHandOverKey].step < 1.0F) {
        Warn(t.report, (*t.keys)[kHandOverKey].line, nullptr,
             {Format("key %zu has a step of %g", kHandOverKey,
                     static_cast<double>(keys[kHandOverKey].step)),
              "the second scene begins that far on its own track, and with 35 keys there skips 32 "
              "segments",
              "write 1.0"});
    }
}

void CheckSceneTwo(const TrackText& t, const std::vector<TrackKey>& keys) {
    if (keys.size() > kUsefulKeys) {
        Warn(t.report, (*t.keys)[kUsefulKeys].line, nullptr,
             {Format("%zu keys in the second scene, %d may be", keys.size(), kUsefulKeys),
              "it begins at segment 33 and not at 0", "remove keys"});
    }
    const std::int64_t frames = FramesOf(keys);
    if (frames < kSceneTwoSamples) {
        Warn(t.report, t.keys->back().line, nullptr,
             {Format("the track lasts %lld frames, the second scene %lld",
                     static_cast<long long>(frames), static_cast<long long>(kSceneTwoSamples)),
              "it starts again with a jump", "add keys or make steps smaller"});
    }
}

std::string SegmentText(const std::vector<TrackKey>& keys) {
    std::string text;
    std::size_t i = 1;
    while (i + 1 < keys.size()) {
        const std::int64_t frames = FramesOfSegment(keys[i].step);
        std::size_t run = 1;
        while (i + run + 1 < keys.size() && FramesOfSegment(keys[i + run].step) == frames) {
            ++run;
        }
        text += text.empty() ? "" : ", ";
        text += run > 1 ? Format("%zu x ", run) : "";
        text += std::to_string(frames);
        i += run;
    }
    return text;
}

void FlightRows(const std::vector<TrackKey>& keys, Report* report) {
    const std::vector<Camera> flight = FlightOf(keys, 20000);
    Vec3 low = flight[0].position;
    Vec3 high = low;
    double length = 0.0;
    double slowest = 1e30;
    double fastest = 0.0;
    float narrow = flight[0].fov;
    float wide = narrow;
    for (std::size_t i = 0; i < flight.size(); ++i) {
        const Vec3& p = flight[i].position;
        low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z), 1};
        high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z), 1};
        narrow = std::min(narrow, flight[i].fov);
        wide = std::max(wide, flight[i].fov);
        if (i > 0) {
            const Vec3& q = flight[i - 1].position;
            const double step =
                std::hypot(static_cast<double>(p.x - q.x), static_cast<double>(p.y - q.y),
                           static_cast<double>(p.z - q.z));
            length += step;
            slowest = std::min(slowest, step);
            fastest = std::max(fastest, step);
        }
    }
    Row(report, "bounds",
        Format("x %.0f to %.0f, up %.0f to %.0f, ahead %.0f to %.0f", static_cast<double>(low.x),
               static_cast<double>(high.x), static_cast<double>(low.y), static_cast<double>(high.y),
               static_cast<double>(low.z), static_cast<double>(high.z)));
    Row(report, "way", Format("%.0f units, %.1f to %.1f a frame", length, slowest, fastest));
    Row(report, "field of view",
        Format("%g to %g degrees", static_cast<double>(narrow), static_cast<double>(wide)));
}

} // namespace

std::int64_t FramesOfSegment(float step) {
    const ScopedFloatMode asPlayed(FloatMode::Chop);
    const float add = step > 0.0F ? step : 0.02F;
    std::int64_t frames = 0;
    for (float t = 0.0F; t < 1.0F && frames < kEndless; t += add) {
        ++frames;
    }
    return frames;
}

std::int64_t FramesOfSceneOne(const std::vector<TrackKey>& keys) {
    if (keys.size() < kNeededKeys) {
        return 0;
    }
    std::int64_t frames = 1;
    for (std::size_t i = 1; i <= 32; ++i) {
        frames += FramesOfSegment(keys[i].step);
    }
    return frames;
}

std::vector<TrackKey> KeysOf(const std::string& path) {
    std::vector<TrackKey> keys(static_cast<std::size_t>(kMaxTrackKeys));
    const std::int32_t count = TrackLoad(path.c_str(), keys.data(), kMaxTrackKeys);
    keys.resize(static_cast<std::size_t>(count));
    return keys;
}

std::vector<Camera> FlightOf(const std::vector<TrackKey>& keys, std::size_t limit) {
    const ScopedFloatMode asPlayed(FloatMode::Chop);
    std::vector<Camera> flight;
    Camera camera{};
    CameraSetup setup{};
    setup.fov = 90.0F;
    setup.screenWidth = 640.0F;
    setup.screenHeight = 480.0F;
    CameraInit(&camera, setup);
    ResetTrackState();
    std::int32_t before = 0;
    while (flight.size() < limit && keys.size() >= 3) {
        const std::int32_t segment =
            TrackSample(&camera, keys.data(), static_cast<std::int32_t>(keys.size()));
        // With one segment alone there is no step back: its start comes again.
        const bool again =
            segment < before || (segment == 0 && keys.size() == 3 && !flight.empty() &&
                                 camera.position.x == flight[0].position.x &&
                                 camera.position.y == flight[0].position.y &&
                                 camera.position.z == flight[0].position.z);
        if (again) {
            break;
        }
        before = segment;
        flight.push_back(camera);
    }
    ResetTrackState();
    return flight;
}

void InspectTrack(const std::string& path, Report* report) {
    FileBytes file;
    std::string problem;
    if (!ReadFile(path, kMaxTrackFile, &file, &problem)) {
        Refuse(report, 1, nullptr,
               {problem, "the camera stays where it is", "give a file that can be read"});
        report->summary = "broken";
        return;
    }
    std::vector<KeyText> texts;
    LineCounter lines(file.text);
    const TrackText t{file.text, &lines, report, &texts};
    ReadKeys(t);
    const std::vector<TrackKey> keys = KeysOf(path);
    if (keys.size() != texts.size()) {
        Refuse(
            report, 1, nullptr,
            {Format("the production reads %zu keys, this inspector %zu", keys.size(), texts.size()),
             "the production is right", "tell the makers of this program"});
        return;
    }
    Row(report, "keys", Format("%zu", keys.size()));
    report->summary = Format("%zu keys", keys.size());
    if (keys.size() < 3) {
        Refuse(report, 1, nullptr,
               {Format("%zu keys, a track needs 3", keys.size()), "the camera stays where it is",
                "add keys"});
        return;
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        CheckKey(t, keys, i);
    }
    Row(report, "frames",
        Format("%lld, by segment ", static_cast<long long>(FramesOf(keys))) + SegmentText(keys));
    if (IsNamed(path, "scene1.trk")) {
        CheckSceneOne(t, keys);
        if (const std::int64_t first = FramesOfSceneOne(keys); first > 0) {
            const std::int64_t all = first + kSceneTwoFrames;
            Row(report, "F1",
                Format("%lld frames of the first scene", static_cast<long long>(first)));
            Row(report, "production",
                Format("%lld frames, %.3f s", static_cast<long long>(all),
                       static_cast<double>(all) * 0.025));
        }
    } else if (IsNamed(path, "scene2.trk")) {
        CheckSceneTwo(t, keys);
    }
    FlightRows(keys, report);
    report->summary += Format(", %lld frames", static_cast<long long>(FramesOf(keys)));
}

} // namespace inspect
