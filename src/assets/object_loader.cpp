// The object loader: one pass over the file in the order of its sections (frame, vertices, texture
// vertices, faces, materials), then one pass over the mesh that sets what follows from them.
#include "assets/object_loader.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <utility>

#include "assets/line_reader.h"
#include "assets/object_lines.h"
#include "base/convert.h"
#include "base/pixel16.h"

namespace ombrel {

using namespace cob;

namespace {

// Everything one load works on.
struct Load {
    LineReader reader;
    Mesh* mesh;
    const LoadRequest* request;
    Matrix4 frame;     // of the object: centre and axes
    Matrix4 transform; // of the file
    std::int32_t texCoordCount;
    std::int32_t materialCount; // distinct numbers the faces use
    bool used[kMaterialNumbers];
    std::uint8_t faceMaterials[kMaxMeshFaces];
};

bool HasOption(const Load& load, std::uint32_t option) {
    return (load.request->options & option) != 0;
}

bool MatchLine(LineReader* reader, const LineForm& form) {
    replaceChars(reader->line, reader->line, form.blanks, ' ', 1);
    return match(reader, reader->line, form.pattern) != 0;
}

bool NextLine(LineReader* reader) {
    return readLine(reader, READ_SKIP_BLANK | READ_TRIM) != nullptr;
}

// Reads on to a line of this form; false at the end of the file.
bool Search(LineReader* reader, const LineForm& form) {
    while (NextLine(reader)) {
        if (MatchLine(reader, form)) {
            return true;
        }
    }
    return false;
}

// Reads one line. REQUIRED R17: where it has not this form, the results are what was left before.
bool TakeLine(LineReader* reader, const LineForm& form) {
    if (!NextLine(reader)) {
        return false;
    }
    MatchLine(reader, form);
    return true;
}

// Searches for a line whose first integer is a count; false unless it lies in 0..limit.
bool SearchCount(LineReader* reader, const LineForm& form, std::int64_t limit) {
    return Search(reader, form) && reader->ints[0] >= 0 && reader->ints[0] <= limit;
}

void SetColumn(Matrix4* matrix, std::size_t column, const Single* values) {
    for (std::size_t row = 0; row < 3; ++row) {
        matrix->m[row][column] = values[row];
    }
}

bool ReadFrame(Load* load) {
    LineReader* const reader = &load->reader;
    if (!Search(reader, kName) || !Search(reader, kCenter)) {
        return false;
    }
    for (std::size_t i = 0; i < 3; ++i) {
        load->frame.m[3][i] = -reader->floats[i];
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!TakeLine(reader, kAxes[axis])) {
            return false;
        }
        SetColumn(&load->frame, axis, reader->floats);
    }
    if (!Search(reader, kTransform)) {
        return false;
    }
    for (std::size_t row = 0; row < 3; ++row) {
        if (!TakeLine(reader, kThree)) {
            return false;
        }
        SetColumn(&load->transform, row, reader->floats);
    }
    return true;
}

// Bytes from the file's place to its end, which keeps its place; -1 when that cannot be told.
std::int64_t BytesLeft(std::FILE* file) {
    const long here = std::ftell(file);
    if (here < 0 || std::fseek(file, 0, SEEK_END) != 0) {
        return -1;
    }
    const long end = std::ftell(file);
    if (std::fseek(file, here, SEEK_SET) != 0 || end < here) {
        return -1;
    }
    return std::int64_t{end} - here;
}

// The most vertices that the rest of the file can hold.
std::int64_t VerticesThatFit(std::FILE* file) {
    return (BytesLeft(file) + 1) / kShortestVertexLine;
}

bool IsOfAllowedSize(std::FILE* file) {
    const std::int64_t size = BytesLeft(file);
    return size >= 0 && size <= static_cast<std::int64_t>(kMaxObjectFile);
}

Vec3 PlaceVertex(const Load& load, Vec3 position) {
    if (HasOption(load, LOAD_OBJECT_FRAME)) {
        const Vec3 from = position;
        Vec3TransformMatrix4(&from, &load.frame, &position);
    }
    if (HasOption(load, LOAD_TRANSFORM)) {
        const Vec3 from = position;
        Vec3TransformMatrix4(&from, &load.transform, &position);
    }
    position.x = HasOption(load, LOAD_NEGATE_X) ? -position.x : position.x;
    position.y = HasOption(load, LOAD_NEGATE_Y) ? -position.y : position.y;
    position.z = HasOption(load, LOAD_NEGATE_Z) ? -position.z : position.z;
    if (HasOption(load, LOAD_SWAP_YZ)) {
        std::swap(position.y, position.z);
    }
    if (HasOption(load, LOAD_SWAP_XZ)) {
        std::swap(position.x, position.z);
    }
    if (HasOption(load, LOAD_SWAP_XY)) {
        std::swap(position.x, position.y);
    }
    if (const Single* const scale = load.request->scale; scale != nullptr) {
        position.x *= scale[0];
        position.y *= scale[1];
        position.z *= scale[2];
    }
    return position;
}

bool ReadVertices(Load* load) {
    LineReader* const reader = &load->reader;
    Mesh* const mesh = load->mesh;
    if (!SearchCount(reader, kVertices, kMaxMeshVertices)) {
        return false;
    }
    const std::int32_t count = reader->ints[0];
    if (count > VerticesThatFit(reader->file) ||
        AllocateMeshArrays(mesh, count, 3 * count, 1, false) == 0) {
        return false;
    }
    mesh->faceCount = 0; // until faces are read
    for (std::int32_t i = 0; i < count; ++i) {
        if (!Search(reader, kThree)) {
            return false;
        }
        const Single* const f = reader->floats;
        const Vec3 position = PlaceVertex(*load, {f[0], f[1], f[2], 1.0F});
        Vertex& vertex = mesh->vertices[i];
        vertex.x = position.x;
        vertex.y = position.y;
        vertex.z = position.z;
        vertex.w = position.w;
        vertex.vflags |= VERTEX_LOADED;
    }
    ComputeMeshRadius(mesh);
    return true;
}

bool ReadTexCoords(Load* load) {
    LineReader* const reader = &load->reader;
    if (!SearchCount(reader, kTexVerts, std::int64_t{9} * load->mesh->vertexCount)) {
        return false;
    }
    load->texCoordCount = reader->ints[0];
    for (std::int32_t i = 0; i < load->texCoordCount; ++i) {
        if (!Search(reader, kTwo)) {
            return false;
        }
        load->mesh->texCoords[i] = {reader->floats[0], reader->floats[1]};
    }
    return true;
}

// Whether the table has room for a material number of the file.
bool IsMaterialNumber(std::int32_t number) {
    return number >= 0 && number < kMaterialNumbers && number < kMaxMaterials - materialBase;
}

// The corners of a face from the six numbers of its line; false when one is outside its array.
bool SetCorners(const Load& load, const std::int32_t* numbers, Face* face) {
    const std::int32_t vertexCount = load.mesh->vertexCount;
    for (int i = 0; i < 6; i += 2) {
        if (numbers[i] < 0 || numbers[i] >= vertexCount || numbers[i + 1] < 0 ||
            numbers[i + 1] >= 9 * vertexCount) {
            return false;
        }
    }
    const bool reverse = HasOption(load, LOAD_REVERSE_CORNERS);
    const int first = reverse ? 4 : 0;
    const int last = reverse ? 0 : 4;
    face->v0 = numbers[first];
    face->v1 = numbers[2];
    face->v2 = numbers[last];
    face->t0 = numbers[first + 1];
    face->t1 = numbers[3];
    face->t2 = numbers[last + 1];
    return true;
}

bool ReadFaces(Load* load) {
    LineReader* const reader = &load->reader;
    Mesh* const mesh = load->mesh;
    const std::int32_t limit = std::min(3 * mesh->vertexCount, kMaxMeshFaces);
    if (!SearchCount(reader, kFaces, limit)) {
        return false;
    }
    const std::int32_t count = reader->ints[0];
    for (std::int32_t i = 0; i < count; ++i) {
        // The face line: corner count and material.
        if (!Search(reader, kFace)) {
            return false;
        }
        const std::int32_t corners = reader->ints[0];
        const std::int32_t material = reader->ints[2];
        if (corners != 3 || !IsMaterialNumber(material)) {
            return false;
        }
        load->faceMaterials[i] = static_cast<std::uint8_t>(material);
        load->materialCount += load->used[material] ? 0 : 1;
        load->used[material] = true;

        // The corner line.
        Face face = {};
        if (!TakeLine(reader, kCorners) || !SetCorners(*load, reader->ints, &face)) {
            return false;
        }
        face.active = FACE_LIVE;
        face.vertexArray = mesh->vertices;
        face.texCoordArray = mesh->texCoords;
        mesh->faces[i] = face;
        mesh->faceCount = i + 1;
    }
    return true;
}

// Cut to a whole number, of which the low 8 bits are kept.
std::uint8_t ToByte(Single value) {
    return static_cast<std::uint8_t>(ToIntChop(value + 0.5F) & 0xFF);
}

void CopyText(char* destination, std::size_t size, const char* text) {
    const std::size_t length = std::min(std::strlen(text), size - 1);
    std::memcpy(destination, text, length);
    std::memset(destination + length, 0, size - length);
}

bool IsTextureShape(const BmpInfoHeader& info) {
    return info.width >= 1 && info.width <= kMaxTextureSize && info.height >= 1 &&
           info.height <= kMaxTextureSize;
}

// Makes the mesh's texture from the named image, or, where that cannot be read or is larger than
// the fillers can take, in the shape of the image before it. Leaves the mesh without one when there
// is no such image, or no memory.
void LoadTexture(Mesh* mesh, const char* textureName, const DisplayFormat& format) {
    char path[std::size(kTextureFolder) + sizeof(Material::textureName)];
    CopyText(path, sizeof path, kTextureFolder);
    CopyText(path + std::size(kTextureFolder) - 1, sizeof(Material::textureName),
             BaseName(textureName));
    // REQUIRED R23: a texture that cannot be read is black, in the shape of the one read before.
    const BmpFileHeader fileBefore = loaderImage.fileHeader;
    const BmpInfoHeader infoBefore = loaderImage.infoHeader;
    if (loadBmp(&loaderImage, path, format) != 0 && !IsTextureShape(loaderImage.infoHeader)) {
        releaseBmp(&loaderImage);
        loaderImage.fileHeader = fileBefore;
        loaderImage.infoHeader = infoBefore;
    }

    const BmpInfoHeader& info = loaderImage.infoHeader;
    Texture* texture = nullptr;
    if (IsTextureShape(info)) {
        texture = static_cast<Texture*>(std::calloc(1, sizeof(Texture)));
    }
    if (texture != nullptr &&
        createTexture(texture, {0, 0, info.width, info.height, info.bitCount}) != 0) {
        const auto copy = info.bitCount == 16 ? copyPixels16 : copyPixels8;
        copy(texture, &loaderImage, 0, 0, 1);
        mesh->texture.single = texture;
        mesh->flags |= MESH_TEXTURED;
    } else {
        std::free(texture);
    }
    releaseBmp(&loaderImage);
}

bool ReadColors(LineReader* reader, Material* material) {
    if (!Search(reader, kRgb)) {
        return false;
    }
    for (std::size_t i = 0; i < 3; ++i) { // bytes are level, blue, green, red
        material->color[3 - i] = ToByte(reader->floats[i] * 255.0F);
    }
    if (!Search(reader, kAlpha)) {
        return false;
    }
    material->color[0] = ToByte(reader->floats[0] * 255.0F);
    material->ka = reader->floats[1];
    material->kd = 1.0F;
    material->ks = reader->floats[2];
    material->exponent = reader->floats[3];
    for (std::size_t i = 0; i < 3; ++i) {
        // REQUIRED R19: level, blue and green take part, red does not.
        const auto source = static_cast<Single>(material->color[i]);
        material->ambient[i] = ToByte(source * material->ka);
        material->diffuse[i] = ToByte(source * material->kd);
        material->specular[i] = ToByte(source * material->ks);
    }
    return true;
}

bool ReadColorShader(Load* load, Material* material) {
    LineReader* const reader = &load->reader;
    if (!Search(reader, kColorClass)) {
        return false;
    }
    // Plain colour, or texture map.
    for (;;) {
        if (!NextLine(reader)) {
            return false;
        }
        if (MatchLine(reader, kPlainColor)) {
            return true;
        }
        if (MatchLine(reader, kTextureMap)) {
            break;
        }
    }
    material->flags |= Material::MAT_TEXTURED;
    if (!Search(reader, kFileName)) {
        return false;
    }
    const std::size_t start = std::min(kFileNameStart, std::strlen(reader->line));
    CopyText(material->textureName, sizeof material->textureName, reader->line + start);
    if (load->mesh->texture.single == nullptr) {
        LoadTexture(load->mesh, material->textureName, load->request->format);
    }
    return true;
}

bool ReadTransparency(LineReader* reader, Material* material) {
    if (!Search(reader, kTransClass) || !Search(reader, kShaderName)) {
        return false;
    }
    const char* const word = reader->words[2];
    if (std::strcmp(word, "none") == 0) {
        material->flags &= ~Material::MAT_FILTER;
        material->color[0] = 0;
    } else if (std::strcmp(word, "filter") == 0) {
        material->flags |= Material::MAT_FILTER;
        if (!Search(reader, kFilter)) {
            return false;
        }
        const std::int32_t* const rgb = reader->ints;
        const std::int32_t brightest = std::max({rgb[0], rgb[1], rgb[2]});
        const std::uint8_t level = ToByte(static_cast<Single>(brightest) * kFilterScale);
        material->color[0] = std::min<std::uint8_t>(level, 7);
    }
    return true;
}

// k: the block's position in the file.
bool ReadReflectance(LineReader* reader, Material* material, std::int32_t k) {
    if (!Search(reader, kReflClass) || !Search(reader, kShaderName)) {
        return false;
    }
    std::uint32_t flag = kDefaultClass.material;
    for (const ShadingClass& shading : kClasses) {
        if (std::strcmp(reader->words[2], shading.word) == 0) {
            flag = shading.material;
        }
    }
    // REQUIRED R20: "plastic" goes to the record of the block's position, not of its number.
    Material* const target =
        flag == Material::MAT_PLASTIC ? &materials[materialBase + k] : material;
    target->flags |= flag;
    return true;
}

bool ReadMaterials(Load* load) {
    LineReader* const reader = &load->reader;
    for (std::int32_t k = 0; k < load->materialCount; ++k) {
        if (!Search(reader, kMaterial) || !IsMaterialNumber(reader->ints[0])) {
            return false;
        }
        Material* const material = &materials[materialBase + reader->ints[0]];
        if (!ReadColors(reader, material) || !ReadColorShader(load, material) ||
            !ReadTransparency(reader, material) || !ReadReflectance(reader, material, k)) {
            return false;
        }
    }
    return true;
}

void BuildMipChain(Load* load) {
    Mesh* const mesh = load->mesh;
    Texture** chain = nullptr;
    if (load->request->mipMode == 1 && mesh->texture.single != nullptr &&
        buildMipChain(mesh->texture.single, &chain, kMipBrightness) != 0) {
        mesh->flags |= MESH_MIPMAPPED;
        mesh->texture.chain = chain;
    }
}

void SetVertexFlags(Mesh* mesh, const Face& face, std::uint32_t flag) {
    for (const std::int32_t corner : {face.v0, face.v1, face.v2}) {
        mesh->vertices[corner].vflags |= flag;
    }
}

// The flags and colour that a face takes from its material.
void ApplyMaterial(const Load& load, const Material& material, Face* face) {
    Mesh* const mesh = load.mesh;
    const bool textured = (material.flags & Material::MAT_TEXTURED) != 0;
    const DisplayFormat& format = load.request->format;
    if (format.bitsPerPixel == 16) {
        face->flags |= FACE_FLATCOLOR16;
        const std::uint32_t color =
            textured ? format.pack(255, 255, 255)
                     : format.pack(material.color[3], material.color[2], material.color[1]);
        face->color = color & 0xFFFF;
    }
    const ShadingClass* shading = &kDefaultClass;
    for (const ShadingClass& candidate : kClasses) {
        if ((material.flags & candidate.material) != 0) {
            shading = &candidate;
            break;
        }
    }
    face->flags |= shading->face;
    if (shading->smooth) {
        SetVertexFlags(mesh, *face, VERTEX_HAS_NORMAL);
    }
    // Without a texture to show, such a face stays white and untextured.
    if (textured && mesh->texture.single != nullptr) {
        face->flags |= FACE_TEXTURED;
        face->texture = mesh->texture;
        const bool chain = (mesh->flags & MESH_MIPMAPPED) != 0 || load.request->mipMode > 1 ||
                           load.request->mipMode < 0;
        face->flags |= chain ? FACE_MIPMAPPED : 0;
        SetVertexFlags(mesh, *face, VERTEX_TEXTURED);
    }
    if ((material.flags & Material::MAT_FILTER) != 0) {
        // A level above 7 can only be an alpha that a later block of the same number left here.
        const std::uint32_t level = std::min<std::uint32_t>(material.color[0], 7);
        face->color += level << 24;
        face->flags |= FACE_TRANSPARENT;
    }
    face->flags |= FACE_LOADED;
}

// 0 for a value that is not a number.
Single ClampTexel(Single value, Single largest) {
    if (!(value > 0.0F)) {
        return 0.0F;
    }
    return value < largest ? value : largest;
}

// From 0..1 to texels, REQUIRED R22: both by the width; then into the image.
void ScaleTexCoords(const Load& load) {
    Mesh* const mesh = load.mesh;
    if (mesh->texture.single == nullptr) {
        return;
    }
    const bool chain = (mesh->flags & MESH_MIPMAPPED) != 0;
    const Texture* const texture = chain ? mesh->texture.chain[0] : mesh->texture.single;
    const auto w = static_cast<Single>(texture->width - 1);
    const auto h = static_cast<Single>(texture->height - 1);
    for (std::int32_t i = 0; i < load.texCoordCount; ++i) {
        TexCoord& coord = mesh->texCoords[i];
        Single u = coord.u * w;
        Single v = coord.v * w;
        u = HasOption(load, LOAD_MIRROR_U) ? w - u : u;
        v = HasOption(load, LOAD_MIRROR_V) ? w - v : v;
        if (HasOption(load, LOAD_SWAP_UV)) {
            std::swap(u, v);
        }
        coord.u = ClampTexel(u, w);
        coord.v = ClampTexel(v, h);
    }
}

bool ReadObject(Load* load) {
    return ReadFrame(load) && ReadVertices(load) && ReadTexCoords(load) && ReadFaces(load) &&
           ReadMaterials(load);
}

void FinishObject(Load* load) {
    Mesh* const mesh = load->mesh;
    BuildMipChain(load);
    for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
        ApplyMaterial(*load, materials[materialBase + load->faceMaterials[i]], &mesh->faces[i]);
    }
    materialBase += load->materialCount; // REQUIRED R21: a count, not the highest number
    ScaleTexCoords(*load);
    ComputeFaceSizes(mesh);
    SmoothVertexNormals(mesh);
}

} // namespace

constinit Material materials[kMaxMaterials] = {};
constinit std::int32_t materialBase = 0;
constinit BmpImage loaderImage = {};

void ResetMaterials() {
    for (Material& material : materials) {
        material = Material{};
    }
    materialBase = 0;
}

void ResetObjectLoader() {
    releaseBmp(&loaderImage);
    loaderImage = BmpImage{};
}

const char* cob::BaseName(const char* name) {
    const char* p = name + std::strlen(name);
    while (p > name && p[-1] != '\\' && p[-1] != '/' && (p[-1] & 0x80) == 0) {
        --p;
    }
    return p;
}

int loadObject(Mesh* mesh, const char* path, const LoadRequest& request) {
    *mesh = Mesh{};
    mesh->copyCount = 1;
    mesh->flags = MESH_LOADED;
    mesh->state = MESH_LIVE | MESH_DRAWABLE;
    mesh->position = request.position != nullptr ? *request.position : Vec3{0.0F, 0.0F, 0.0F, 1.0F};

    Load load = {};
    load.mesh = mesh;
    load.request = &request;
    load.frame = IdentityMatrix4;
    load.transform = IdentityMatrix4;
    if (!open(&load.reader, path)) {
        return 0;
    }
    const bool whole = IsOfAllowedSize(load.reader.file) && ReadObject(&load);
    if (whole) {
        FinishObject(&load);
    }
    reset(&load.reader);
    return whole ? 1 : 0;
}

int releaseObject(Mesh* mesh) {
    Texture* texture = mesh->texture.single;
    if ((mesh->flags & MESH_MIPMAPPED) != 0) {
        texture = mesh->texture.chain[0];
        releaseMipChain(mesh->texture.chain);
    }
    if (texture != nullptr) {
        releaseTexture(texture);
        std::free(texture);
    }
    return ReleaseMesh(mesh);
}

} // namespace ombrel
