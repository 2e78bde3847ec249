// The lines of an object file, as the loader looks for them: one table for the loader and for
// whoever reports what is wrong with a file. Numbers are decimal; blanks separate words.
#pragma once

#include <cstddef>
#include <cstdint>

#include "assets/mesh.h"
#include "base/single.h"

namespace ombrel::cob {

// A line the loader looks for, and the characters that count as blanks in it.
struct LineForm {
    const char* pattern;
    const char* blanks;
};

// clang-format off
//                                       pattern                                                     blanks
inline constexpr LineForm kName       = {"['Name'] [s>0]",                                           ""};
inline constexpr LineForm kCenter     = {"['center'] [f] [f] [f]",                                   ""};
inline constexpr LineForm kAxes[3]    = {{"['x'] ['axis'] [f] [f] [f]",                              ""},
                                         {"['y'] ['axis'] [f] [f] [f]",                              ""},
                                         {"['z'] ['axis'] [f] [f] [f]",                              ""}};
inline constexpr LineForm kTransform  = {"['Transform']",                                            ""};
inline constexpr LineForm kThree      = {"[f] [f] [f]",                                              ""};
inline constexpr LineForm kVertices   = {"['World'] ['Vertices'] [i]",                               ""};
inline constexpr LineForm kTexVerts   = {"['Texture'] ['Vertices'] [i]",                             ""};
inline constexpr LineForm kTwo        = {"[f] [f]",                                                  ""};
inline constexpr LineForm kFaces      = {"['Faces'] [i]",                                            ""};
inline constexpr LineForm kFace       = {"['Face'] ['verts'] [i] ['flags'] [i] ['mat'] [i]",         ""};
inline constexpr LineForm kCorners    = {"[i] [i] [i] [i] [i] [i]",                                  ",<>"};
inline constexpr LineForm kMaterial   = {"['mat#'] [i]",                                             ""};
inline constexpr LineForm kRgb        = {"['rgb'] [f] [f] [f]",                                      ","};
inline constexpr LineForm kAlpha      = {"['alpha'] [f] ['ka'] [f] ['ks'] [f] ['exp'] [f]",          ""};
inline constexpr LineForm kColorClass = {"['Shader'] ['class:'] ['color']",                          ""};
inline constexpr LineForm kPlainColor = {"['Shader'] ['name:'] ['plain'] ['color']",                 "\""};
inline constexpr LineForm kTextureMap = {"['Shader'] ['name:'] ['texture'] ['map']",                 "\""};
inline constexpr LineForm kFileName   = {"['file'] ['name:'] ['string']",                            "\""};
inline constexpr LineForm kTransClass = {"['Shader'] ['class:'] ['transparency']",                   ""};
inline constexpr LineForm kReflClass  = {"['Shader'] ['class:'] ['reflectance']",                    ""};
inline constexpr LineForm kShaderName = {"['Shader'] ['name:'] [s>0]",                               "\""};
inline constexpr LineForm kFilter     = {"['colour'] ['color'] [i] [i] [i]",                         ":(,)"};

// The word of the reflectance shader, the class it stands for, and the class of its faces. The first
// class that a material has wins.
struct ShadingClass {
    const char*   word;
    std::uint32_t material;
    std::uint32_t face;
    bool          smooth; // lit per vertex: the corners need normals
};
inline constexpr ShadingClass kClasses[] = {
    {"constant", Material::MAT_CONSTANT, FACE_CONSTANT, false},
    {"matte",    Material::MAT_MATTE,    FACE_MATTE,    false},
    {"plastic",  Material::MAT_PLASTIC,  FACE_PLASTIC,  true},
    {"phong",    Material::MAT_PHONG,    FACE_PHONG,    true},
};
// clang-format on
inline constexpr const ShadingClass& kDefaultClass = kClasses[1];

inline constexpr std::size_t kFileNameStart = 18;     // REQUIRED R18: characters before the name
inline constexpr std::int32_t kMaterialNumbers = 256; // numbers a file can use
inline constexpr char kTextureFolder[] = "./data/texture/";
inline constexpr Single kMipBrightness = 1.01F;
inline constexpr Single kFilterScale = 0.02745098F; // 7 / 255
inline constexpr long kShortestVertexLine = 6;      // "0 0 0" and a line end

// What follows the last slash, backslash or character beyond ASCII of a texture's name.
const char* BaseName(const char* name);

} // namespace ombrel::cob
