// The object loader. The input is the object file; the textures it can name stand in fuzz/data.
// Whatever comes out must be safe to draw.
#include "assets/object_loader.h"
#include "base/data_file.h"
#include "base/float_mode.h"

#include "limits.h"
#include "memory_file.h"

namespace {

using namespace ombrel;

void CheckTexCoord(const Mesh& mesh, std::int32_t index, const Texture* texture) {
    Require(index >= 0 && index < 9 * mesh.vertexCount);
    if (texture != nullptr) {
        const TexCoord& coord = mesh.texCoords[index];
        Require(coord.u >= 0.0F && coord.u <= static_cast<float>(texture->width - 1));
        Require(coord.v >= 0.0F && coord.v <= static_cast<float>(texture->height - 1));
    }
}

void CheckMesh(const Mesh& mesh) {
    Require(mesh.vertexCount >= 0 && mesh.vertexCount <= kMaxMeshVertices);
    Require(mesh.faceCount >= 0 && mesh.faceCount <= kMaxMeshFaces);
    Require(mesh.faceCount <= 3 * mesh.vertexCount);
    Require(mesh.vertexCount == 0 || mesh.maxRadius != nullptr);
    const bool chain = (mesh.flags & MESH_MIPMAPPED) != 0;
    const Texture* const texture = chain ? mesh.texture.chain[0] : mesh.texture.single;
    for (std::int32_t i = 0; i < mesh.faceCount; ++i) {
        const Face& face = mesh.faces[i];
        const bool textured = (face.flags & FACE_TEXTURED) != 0;
        Require(!textured || texture != nullptr);
        Require(face.vertexArray == mesh.vertices && face.texCoordArray == mesh.texCoords);
        for (const std::int32_t corner : {face.v0, face.v1, face.v2}) {
            Require(corner >= 0 && corner < mesh.vertexCount);
        }
        for (const std::int32_t corner : {face.t0, face.t1, face.t2}) {
            CheckTexCoord(mesh, corner, textured ? texture : nullptr);
        }
        Require(face.color >> 24 <= 7);
    }
}

void LoadOnce(const std::string& path, std::uint32_t options, std::int32_t mipMode) {
    const std::int32_t before = materialBase;
    const Single scale[3] = {0.5F, 2.0F, 1000.0F};
    Mesh mesh;
    const int result = loadObject(&mesh, path.c_str(), {scale, nullptr, options, mipMode});
    Require(result == 1 || materialBase == before);
    Require(materialBase >= before && materialBase <= kMaxMaterials);
    CheckMesh(mesh);
    releaseObject(&mesh);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const InputLimits limits;
    SetDataFolder(OMBREL_SOURCE_DIR "/fuzz/data");
    ResetMaterials();
    ResetObjectLoader();
    const MemoryFile file(data, size);
    LoadOnce(file.Path(), 0x708, 0);
    LoadOnce(file.Path(), 0xFFF, 1); // into the next records, after the same textures
    return 0;
}
