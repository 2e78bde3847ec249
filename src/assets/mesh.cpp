// Memory and derived values of a mesh: radii, face sizes, smoothed normals.
#include "assets/mesh.h"

#include <cstddef>
#include <cstdlib>
#include <initializer_list>

namespace ombrel {

namespace {

// A zeroed array, never null for want of elements; null without memory.
template <class Element> Element* NewArray(std::int64_t count) {
    const std::int64_t size = count > 0 ? count : 1;
    return static_cast<Element*>(std::calloc(static_cast<std::size_t>(size), sizeof(Element)));
}

Vec3 PositionOf(const Vertex& vertex) {
    return {vertex.x, vertex.y, vertex.z, vertex.w};
}

// (v1 - v0) x (v2 - v0) of a face, in object space: its length is twice the area.
Vec3 FaceNormal(const Mesh& mesh, const Face& face) {
    const Vec3 a = PositionOf(mesh.vertices[face.v0]);
    const Vec3 b = PositionOf(mesh.vertices[face.v1]);
    const Vec3 c = PositionOf(mesh.vertices[face.v2]);
    Vec3 ab;
    Vec3 ac;
    Vec3 normal;
    Vec3Sub(&a, &b, &ab);
    Vec3Sub(&a, &c, &ac);
    Vec3Cross(&ab, &ac, &normal);
    return normal;
}

} // namespace

int AllocateMeshArrays(Mesh* mesh, std::int32_t vertexCount, std::int32_t faceCapacity,
                       std::int32_t copyCount, bool releaseFirst) {
    if (releaseFirst) {
        ReleaseMesh(mesh);
    }
    const std::int64_t slots = static_cast<std::int64_t>(vertexCount) * copyCount;
    if (vertexCount < 0 || faceCapacity < 0 || copyCount < 0 || slots > INT32_MAX) {
        return 0;
    }
    mesh->vertices = NewArray<Vertex>(slots);
    mesh->transformed = NewArray<Vertex>(slots);
    mesh->texCoords = NewArray<TexCoord>(static_cast<std::int64_t>(faceCapacity) * 3);
    mesh->avgRadius = NewArray<Single>(copyCount);
    mesh->maxRadius = NewArray<Single>(copyCount);
    mesh->faces = NewArray<Face>(faceCapacity);
    mesh->curVertices = mesh->vertices;
    mesh->curTransformed = mesh->transformed;
    if (mesh->vertices == nullptr || mesh->transformed == nullptr || mesh->texCoords == nullptr ||
        mesh->avgRadius == nullptr || mesh->maxRadius == nullptr || mesh->faces == nullptr) {
        return 0;
    }
    mesh->vertexCount = vertexCount;
    mesh->copyCount = copyCount;
    mesh->faceCount = faceCapacity;
    mesh->slotCount = static_cast<std::int32_t>(slots);
    return 1;
}

int ReleaseMesh(Mesh* mesh) {
    std::free(mesh->vertices); // the current arrays point into these two
    std::free(mesh->transformed);
    std::free(mesh->texCoords);
    std::free(mesh->faces);
    std::free(mesh->avgRadius);
    std::free(mesh->maxRadius);
    *mesh = Mesh{};
    return 1;
}

Single ComputeMeshRadius(Mesh* mesh) {
    const std::ptrdiff_t start = static_cast<std::ptrdiff_t>(mesh->currentCopy) * mesh->vertexCount;
    Double sum = 0.0;
    Double largest = 0.0;
    for (std::int32_t i = 0; i < mesh->vertexCount; ++i) {
        const Vertex& vertex = mesh->vertices[start + i];
        const auto x = static_cast<Double>(vertex.x);
        const auto y = static_cast<Double>(vertex.y);
        const auto z = static_cast<Double>(vertex.z);
        const Double distance = SquareRoot(x * x + y * y + z * z);
        sum += distance;
        largest = distance > largest ? distance : largest;
    }
    // Without vertices the mean is 0 / 0, not a number.
    mesh->avgRadius[mesh->currentCopy] =
        static_cast<Single>(sum / static_cast<Double>(mesh->vertexCount));
    mesh->maxRadius[mesh->currentCopy] = static_cast<Single>(largest);
    return mesh->maxRadius[mesh->currentCopy];
}

int ComputeFaceSizes(Mesh* mesh) {
    if (mesh == nullptr) {
        return 0;
    }
    for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
        const Vec3 normal = FaceNormal(*mesh, mesh->faces[i]);
        mesh->faces[i].size = Vec3Length(&normal);
    }
    return 1;
}

int SmoothVertexNormals(Mesh* mesh) {
    if (mesh == nullptr) {
        return 0;
    }
    // Add the normal of each plastic face to its corners; larger faces weigh more.
    std::int32_t counts[kMaxMeshVertices] = {};
    for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
        const Face& face = mesh->faces[i];
        if ((face.flags & FACE_PLASTIC) == 0) {
            continue;
        }
        const Vec3 normal = FaceNormal(*mesh, face);
        for (const std::int32_t corner : {face.v0, face.v1, face.v2}) {
            if (corner >= kMaxMeshVertices) {
                continue;
            }
            Vertex& vertex = mesh->vertices[corner];
            const Vec3 before = {vertex.nx, vertex.ny, vertex.nz, 1.0F};
            Vec3 sum;
            Vec3Add(&before, &normal, &sum);
            vertex.nx = sum.x;
            vertex.ny = sum.y;
            vertex.nz = sum.z;
            ++counts[corner];
        }
    }

    // Average and normalise.
    const std::int32_t count =
        mesh->vertexCount < kMaxMeshVertices ? mesh->vertexCount : kMaxMeshVertices;
    for (std::int32_t i = 0; i < count; ++i) {
        if (counts[i] < 1) {
            continue;
        }
        Vertex& vertex = mesh->vertices[i];
        const Single share = 1.0F / static_cast<Single>(counts[i]);
        Vec3 normal = {vertex.nx * share, vertex.ny * share, vertex.nz * share, 1.0F};
        Vec3Normalize(&normal);
        vertex.nx = normal.x;
        vertex.ny = normal.y;
        vertex.nz = normal.z;
    }
    return 1;
}

} // namespace ombrel
