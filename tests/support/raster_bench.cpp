#include "raster_bench.h"

#include <algorithm>
#include <cstring>

#include "raster/paths.h"
#include "sixteen_lanes.h"

namespace ombrel::test {

namespace {

// Memory for one drawing, against the page on one of its sides.
struct Room {
    GuardMemory frame, depth;
};
constexpr std::size_t kLargestPicture = std::size_t{128} * 128; // cells, padding included

struct Rooms {
    Room sides[2];
    std::vector<Pixel16> blendTables; // the reference's own

    Rooms() {
        for (int i = 0; i < 2; ++i) {
            const GuardSide side = i == 0 ? GuardSide::Before : GuardSide::After;
            sides[i] = {MakeGuardMemory(kLargestPicture * 2, side),
                        MakeGuardMemory(kLargestPicture * 4, side)};
        }
        blendTables.assign(8 * reference::kBlendTableLength, 0);
        reference::BuildTables(blendTables.data());
    }
};

Rooms& AllRooms() {
    static Rooms rooms;
    return rooms;
}

// The place of a picture's cells in a room: at the page before them, or at the page after them.
struct Cells {
    Pixel16* frame;
    std::uint32_t* depth;
};
Cells CellsIn(const Room& room, int side, std::size_t count) {
    const std::size_t skipped = side == 0 ? 0 : kLargestPicture - count;
    return {reinterpret_cast<Pixel16*>(room.frame.bytes) + skipped,
            reinterpret_cast<std::uint32_t*>(room.depth.bytes) + skipped};
}

// Where and when a path left something else than the reference; empty: nowhere.
std::string Difference(const Picture& wanted, const Cells& cells) {
    for (std::int32_t y = 0; y < wanted.height; ++y) {
        for (std::int32_t x = 0; x < wanted.width + Picture::kPadding; ++x) {
            const std::size_t i = wanted.IndexOf(x, y);
            if (cells.frame[i] != wanted.frame[i] || cells.depth[i] != wanted.depth[i]) {
                return "at " + std::to_string(x) + ", " + std::to_string(y) + ": pixel " +
                       std::to_string(cells.frame[i]) + " depth " + std::to_string(cells.depth[i]) +
                       ", the reference has " + std::to_string(wanted.frame[i]) + ", " +
                       std::to_string(wanted.depth[i]);
            }
        }
    }
    return "";
}

} // namespace

const std::array<PathEntry, kPathCount>& AllPaths() {
    static const std::array<PathEntry, kPathCount> paths = [] {
        std::array<PathEntry, kPathCount> all = {};
        std::size_t count = 0;
        for (const VectorPath path : kPathsHere) {
            all[count++] = {NameOf(path),
                            ProcessorRuns(path) ? RasterPathOf(path).fillers : nullptr};
        }
        all[count] = {"sixteen",
                      ProcessorRuns(VectorPath::Avx2) ? kSixteenLanePath.fillers : nullptr};
        return all;
    }();
    return paths;
}

Picture::Picture(std::int32_t pictureWidth, std::int32_t pictureHeight, std::uint32_t clearDepth,
                 Pixel16 color)
    : width(pictureWidth), height(pictureHeight),
      frame(static_cast<std::size_t>((pictureWidth + kPadding) * pictureHeight), color),
      depth(frame.size(), clearDepth) {}

Picture::Picture(std::int32_t pictureWidth, std::int32_t pictureHeight, FillerId filler,
                 Pixel16 color)
    : Picture(pictureWidth, pictureHeight, ClearDepth(filler), color) {}

std::int32_t Picture::CountDrawn() const {
    return static_cast<std::int32_t>(
        std::count_if(frame.begin(), frame.end(), [](Pixel16 p) { return p != kBackground; }));
}

std::string Picture::Shape() const {
    std::string text;
    std::size_t used = 0;
    for (std::int32_t y = 0; y < height; ++y) {
        text += y == 0 ? "" : " ";
        bool any = false;
        for (std::int32_t x = 0; x < width; ++x) {
            text += DrawnAt(x, y) ? '#' : '.';
            any = any || DrawnAt(x, y);
        }
        used = any ? text.size() : used;
    }
    return text.substr(0, used);
}

TestTexture::TestTexture(std::int32_t width, std::int32_t height, std::vector<Pixel16> contents)
    : texels(std::move(contents)), record{1,  TEX_FILLED,   0, 0, width, height, width * height * 2,
                                          16, texels.data()} {}

std::vector<Pixel16> EqualTexels(std::int32_t count, Pixel16 texel) {
    return std::vector<Pixel16>(static_cast<std::size_t>(count), texel);
}

std::vector<Pixel16> CountedTexels(std::int32_t count) {
    std::vector<Pixel16> texels(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < texels.size(); ++i) {
        texels[i] = static_cast<Pixel16>(i + 1);
    }
    return texels;
}

ScreenPolygon MakePolygon(const std::array<Corner, 3>& corners, Texture* texture,
                          const std::array<std::uint32_t, 3>& colors) {
    ScreenPolygon polygon{};
    polygon.texture.single = texture;
    for (std::size_t i = 0; i < 3; ++i) {
        polygon.litColors[i] = colors[i];
        Vertex& vertex = polygon.vertices[i];
        vertex.x = corners[i].x;
        vertex.y = corners[i].y;
        vertex.z = corners[i].z;
        vertex.u = corners[i].u;
        vertex.v = corners[i].v;
    }
    return polygon;
}

ScreenPolygon Everywhere(Texture* texture, std::uint32_t color, float z) {
    return MakePolygon({{{-10, -10, z}, {300, -10, z}, {-10, 300, z}}}, texture,
                       {color, color, color});
}

std::vector<FillerId> AllFillers() {
    return FillersWith([](const FillerRow&) { return true; });
}

std::uint32_t ClearDepth(FillerId id) {
    return RowOf(id).depth == "W" ? 0U : 0xFFFFFFFFU;
}

const reference::Filler& ReferenceOf(FillerId id) {
    return *reference::FindFiller(RowOf(id).name);
}

void RasterBench::SetUp() {
    BuildBlendTables(kBlendTableCount, &BlendTables[0][0]);
}

ScreenPolygon RasterBench::Draw(Picture* picture, FillerId filler, const ScreenPolygon& polygon,
                                const Brushwork& how) {
    Rooms& rooms = AllRooms();
    const std::int32_t row = picture->width + Picture::kPadding;
    const std::size_t count = picture->frame.size();
    EXPECT_LE(count, kLargestPicture);
    const Rect clip =
        how.clip.left == INT32_MIN ? Rect{0, 0, picture->width, picture->height} : how.clip;
    const Picture before = *picture;
    ScreenPolygon left = polygon;
    reference::Fill(ReferenceOf(filler), &left,
                    {picture->frame.data(), row * 2, picture->depth.data(), row * 4, how.level,
                     clip, rooms.blendTables.data()});
    for (const PathEntry& path : AllPaths()) {
        if (path.fillers == nullptr) {
            continue;
        }
        for (int side = 0; side < 2; ++side) {
            const Cells cells = CellsIn(rooms.sides[side], side, count);
            std::memcpy(cells.frame, before.frame.data(), count * 2);
            std::memcpy(cells.depth, before.depth.data(), count * 4);
            ScreenPolygon used = polygon;
            path.fillers[static_cast<int>(filler)](
                &used, {cells.frame, row * 2, cells.depth, row * 4, how.level, clip});
            if (std::memcmp(cells.frame, picture->frame.data(), count * 2) != 0 ||
                std::memcmp(cells.depth, picture->depth.data(), count * 4) != 0) {
                ADD_FAILURE() << RowOf(filler).name << ", path " << path.name << ", "
                              << Difference(*picture, cells);
            }
            EXPECT_EQ(std::memcmp(&used, &left, sizeof used), 0)
                << RowOf(filler).name << ", path " << path.name << ": the polygon";
        }
    }
    return left;
}

Picture RasterBench::Drawn(FillerId filler, const ScreenPolygon& polygon, const Brushwork& how) {
    Picture picture(64, 48, filler);
    Draw(&picture, filler, polygon, how);
    return picture;
}

} // namespace ombrel::test
