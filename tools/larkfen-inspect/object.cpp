// The walk reports on the text; here the loaded mesh is looked at.
#include "object.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <map>
#include <vector>

#include "assets/object_lines.h"
#include "base/data_file.h"
#include "demo/fixed_objects.h"
#include "demo/scene_list.h"
#include "fillers.h"
#include "image.h"
#include "object_walk.h"
#include "scene/mesh_transform.h"

namespace inspect {

using namespace ombrel;

namespace {

constexpr float kRootOfTwo = 1.41421356F;
constexpr float kLightReach = 2097151.0F;    // largest coordinate the lights can take
constexpr float kLargestCoordinate = 1.0e9F; // beyond it faces are dropped
constexpr float kSmallestSky = 7601.0F;      // the corners of the box, times the root of two
constexpr float kLargestSky = 9620.0F;       // so that none of it lies beyond the far limit

struct Looked {
    const Mesh& mesh;
    const ObjectFacts& facts;
    const ObjectRole& role;
    Report* report;
};

std::vector<std::int32_t> UsedVertices(const Mesh& mesh) {
    std::vector<bool> used(static_cast<std::size_t>(mesh.vertexCount), false);
    for (std::int32_t i = 0; i < mesh.faceCount; ++i) {
        for (const std::int32_t v : {mesh.faces[i].v0, mesh.faces[i].v1, mesh.faces[i].v2}) {
            used[static_cast<std::size_t>(v)] = true;
        }
    }
    std::vector<std::int32_t> list;
    for (std::int32_t v = 0; v < mesh.vertexCount; ++v) {
        if (used[static_cast<std::size_t>(v)]) {
            list.push_back(v);
        }
    }
    return list;
}

float DistanceOf(const Vertex& v) {
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

std::int64_t LineOfVertex(const Looked& l, std::int32_t v) {
    return l.facts.vertexLines[static_cast<std::size_t>(v)];
}

// The farthest vertex that a face uses; -1 without faces.
std::int32_t FarthestUsed(const Mesh& mesh) {
    std::int32_t farthest = -1;
    for (const std::int32_t v : UsedVertices(mesh)) {
        if (farthest < 0 || DistanceOf(mesh.vertices[v]) > DistanceOf(mesh.vertices[farthest])) {
            farthest = v;
        }
    }
    return farthest;
}

void CheckRadius(const Looked& l) {
    const std::int32_t farthest = FarthestUsed(l.mesh);
    if (farthest < 0 || !l.role.culled) {
        return;
    }
    const float radius = l.mesh.maxRadius[0];
    const float reach = DistanceOf(l.mesh.vertices[farthest]);
    if (l.role.side == Side::Inside) {
        if (radius < kSmallestSky || radius > kLargestSky) {
            Warn(l.report, LineOfVertex(l, farthest), nullptr,
                 {Format("the sky's radius is %g in the world", static_cast<double>(radius)),
                  radius < kSmallestSky ? "it vanishes when the eye is near the side of the box"
                                        : "parts of it lie beyond the far limit and are cut away",
                  Format("make it %g to %g", static_cast<double>(kSmallestSky),
                         static_cast<double>(kLargestSky))});
        }
        return;
    }
    // A thousandth less still covers every pixel.
    if (radius < reach * kRootOfTwo * 0.999F) {
        const auto scale = static_cast<double>(l.role.scale[2]);
        Warn(l.report, LineOfVertex(l, farthest), nullptr,
             {Format("this corner is %g from the origin and the bounding radius only %g",
                     static_cast<double>(reach) / scale, static_cast<double>(radius) / scale),
              "the object vanishes at the side of the picture while some of it is in sight",
              Format("add a vertex that no face uses, %.3f from the origin",
                     static_cast<double>(reach * kRootOfTwo) / scale + 0.0005)});
    }
}

void CheckPlaces(const Looked& l) {
    for (const std::int32_t v : UsedVertices(l.mesh)) {
        const Vertex& vertex = l.mesh.vertices[v];
        const float largest =
            std::max({std::fabs(vertex.x), std::fabs(vertex.y), std::fabs(vertex.z)});
        if (!(largest < kLargestCoordinate)) {
            Warn(l.report, LineOfVertex(l, v), "beyond all",
                 {"a coordinate of 1e9 or more in the world", "its faces are not drawn",
                  "make the object smaller"});
        } else if (largest > kLightReach) {
            Warn(l.report, LineOfVertex(l, v), "beyond lights",
                 {Format("a coordinate of %g in the world", static_cast<double>(largest)),
                  "the lights reckon with at most 2097151: its faces are lit wrongly",
                  "make the object smaller"});
        }
    }
}

void CheckFaces(const Looked& l) {
    const Mesh& mesh = l.mesh;
    for (std::int32_t i = 0; i < mesh.faceCount; ++i) {
        const Face& face = mesh.faces[i];
        const auto& facts = l.facts.faces[static_cast<std::size_t>(i)];
        if (face.size == 0.0F) {
            Warn(l.report, facts.cornerLine, "no area",
                 {"a face without area", "it is never seen", "remove it"});
        }
        const bool moved = l.role.ground && (face.v0 == 0 || face.v1 == 0 || face.v2 == 0);
        if (moved) {
            Warn(l.report, facts.cornerLine, "ground vertex 0",
                 {"a face of the ground uses vertex 0",
                  "start-up moves that vertex by 50 and the tile tears",
                  "let no face use the first vertex"});
        }
        if ((face.flags & FACE_TEXTURED) == 0) {
            continue;
        }
        for (const std::int32_t t : facts.texCoords) {
            if (t >= l.facts.texCoordCount) {
                Warn(l.report, facts.cornerLine, "texture vertex missing",
                     {Format("texture vertex %d of %d, counted from 0", t, l.facts.texCoordCount),
                      "it counts as the texture's corner (0, 0)", "correct the corner"});
                continue;
            }
            const auto& coord = l.facts.texCoords[static_cast<std::size_t>(t)];
            if (!(coord.u >= 0.0F && coord.u <= 1.0F && coord.v >= 0.0F && coord.v <= 1.0F)) {
                Warn(l.report, coord.line, "u or v",
                     {Format("texture place (%g, %g) lies outside 0..1",
                             static_cast<double>(coord.u), static_cast<double>(coord.v)),
                      "it is cut to the texture's edge", "cut the face where the texture ends"});
            }
        }
    }
}

// Whether every edge has its twin; then the sign of the volume says which side is seen.
bool IsClosed(const Mesh& mesh) {
    using Place = std::array<float, 3>;
    std::map<Place, std::int32_t> places;
    std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t> edges;
    const auto number = [&](std::int32_t v) {
        const Vertex& vertex = mesh.vertices[v];
        const Place place = {vertex.x + 0.0F, vertex.y + 0.0F, vertex.z + 0.0F};
        return places.emplace(place, static_cast<std::int32_t>(places.size())).first->second;
    };
    for (std::int32_t i = 0; i < mesh.faceCount; ++i) {
        const std::int32_t corners[4] = {number(mesh.faces[i].v0), number(mesh.faces[i].v1),
                                         number(mesh.faces[i].v2), number(mesh.faces[i].v0)};
        for (int k = 0; k < 3; ++k) {
            ++edges[{corners[k], corners[k + 1]}];
        }
    }
    return std::all_of(edges.begin(), edges.end(), [&](const auto& edge) {
        const auto twin = edges.find({edge.first.second, edge.first.first});
        return twin != edges.end() && twin->second == edge.second;
    });
}

// Six times the volume; positive when the outside is seen.
double VolumeOf(const Mesh& mesh) {
    double volume = 0.0;
    const auto at = [&](std::int32_t v) {
        const Vertex& p = mesh.vertices[v];
        return std::array<double, 3>{static_cast<double>(p.x), static_cast<double>(p.y),
                                     static_cast<double>(p.z)};
    };
    for (std::int32_t i = 0; i < mesh.faceCount; ++i) {
        const auto a = at(mesh.faces[i].v0);
        const auto b = at(mesh.faces[i].v1);
        const auto c = at(mesh.faces[i].v2);
        volume += a[0] * (b[1] * c[2] - b[2] * c[1]) + a[1] * (b[2] * c[0] - b[0] * c[2]) +
                  a[2] * (b[0] * c[1] - b[1] * c[0]);
    }
    return volume;
}

void CheckWinding(const Looked& l) {
    if (l.role.side == Side::Either || l.mesh.faceCount == 0 || !IsClosed(l.mesh)) {
        return;
    }
    const double volume = VolumeOf(l.mesh);
    const bool sky = l.role.side == Side::Inside;
    if (sky ? volume > 0.0 : volume < 0.0) {
        Warn(l.report, l.facts.faces[0].cornerLine, nullptr,
             {sky ? "the sky is closed and its faces look outward"
                  : "the object is closed and its faces look inward",
              sky ? "from inside nothing of it is drawn" : "its far side alone is drawn",
              "turn the order of the corners round in every face"});
    }
}

void CheckTexture(const Looked& l) {
    if (l.facts.textureLine == 0 || l.facts.texture.empty()) {
        return;
    }
    const std::string path = FindDataFile((cob::kTextureFolder + l.facts.texture).c_str());
    if (l.mesh.texture.single != nullptr && !path.empty()) {
        return;
    }
    std::string what = "texture " + Quote(l.facts.texture);
    what += path.empty() ? " is not in the folder texture" : " cannot be read";
    Warn(l.report, l.facts.textureLine, nullptr,
         {what, "its faces are white, or black once any other texture was read",
          path.empty() ? "put it there or correct the name" : "inspect the image"});
}

std::string TextureText(const Mesh& mesh, const ObjectFacts& facts) {
    if (mesh.texture.single == nullptr) {
        return "none";
    }
    return Format("%s, %d x %d", facts.texture.c_str(), mesh.texture.single->width,
                  mesh.texture.single->height);
}

void MaterialRows(const Looked& l) {
    l.report->table += "    no  red grn blu  class      opacity  texture  faces  filler\n";
    for (const MaterialFacts& material : l.facts.materials) {
        std::int32_t count = 0;
        const char* filler = "none";
        std::uint32_t flags = 0;
        for (std::int32_t i = 0; i < l.mesh.faceCount; ++i) {
            if (l.facts.faces[static_cast<std::size_t>(i)].material == material.number) {
                filler = count++ == 0 ? FillerOf(l.mesh.faces[i]) : filler;
                flags = l.mesh.faces[i].flags;
            }
        }
        const char* shading = "-";
        for (const cob::ShadingClass& row : cob::kClasses) {
            shading = (flags & row.face) != 0 ? row.word : shading;
        }
        l.report->table +=
            Format("   %3d  %3d %3d %3d  %-9s  %-7s  %-7s  %5d  %s\n", material.number,
                   material.rgb[0], material.rgb[1], material.rgb[2], shading,
                   material.level < 0 ? "opaque" : Format("%d of 7", material.level).c_str(),
                   material.textured ? "yes" : "no", count, filler);
    }
}

void ObjectTable(const Looked& l) {
    const Mesh& mesh = l.mesh;
    Report* const report = l.report;
    Row(report, "loaded as", l.role.name);
    Row(report, "vertices", Format("%d of at most %d", mesh.vertexCount, kMaxMeshVertices));
    Row(report, "texture vertices",
        Format("%d of at most %d", l.facts.texCoordCount, 9 * mesh.vertexCount));
    Row(report, "faces",
        Format("%d of at most %d", mesh.faceCount, std::min(3 * mesh.vertexCount, kMaxMeshFaces)));
    Row(report, "texture", TextureText(mesh, l.facts));
    const std::vector<std::int32_t> used = UsedVertices(mesh);
    if (!used.empty()) {
        Vec3 low{mesh.vertices[used[0]].x, mesh.vertices[used[0]].y, mesh.vertices[used[0]].z, 1};
        Vec3 high = low;
        for (const std::int32_t v : used) {
            const Vertex& p = mesh.vertices[v];
            low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z), 1};
            high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z), 1};
        }
        Row(report, "bounds",
            Format("x %g to %g, up %g to %g, ahead %g to %g", static_cast<double>(low.x),
                   static_cast<double>(high.x), static_cast<double>(low.y),
                   static_cast<double>(high.y), static_cast<double>(low.z),
                   static_cast<double>(high.z)));
        const auto reach = static_cast<double>(DistanceOf(mesh.vertices[FarthestUsed(mesh)]));
        const auto radius = static_cast<double>(mesh.maxRadius[0]);
        Row(report, "radius",
            Format("%g, mean %g; faces reach %g, which is 1 : %.3f", radius,
                   static_cast<double>(mesh.avgRadius[0]), reach,
                   reach > 0.0 ? radius / reach : 0.0));
    }
    MaterialRows(l);
}

} // namespace

ObjectRole RoleOf(const std::string& path) {
    const std::string name = std::filesystem::path(path).filename().string();
    const auto isNamed = [&](const char* full) {
        return name == std::filesystem::path(full).filename().string();
    };
    for (const FixedObject& object : kFixedObjects) {
        if (isNamed(object.path)) {
            ObjectRole role{"the stand",    {object.scale[0], object.scale[1], object.scale[2]},
                            kFixedOptions,  Side::Outside,
                            object.shifted, object.mesh == &World::sky || object.shifted};
            if (object.shifted) {
                role.name = "the ground";
            } else if (object.mesh == &World::skyAlpha0) {
                role.name = "the sky outside the box";
                role.side = Side::Either;
            } else if (object.mesh != &World::stay) {
                role.name = "a sky, seen from inside";
                role.side = Side::Inside;
            }
            return role;
        }
    }
    if (isNamed(kLightMarkerPath)) {
        return {"the light marker, never drawn",
                {kLightMarkerScale[0], kLightMarkerScale[1], kLightMarkerScale[2]},
                kFixedOptions,
                Side::Outside,
                false,
                false};
    }
    return {"an object of the scene list, scale 10",
            {1, 1, 1},
            kListOptions,
            Side::Outside,
            false,
            true};
}

int LoadAsProduction(Mesh* mesh, const std::string& path, const ObjectRole& role) {
    LoadRequest request{};
    request.scale = role.scale;
    request.options = role.options;
    const int loaded = loadObject(mesh, path.c_str(), request);
    if (role.options == kFixedOptions) {
        MeshRotate(mesh, 0.0F, 0.0F, 90.0F, 0);
    }
    return loaded;
}

void InspectObject(const std::string& path, Report* report) {
    FileBytes file;
    std::string problem;
    if (!ReadFile(path, kMaxObjectFile, &file, &problem)) {
        Refuse(report, 1, nullptr,
               {problem, "the object is not drawn", "give a file that can be read"});
        return;
    }
    ObjectFacts facts{};
    const std::int32_t baseBefore = materialBase;
    const ObjectRole role = RoleOf(path);
    const bool accepted = WalkObject(path, file.text, report, &facts);
    Mesh mesh;
    const bool loaded = LoadAsProduction(&mesh, path, role) != 0;
    if (accepted != loaded) {
        Refuse(report, 1, nullptr,
               {"the loader and this inspector disagree",
                loaded ? "the object is drawn" : "the load fails and the object is not drawn",
                "tell the makers of this program"});
    }
    if (loaded && accepted) {
        const Looked looked{mesh, facts, role, report};
        CheckRadius(looked);
        CheckPlaces(looked);
        CheckFaces(looked);
        CheckWinding(looked);
        CheckTexture(looked);
        ObjectTable(looked);
        report->summary = Format("%6d faces %6d vertices %3d materials  radius %9.2f  ",
                                 mesh.faceCount, mesh.vertexCount, materialBase - baseBefore,
                                 static_cast<double>(mesh.maxRadius[0])) +
                          TextureText(mesh, facts);
    } else {
        Row(report, "loaded as", role.name);
        Row(report, "read before it failed",
            Format("%d vertices, %d texture vertices, %zu faces", facts.vertexCount,
                   facts.texCoordCount, facts.faces.size()));
        report->summary = "broken";
    }
    releaseObject(&mesh);
}

} // namespace inspect
