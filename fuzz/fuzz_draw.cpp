// The rasterizer: a draw job made of the input's bytes - any flags, any numbers, any texture -
// drawn into a frame and a depth buffer that stand against pages without access. Textures are made
// by the loaders' own functions. Nothing outside the clip rectangle may change.
#include <algorithm>
#include <cstring>
#include <vector>

#include "assets/bmp.h"
#include "base/float_mode.h"
#include "base/rect.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "raster/paths.h"
#include "scene/face_list.h"
#include "support/guard_memory.h"

#include "byte_source.h"
#include "limits.h"
#include "memory_file.h"

namespace {

using namespace ombrel;

constexpr std::int32_t kMaxWidth = 64;
constexpr std::int32_t kMaxHeight = 48;
constexpr std::int32_t kMaxPitch = kMaxWidth + 8; // pixels
constexpr std::int32_t kMaxFaces = 8;
constexpr Pixel16 kUntouched = 0x5AA5;
constexpr std::uint32_t kUntouchedCell = 0x5AA55AA5;

FaceList list{};

// A buffer at one end of its memory, against the page there.
struct Room {
    GuardMemory before, behind;
};
Room frameRoom{};
Room depthRoom{};

Pixel16 plainFrame[kMaxPitch * kMaxHeight];
std::uint32_t plainDepth[kMaxPitch * kMaxHeight];

unsigned char* PlaceIn(const Room& room, bool atEnd, std::int32_t bytes) {
    const auto size = static_cast<std::size_t>(bytes);
    return atEnd ? room.behind.bytes + (room.behind.size - size) : room.before.bytes;
}

// Frame and depth buffer of a job, and what of them may be drawn to.
struct Canvas {
    std::int32_t width, height;
    std::int32_t framePitch, depthPitch; // pixels, cells
    Pixel16* frame;
    std::uint32_t* depth;
    std::int32_t pixels, cells; // in all
    Rect clip;
};

Canvas MakeCanvas(ByteSource* source) {
    Canvas c{};
    c.width = 1 + source->Below(kMaxWidth);
    c.height = 1 + source->Below(kMaxHeight);
    c.framePitch = c.width + source->Below(kMaxPitch - c.width);
    c.depthPitch = c.width + source->Below(kMaxPitch - c.width);
    const bool atEnd = (source->Byte() & 1) != 0;
    // The last row ends with its last pixel.
    const std::int32_t pixels = c.framePitch * (c.height - 1) + c.width;
    const std::int32_t cells = c.depthPitch * (c.height - 1) + c.width;
    c.frame = reinterpret_cast<Pixel16*>(PlaceIn(frameRoom, atEnd, pixels * 2));
    c.depth = reinterpret_cast<std::uint32_t*>(PlaceIn(depthRoom, atEnd, cells * 4));
    c.pixels = pixels;
    c.cells = cells;
    c.clip = {source->Below(c.width + 1), source->Below(c.height + 1), source->Below(c.width + 1),
              source->Below(c.height + 1)};
    return c;
}

void Clear(const Canvas& c) {
    std::fill_n(c.frame, c.pixels, kUntouched);
    std::fill_n(c.depth, c.cells, kUntouchedCell);
}

bool IsClippedAway(const Rect& clip, std::int32_t x, std::int32_t y) {
    return x < clip.left || x >= clip.right || y < clip.top || y >= clip.bottom;
}

void CheckCanvas(const Canvas& c) {
    for (std::int32_t y = 0; y < c.height; ++y) {
        for (std::int32_t x = 0; x < c.width; ++x) {
            if (IsClippedAway(c.clip, x, y)) {
                Require(c.frame[y * c.framePitch + x] == kUntouched);
                Require(c.depth[y * c.depthPitch + x] == kUntouchedCell);
            }
        }
    }
}

struct MadeTexture {
    Texture record;
    Texture** chain; // null: none was asked for, or it could not be had
};

MadeTexture MakeTexture(ByteSource* source) {
    MadeTexture made{};
    const std::uint8_t shape = source->Byte();
    const std::int32_t width = (shape & 1) != 0 ? source->Below(40) : 1 << source->Below(7);
    const std::int32_t height = (shape & 2) != 0 ? source->Below(40) : width;
    const std::int32_t bits = (shape & 4) != 0 && (shape & 8) != 0 ? 8 : 16;
    if (createTexture(&made.record, {0, 0, width, height, bits}) == 0) {
        return made;
    }
    auto* const bytes = static_cast<std::uint8_t*>(made.record.pixels);
    for (std::int32_t i = 0; i < made.record.byteSize; ++i) {
        bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256 * 3 + shape);
    }
    if ((shape & 16) != 0) {
        (void)buildMipChain(&made.record, &made.chain, 1.01F);
    }
    return made;
}

void FillFace(RenderFace* face, ByteSource* source, MadeTexture* texture) {
    *face = RenderFace{};
    const std::uint8_t kind = source->Byte();
    face->state = (kind & 3) != 0 ? FACE_LIVE : source->Word();
    face->flags = source->Word();
    face->color = source->Word();
    for (std::uint32_t& color : face->litColors) {
        color = source->Word();
    }
    // A face says itself whether it has a chain; the pipeline never hands on another.
    face->flags &= texture->chain != nullptr ? ~0U : ~MAT_MIPMAPPED;
    if ((face->flags & MAT_MIPMAPPED) != 0) {
        face->texture.chain = texture->chain;
    } else {
        face->texture.single = (kind & 4) != 0 ? nullptr : &texture->record;
    }
    for (FaceCorner& vertex : face->work) {
        vertex.x = source->Float();
        vertex.y = source->Float();
        vertex.z = source->Float();
        vertex.u = source->Float();
        vertex.v = source->Float();
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    constexpr std::size_t kCells = std::size_t{kMaxPitch} * kMaxHeight;
    frameRoom = {MakeGuardMemory(kCells * 2, GuardSide::Before),
                 MakeGuardMemory(kCells * 2, GuardSide::After)};
    depthRoom = {MakeGuardMemory(kCells * 4, GuardSide::Before),
                 MakeGuardMemory(kCells * 4, GuardSide::After)};
    BuildBlendTables(kBlendTableCount, BlendTables[0]);
    FaceListClear(&list);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const InputLimits limits;
    ByteSource source{data, size};
    const Canvas canvas = MakeCanvas(&source);
    MadeTexture textures[2] = {MakeTexture(&source), MakeTexture(&source)};
    DrawJob job{};
    job.flags = source.Word();
    job.faces = &list;
    job.frame = canvas.frame;
    job.framePitch = canvas.framePitch * 2 + (source.Byte() & 1);
    job.depth = canvas.depth;
    job.depthPitch = canvas.depthPitch * 4 + (source.Byte() & 3);
    job.level = (source.Byte() & 1) != 0 ? source.Signed() : source.Below(16) - 8;
    job.mipDistance = (source.Byte() & 1) != 0 ? source.Signed() : source.Below(64);
    job.lodDistance = (source.Byte() & 1) != 0 ? source.Signed() : source.Below(64);
    job.clip = canvas.clip;
    const std::uint8_t wish = source.Byte();
    list.count = 0;
    while (list.count < kMaxFaces && source.left > 0) {
        RenderFace* const face = &list.records[list.count++];
        FillFace(face, &source, &textures[source.Byte() & 1]);
    }

    // Draw with the plain fillers, and with the fillers of one kind of vectors: the same bits.
    const auto path = static_cast<VectorPath>(wish % kVectorPathCount);
    Clear(canvas);
    ResetFillers();
    DrawFaces(&job);
    CheckCanvas(canvas);
    if (ProcessorRuns(path)) {
        std::copy_n(canvas.frame, canvas.pixels, plainFrame);
        std::copy_n(canvas.depth, canvas.cells, plainDepth);
        Clear(canvas);
        std::copy_n(RasterPathOf(path).fillers, kFillerCount, activeFillers);
        DrawFaces(&job);
        Require(std::equal(plainFrame, plainFrame + canvas.pixels, canvas.frame));
        Require(std::equal(plainDepth, plainDepth + canvas.cells, canvas.depth));
    }
    for (MadeTexture& texture : textures) {
        releaseMipChain(texture.chain);
        releaseTexture(&texture.record);
    }
    return 0;
}
