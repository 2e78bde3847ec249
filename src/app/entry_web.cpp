// The functions of the WebAssembly module: the show (player/show.h) and the looks into it, for the
// script of the page. Numbers are 32-bit integers unless a comment says otherwise, texts are
// addresses of bytes closed by a zero, booleans 0 or 1. Texts and pictures stay as they are until
// the next call of the function that returned them; any call may make the memory of the module
// grow, so views of it are made anew after each. One show at a time.
//
// Order of calls: _initialize (of the module), ombrel_add_file for every file, ombrel_use_path,
// ombrel_published if wanted, ombrel_open, then steps, seeks and looks, ombrel_close.
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "app/frame_driver.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/memory_files.h"
#include "base/version.h"
#include "platform/display.h"
#include "platform/web/web.h"
#include "player/chapters.h"
#include "player/looks.h"
#include "player/sample.h"
#include "player/show.h"

#define OMBREL_EXPORT(name) extern "C" __attribute__((export_name(#name))) auto name

namespace {

using ombrel::Look;

struct WebShow {
    std::vector<std::uint8_t> rgba;       // of the frame
    std::vector<std::uint8_t> looked;     // of the last look
    ombrel::LookPicture look;             // with its legend
    ombrel::ObjectAt object;              // under the last point asked for
    ombrel::FrameFigures figures;         // of the frame last counted
    std::vector<std::string> missing;     // files that did not open
    std::int32_t budget;                  // frames that a seek may still play
    std::vector<std::uint64_t> published; // hashes of all pictures; none: not told
};

WebShow show{}; // written and read by the functions below

void NoteMissing(const char* path) {
    show.missing.emplace_back(path);
}

bool IsWithin(std::int32_t index, std::size_t count) {
    return index >= 0 && static_cast<std::size_t>(index) < count;
}

// Of the visible pixels of a picture.
const std::uint8_t* AsRgba(const ombrel::Pixel16* pixels, std::int32_t pitch, std::int32_t width,
                           std::int32_t height, std::vector<std::uint8_t>* out) {
    out->resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
    ombrel::ToRgba(pixels, pitch, width, height, out->data());
    return out->data();
}

bool SpendFrame(std::int32_t, void*) {
    return --show.budget > 0;
}

} // namespace

// --- memory and files ----------------------------------------------------------------------------

// size bytes of the module's memory, for ombrel_add_file or a text; 0 when there are none left.
OMBREL_EXPORT(ombrel_allocate)(std::size_t size)->void* {
    return std::malloc(size > 0 ? size : 1);
}
OMBREL_EXPORT(ombrel_free)(void* memory)->void {
    std::free(memory);
}

// A data file by its name below the data folder, "cam/scene1.trk". The bytes come from
// ombrel_allocate and become the module's.
OMBREL_EXPORT(ombrel_add_file)(const char* name, std::uint8_t* bytes, std::size_t size)->void {
    ombrel::AddMemoryFile(name, bytes, size);
}
// Frees all. The tracks are read by the first frame of each scene, all else by ombrel_open.
OMBREL_EXPORT(ombrel_forget_files)()->void {
    ombrel::ForgetMemoryFiles();
}
OMBREL_EXPORT(ombrel_missing_count)()->std::int32_t {
    return static_cast<std::int32_t>(show.missing.size());
}
// The path of a file that was wanted since ombrel_open and not there: "./data/2d/font-48.bmp".
OMBREL_EXPORT(ombrel_missing_name)(std::int32_t index)->const char* {
    auto& missing = show.missing;
    return IsWithin(index, missing.size()) ? missing[static_cast<std::size_t>(index)].c_str() : "";
}

// --- code paths ----------------------------------------------------------------------------------

// "scalar" or "wasm" (vectors); an empty text is the best. 0 when that one is not there: then the
// best is taken. To be called before ombrel_open.
OMBREL_EXPORT(ombrel_use_path)(const char* name)->std::int32_t {
    (void)setenv(ombrel::kPathVariable, name, 1);
    bool understood = false;
    (void)ombrel::ChooseVectorPath(&understood);
    return understood ? 1 : 0;
}

// --- the show ------------------------------------------------------------------------------------

OMBREL_EXPORT(ombrel_version)()->const char* {
    return ombrel::kVersion;
}

// The published hashes of all pictures in order, 8 bytes each, little-endian: then a far seek need
// draw the frames before its own only once. The bytes stay the caller's. To be called before
// ombrel_open.
OMBREL_EXPORT(ombrel_published)(const std::uint8_t* hashes, std::int32_t count)->void {
    show.published.resize(static_cast<std::size_t>(count));
    std::memcpy(show.published.data(), hashes, show.published.size() * sizeof(std::uint64_t));
}

// Loads the files and stands before the first frame. snapshotBytes: what may be held for seeking
// back, 0 for the usual 300 MiB. 0 when it could not be opened.
OMBREL_EXPORT(ombrel_open)
(std::int32_t width, std::int32_t height, std::size_t snapshotBytes)->std::int32_t {
    ombrel::CloseShow();
    ombrel::ResetWeb();
    show.missing.clear();
    ombrel::SetMissingFileHook(NoteMissing);
    const auto count = static_cast<std::int32_t>(show.published.size());
    return ombrel::OpenShow({ombrel::RenderFrame,
                             width,
                             height,
                             0,
                             snapshotBytes,
                             {show.published.data(), count}})
               ? 1
               : 0;
}
OMBREL_EXPORT(ombrel_close)()->void {
    ombrel::CloseShow();
    show = WebShow{};
}

// Draws the next frame; 0 at the end of the production, and then nothing was drawn.
OMBREL_EXPORT(ombrel_step)()->std::int32_t {
    return ombrel::StepShow() ? 1 : 0;
}
// Goes towards a frame and returns the number of the one that is shown then. At most maxFrames are
// played, so that the page can show how far it is: call again until the number is the frame, or
// ombrel_ended.
OMBREL_EXPORT(ombrel_seek)(std::int32_t frame, std::int32_t maxFrames)->std::int32_t {
    show.budget = maxFrames;
    return ombrel::SeekShow(frame, SpendFrame, nullptr);
}
OMBREL_EXPORT(ombrel_shown_frame)()->std::int32_t { // -1 before the first
    return ombrel::ShownFrame();
}
OMBREL_EXPORT(ombrel_ended)()->std::int32_t {
    return ombrel::ShowEnded() ? 1 : 0;
}
OMBREL_EXPORT(ombrel_snapshot_bytes)()->std::size_t {
    return ombrel::SnapshotBytes();
}

// --- the picture ---------------------------------------------------------------------------------

OMBREL_EXPORT(ombrel_width)()->std::int32_t {
    return ombrel::display.width;
}
OMBREL_EXPORT(ombrel_height)()->std::int32_t {
    return ombrel::display.height;
}
// The shown frame: width x height x 4 bytes, red, green, blue, 255. 0 when nothing is open.
OMBREL_EXPORT(ombrel_picture)()->const std::uint8_t* {
    ombrel::LockFrame();
    const ombrel::FrameBuffer back = ombrel::display.back;
    const std::uint8_t* const picture = back.pixels == nullptr
                                            ? nullptr
                                            : AsRgba(back.pixels, back.pitch, ombrel::display.width,
                                                     ombrel::display.height, &show.rgba);
    (void)ombrel::UnlockFrame();
    return picture;
}
// 64 bits (BigInt of the script, to be taken without sign): the published hash of the frame.
OMBREL_EXPORT(ombrel_picture_hash)()->std::uint64_t {
    return ombrel::ShownHash();
}

// --- looks ---------------------------------------------------------------------------------------

OMBREL_EXPORT(ombrel_look_count)()->std::int32_t {
    return ombrel::kLookCount;
}
OMBREL_EXPORT(ombrel_look_name)(std::int32_t look)->const char* { // "wires"
    return IsWithin(look, ombrel::kLookCount) ? ombrel::LookName(static_cast<Look>(look)) : "";
}
OMBREL_EXPORT(ombrel_look_meaning)(std::int32_t look)->const char* { // a line in words
    return IsWithin(look, ombrel::kLookCount) ? ombrel::LookMeaning(static_cast<Look>(look)) : "";
}
// The number of a look; -1 for an unknown name.
OMBREL_EXPORT(ombrel_look_of_name)(const char* name)->std::int32_t {
    Look look = Look::None;
    return ombrel::LookOfName(name, &look) ? static_cast<std::int32_t>(look) : -1;
}
// The shown frame so looked at, as ombrel_picture gives it; 0 before the first frame.
OMBREL_EXPORT(ombrel_draw_look)(std::int32_t look)->const std::uint8_t* {
    ombrel::LookPicture& picture = show.look;
    if (!IsWithin(look, ombrel::kLookCount) ||
        !ombrel::DrawLook(static_cast<Look>(look), &picture)) {
        return nullptr;
    }
    return AsRgba(picture.pixels.data(), picture.width * 2, picture.width, picture.height,
                  &show.looked);
}
// The rows of the last look's legend: a name, how many pixels show it, its colour 0xRRGGBB.
OMBREL_EXPORT(ombrel_legend_count)()->std::int32_t {
    return static_cast<std::int32_t>(show.look.legend.size());
}
OMBREL_EXPORT(ombrel_legend_name)(std::int32_t row)->const char* {
    const auto& legend = show.look.legend;
    return IsWithin(row, legend.size()) ? legend[static_cast<std::size_t>(row)].name.c_str() : "";
}
OMBREL_EXPORT(ombrel_legend_pixels)(std::int32_t row)->std::int32_t {
    const auto& legend = show.look.legend;
    return IsWithin(row, legend.size()) ? legend[static_cast<std::size_t>(row)].pixels : 0;
}
OMBREL_EXPORT(ombrel_legend_color)(std::int32_t row)->std::int32_t {
    const auto& legend = show.look.legend;
    if (!IsWithin(row, legend.size())) {
        return 0;
    }
    std::uint8_t rgba[4] = {};
    ombrel::ToRgba(&legend[static_cast<std::size_t>(row)].color, 2, 1, 1, rgba);
    return rgba[0] << 16 | rgba[1] << 8 | rgba[2];
}

// What the pixel shows: the name of the object; empty for none, and before the first frame.
OMBREL_EXPORT(ombrel_find_object)(std::int32_t x, std::int32_t y)->const char* {
    show.object = ombrel::FindObject(x, y);
    return show.object.name.c_str();
}
OMBREL_EXPORT(ombrel_object_faces)()->std::int32_t { // of the object last found
    return show.object.faces;
}
OMBREL_EXPORT(ombrel_object_record)()->std::int32_t { // the face's place in the face list
    return show.object.record;
}

// Counts what the shown frame was made of; 0 before the first frame.
OMBREL_EXPORT(ombrel_count_figures)()->std::int32_t {
    return ombrel::CountFrame(&show.figures) ? 1 : 0;
}
OMBREL_EXPORT(ombrel_figure_faces)()->std::int32_t {
    return show.figures.faces;
}
OMBREL_EXPORT(ombrel_figure_triangles)()->std::int32_t {
    return show.figures.triangles;
}
OMBREL_EXPORT(ombrel_figure_pixels)()->double { // asked for by fillers
    return static_cast<double>(show.figures.pixels);
}

// --- the still life of a filler ------------------------------------------------------------------

OMBREL_EXPORT(ombrel_filler_count)()->std::int32_t {
    return ombrel::kFillerCount;
}
OMBREL_EXPORT(ombrel_filler_name)(std::int32_t filler)->const char* { // "FillTexW"
    return IsWithin(filler, ombrel::kFillerCount) ? ombrel::kFillerTable[filler].name : "";
}
// 640 x 480 pixels as ombrel_picture gives them, drawn by that filler at a blend level of 0 to 7
// with the texture of a mip level of 0 to 6; 0 for other numbers. Behind ombrel_open.
OMBREL_EXPORT(ombrel_draw_sample)
(std::int32_t filler, std::int32_t level, std::int32_t mip)->const std::uint8_t* {
    ombrel::LookPicture& picture = show.look;
    if (!IsWithin(filler, ombrel::kFillerCount) ||
        !ombrel::DrawSample(static_cast<ombrel::FillerId>(filler),
                            static_cast<std::uint32_t>(level), mip, &picture)) {
        return nullptr;
    }
    return AsRgba(picture.pixels.data(), picture.width * 2, picture.width, picture.height,
                  &show.looked);
}

// --- chapters ------------------------------------------------------------------------------------

OMBREL_EXPORT(ombrel_chapter_count)()->std::int32_t {
    return ombrel::kChapterCount;
}
OMBREL_EXPORT(ombrel_chapter_name)(std::int32_t chapter)->const char* {
    return IsWithin(chapter, ombrel::kChapterCount) ? ombrel::kChapters[chapter].name : "";
}
OMBREL_EXPORT(ombrel_chapter_frame)(std::int32_t chapter)->std::int32_t { // its first
    return IsWithin(chapter, ombrel::kChapterCount) ? ombrel::kChapters[chapter].frame : 0;
}
