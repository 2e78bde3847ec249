// The walk follows the loader step by step: what it searches for, what it takes unseen, and where
// it gives up. After a refusal it goes on where that can still find something.
#include "object_walk.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "assets/line_reader.h"
#include "assets/mesh.h"
#include "assets/object_lines.h"
#include "base/convert.h"

namespace inspect {

using namespace ombrel;
using namespace ombrel::cob;

namespace {

constexpr char kFails[] = "the load fails and the object is not drawn";

struct Walk {
    LineReader reader;
    LineReader scratch; // for trials, so that the reader keeps what the loader would have
    std::string_view bytes;
    LineCounter lines;
    Report* report;
    ObjectFacts* facts;
    std::int64_t line;     // of the text read last
    bool refused;          // somewhere, by the loader
    std::int64_t nearMiss; // of this search: a line that fits but for letter case
    std::int64_t passedBlock;
    bool inBlock;
    const LineForm* listForm; // lines of this form after a list are too many for its count
    const char* listName;
    std::int64_t listLine;
    bool used[kMaterialNumbers];
    std::int64_t firstUse[kMaterialNumbers];
};

// --- lines -------------------------------------------------------------------------------------
bool NextLine(Walk* walk) {
    if (readLine(&walk->reader, READ_SKIP_BLANK | READ_TRIM) == nullptr) {
        return false;
    }
    const auto last = static_cast<std::size_t>(std::ftell(walk->reader.file)) - 1;
    walk->line = walk->lines.LineOf(last);
    return true;
}

bool Fits(LineReader* reader, const char* line, const LineForm& form) {
    char text[kMaxLine];
    std::snprintf(text, sizeof text, "%s", line);
    replaceChars(text, text, form.blanks, ' ', 1);
    return match(reader, text, form.pattern) != 0;
}

std::string InSmallLetters(const char* text) {
    std::string small = text;
    for (char& c : small) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return small;
}

bool StartsLikeANumber(const char* line) {
    return std::strchr("+-.0123456789", *line) != nullptr && *line != '\0';
}

// A line that the loader passes over in a search.
void NotePassed(Walk* walk, const LineForm& form) {
    const char* const line = walk->reader.line;
    if (walk->nearMiss == 0) {
        const std::string pattern = InSmallLetters(form.pattern);
        if (Fits(&walk->scratch, InSmallLetters(line).c_str(), {pattern.c_str(), form.blanks})) {
            walk->nearMiss = walk->line;
        }
    }
    if (walk->inBlock && walk->passedBlock == 0 && Fits(&walk->scratch, line, kMaterial)) {
        walk->passedBlock = walk->line;
    }
    const bool oneMore = walk->listForm != nullptr &&
                         (walk->listForm == &kFace || StartsLikeANumber(line)) &&
                         Fits(&walk->scratch, line, *walk->listForm);
    if (oneMore) {
        Warn(walk->report, walk->line, walk->listName,
             {Format("more %s than line %lld counts", walk->listName,
                     static_cast<long long>(walk->listLine)),
              "the line is passed over", "correct the count"});
    }
}

// How many captures of a kind the pattern has.
std::int32_t CountTokens(const char* pattern, const char* token) {
    std::int32_t count = 0;
    for (const char* p = pattern; (p = std::strstr(p, token)) != nullptr; ++p) {
        ++count;
    }
    return count;
}

// A number that scans but is not what it looks like.
void CheckNumberWord(Walk* walk, const std::string& word) {
    const double value = scanFloat(word.c_str());
    if (word.empty() || value == kNotAFloat) {
        return;
    }
    const bool digits = word.find_first_of("0123456789") < word.find_first_of("eEdD");
    if (!digits) {
        Warn(walk->report, walk->line, "no digits",
             {Quote(word) + " has no digits", "it counts as 0", "write the number"});
    } else if (word.find_first_of("dD") != std::string::npos) {
        Warn(walk->report, walk->line, "d exponent",
             {Quote(word) + " has an exponent after a d",
              Format("the number ends at the d and is %g", value), "write e"});
    } else if (!(value > -3.5e38 && value < 3.5e38)) {
        Warn(walk->report, walk->line, "infinite",
             {Quote(word) + " is beyond the range of singles",
              "it is infinite and what depends on it is not drawn", "write a smaller number"});
    } else if (word.size() >= static_cast<std::size_t>(kMaxWord)) {
        Warn(walk->report, walk->line, "long number",
             {Format("a number of %zu characters", word.size()),
              Format("%d of them count", kMaxWord - 1), "shorten it"});
    }
}

// What the match took from the line, once it fitted.
void CheckTaken(Walk* walk, const LineForm& form) {
    const LineReader& reader = walk->reader;
    const std::int32_t floats = CountTokens(form.pattern, "[f]");
    const std::int32_t ints = CountTokens(form.pattern, "[i]");
    const bool wordsCount = &form == &kShaderName;
    if ((floats > 0 && reader.floatCount > floats) || (ints > 0 && reader.intCount > ints) ||
        (wordsCount && reader.wordCount > 3)) {
        Warn(walk->report, walk->line, "taken twice",
             {"the line begins with a piece that fits only in part",
              "the numbers and words of that piece are taken for the line's own",
              "leave only what belongs on the line"});
    }
    if (floats + ints == 0) {
        return;
    }
    const char* p = reader.line;
    while (*p != '\0') {
        const std::size_t blanks = std::strspn(p, " \t\n\v\f\r");
        const std::size_t length = std::strcspn(p + blanks, " \t\n\v\f\r");
        CheckNumberWord(walk, std::string(p + blanks, length));
        p += blanks + length;
    }
}

bool MatchLine(Walk* walk, const LineForm& form) {
    LineReader* const reader = &walk->reader;
    replaceChars(reader->line, reader->line, form.blanks, ' ', 1);
    if (match(reader, reader->line, form.pattern) == 0) {
        return false;
    }
    CheckTaken(walk, form);
    return true;
}

void Fail(Walk* walk, std::int64_t line, const char* kind, const std::string& what,
          const std::string& mend) {
    walk->refused = true;
    Refuse(walk->report, line, kind, {what, kFails, mend});
}

void BeginSearch(Walk* walk) {
    walk->nearMiss = 0;
    walk->passedBlock = 0;
}

// Where the search ended without its line.
void NoteMissing(Walk* walk, std::int64_t from, const char* label) {
    std::string mend = "add the line";
    if (walk->nearMiss != 0) {
        mend = Format("line %lld has it in other letters", static_cast<long long>(walk->nearMiss));
    }
    Fail(walk, from, nullptr, Format("no line '%s' follows", label), mend);
}

bool Search(Walk* walk, const LineForm& form, const char* label) {
    const std::int64_t from = std::max<std::int64_t>(walk->line, 1);
    BeginSearch(walk);
    while (NextLine(walk)) {
        if (MatchLine(walk, form)) {
            if (walk->passedBlock != 0) {
                Warn(walk->report, from, nullptr,
                     {Format("the material block has no line '%s'", label),
                      Format("line %lld of a later block is taken",
                             static_cast<long long>(walk->line)),
                      "add the line"});
            }
            return true;
        }
        NotePassed(walk, form);
    }
    NoteMissing(walk, from, label);
    return false;
}

bool TakeLine(Walk* walk, const LineForm& form, const char* label) {
    const std::int64_t from = walk->line;
    if (!NextLine(walk)) {
        NoteMissing(walk, from, label);
        return false;
    }
    if (!MatchLine(walk, form)) {
        Warn(walk->report, walk->line, label,
             {Format("here '%s' must stand", label),
              "the line is used up and the numbers before it are taken again", "write the line"});
    }
    return true;
}

// A count of the file; false when the loader refuses it.
bool TakeCount(Walk* walk, std::int64_t limit, const std::string& why, const char* name) {
    const std::int32_t count = walk->reader.ints[0];
    if (count < 0) {
        Fail(walk, walk->line, nullptr, Format("%d %s", count, name), "write how many follow");
        return false;
    }
    if (count > limit) {
        Fail(walk, walk->line, nullptr,
             Format("%d %s, %lld are allowed: ", count, name, static_cast<long long>(limit)) + why,
             "split the object");
        return false;
    }
    return true;
}

// One entry of a list; false when the file ends before it. next: the line that ends the list.
struct List {
    const LineForm& form;
    const LineForm& next;
    const char* name;  // of its entries, in the plural
    const char* label; // of its lines
    std::int64_t line; // with the count
    std::int32_t count;
    std::int64_t endedAt; // line of the next section, when it came too early
};
bool NextEntry(Walk* walk, List* list, std::int32_t have) {
    BeginSearch(walk);
    while (NextLine(walk)) {
        if (MatchLine(walk, list->form)) {
            return true;
        }
        if (list->endedAt == 0 && Fits(&walk->scratch, walk->reader.line, list->next)) {
            list->endedAt = walk->line;
        }
        if (list->endedAt == 0) {
            Warn(walk->report, walk->line, list->label,
                 {"among the " + std::string(list->name) + " here '" + list->label +
                      "' must stand: " + Quote(walk->reader.line),
                  "the line is passed over and a later one taken", "write the line"});
        }
    }
    Fail(walk, list->line, nullptr,
         Format("%d %s are counted, %d follow", list->count, list->name, have),
         "correct the count or add what is missing");
    return false;
}

void EndList(Walk* walk, const List& list) {
    walk->listForm = &list.form;
    walk->listName = list.name;
    walk->listLine = list.line;
}

// --- sections ----------------------------------------------------------------------------------
constexpr const char* kAxisLabels[3] = {"x axis X Y Z", "y axis X Y Z", "z axis X Y Z"};

bool WalkFrame(Walk* walk) {
    if (!Search(walk, kName, "Name NAME") || !Search(walk, kCenter, "center X Y Z")) {
        return false;
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!TakeLine(walk, kAxes[axis], kAxisLabels[axis])) {
            return false;
        }
    }
    if (!Search(walk, kTransform, "Transform")) {
        return false;
    }
    for (int row = 0; row < 3; ++row) {
        if (!TakeLine(walk, kThree, "X Y Z of the transform")) {
            return false;
        }
    }
    return true;
}

// A line of a list that begins with words: perhaps a comment, which object files do not have.
void CheckListLine(Walk* walk) {
    if (!StartsLikeANumber(walk->reader.line)) {
        Warn(walk->report, walk->line, "words in a list",
             {"words before the numbers: " + Quote(walk->reader.line),
              "there are no comments: the numbers are taken", "leave only the numbers"});
    }
}

bool WalkVertices(Walk* walk) {
    if (!Search(walk, kVertices, "World Vertices N") ||
        !TakeCount(walk, kMaxMeshVertices, "the limit of an object", "vertices")) {
        return false;
    }
    const std::int32_t count = walk->reader.ints[0];
    const auto rest = static_cast<std::int64_t>(walk->bytes.size()) -
                      static_cast<std::int64_t>(std::ftell(walk->reader.file));
    if (count > (rest + 1) / kShortestVertexLine) {
        Fail(walk, walk->line, nullptr,
             Format("%d vertices do not fit in the %lld bytes that follow", count,
                    static_cast<long long>(rest)),
             "correct the count or add what is missing");
        return false;
    }
    List list{kThree, kTexVerts, "vertices", "X Y Z", walk->line, count, 0};
    for (std::int32_t i = 0; i < count; ++i) {
        if (!NextEntry(walk, &list, i)) {
            return false;
        }
        CheckListLine(walk);
        walk->facts->vertexLines.push_back(walk->line);
    }
    walk->facts->vertexCount = count;
    EndList(walk, list);
    return true;
}

bool WalkTexCoords(Walk* walk) {
    const std::int64_t limit = std::int64_t{9} * walk->facts->vertexCount;
    if (!Search(walk, kTexVerts, "Texture Vertices N") ||
        !TakeCount(walk, limit, "9 for each vertex", "texture vertices")) {
        return false;
    }
    const std::int32_t count = walk->reader.ints[0];
    List list{kTwo, kFaces, "texture vertices", "U V", walk->line, count, 0};
    for (std::int32_t i = 0; i < count; ++i) {
        if (!NextEntry(walk, &list, i)) {
            return false;
        }
        CheckListLine(walk);
        const float* const f = walk->reader.floats;
        walk->facts->texCoords.push_back({f[0], f[1], walk->line});
    }
    walk->facts->texCoordCount = count;
    EndList(walk, list);
    return true;
}

void TakeMaterial(Walk* walk, std::int32_t material) {
    const std::int32_t room = kMaxMaterials - materialBase;
    if (material < 0 || material >= kMaterialNumbers) {
        Fail(walk, walk->line, "material number", Format("material number %d", material),
             "write 0, 1, 2 and so on");
    } else if (material >= room) {
        Fail(walk, walk->line, "table full",
             Format("material number %d, and the table has room for %d more", material, room),
             "use fewer materials, numbered from 0");
    } else if (!walk->used[material]) {
        walk->used[material] = true;
        walk->firstUse[material] = walk->line;
        ++walk->facts->materialCount;
    }
}

void TakeCorners(Walk* walk) {
    const std::int32_t* const numbers = walk->reader.ints;
    const std::int32_t n = walk->facts->vertexCount;
    const std::int32_t t = walk->facts->texCoordCount;
    for (int i = 0; i < 6; i += 2) {
        if (numbers[i] < 0 || numbers[i] >= n) {
            Fail(walk, walk->line, "vertex index",
                 Format("vertex %d of %d, counted from 0", numbers[i], n), "correct the corner");
        }
        if (numbers[i + 1] < 0 || numbers[i + 1] >= 9 * n) {
            Fail(walk, walk->line, "texture vertex index",
                 Format("texture vertex %d of %d, counted from 0", numbers[i + 1], t),
                 "correct the corner");
        }
    }
    ObjectFacts::FaceFacts& face = walk->facts->faces.back();
    face.texCoords[0] = numbers[1];
    face.texCoords[1] = numbers[3];
    face.texCoords[2] = numbers[5];
    face.cornerLine = walk->line;
}

bool WalkFaces(Walk* walk) {
    const std::int32_t capacity = 3 * walk->facts->vertexCount;
    const bool few = capacity < kMaxMeshFaces;
    if (!Search(walk, kFaces, "Faces N") ||
        !TakeCount(walk, few ? capacity : kMaxMeshFaces,
                   few ? "3 for each vertex" : "the limit of an object", "faces")) {
        return false;
    }
    const std::int32_t count = walk->reader.ints[0];
    List list{kFace, kMaterial, "faces", "Face verts 3 flags F mat M", walk->line, count, 0};
    for (std::int32_t i = 0; i < count; ++i) {
        if (!NextEntry(walk, &list, i)) {
            return false;
        }
        const std::int32_t corners = walk->reader.ints[0];
        walk->facts->faces.push_back({walk->reader.ints[2], {0, 0, 0}, walk->line, 0});
        if (corners != 3) {
            Fail(walk, walk->line, "corners", Format("a face of %d corners", corners),
                 "cut it into triangles");
        }
        TakeMaterial(walk, walk->reader.ints[2]);
        if (!TakeLine(walk, kCorners, "<V,T> <V,T> <V,T>")) {
            return false;
        }
        TakeCorners(walk);
    }
    EndList(walk, list);
    return true;
}

// --- materials ---------------------------------------------------------------------------------
// The loader keeps the low 8 bits of the whole number.
bool WalkColors(Walk* walk, MaterialFacts* material) {
    if (!Search(walk, kRgb, "rgb R,G,B")) {
        return false;
    }
    for (int i = 0; i < 3; ++i) {
        const float value = walk->reader.floats[i];
        const std::int32_t whole = ToIntChop(value * 255.0F + 0.5F);
        material->rgb[i] = whole & 0xFF;
        if (whole != material->rgb[i]) {
            Warn(walk->report, walk->line, nullptr,
                 {Format("colour %g lies outside 0..1", static_cast<double>(value)),
                  Format("it is cut to its low 8 bits: %d of 255", material->rgb[i]),
                  "write a number from 0 to 1"});
        }
    }
    return Search(walk, kAlpha, "alpha A ka A ks S exp E");
}

void CheckTextureName(Walk* walk) {
    const char* const line = walk->reader.line;
    const std::string name = line + std::min(kFileNameStart, std::strlen(line));
    const std::string taken = name.substr(0, sizeof(Material::textureName) - 1);
    std::string base = BaseName(taken.c_str());
    base.erase(base.find_last_not_of(" \t\n\v\f\r") + 1);
    if (std::strncmp(line, "file name: string ", kFileNameStart) != 0) {
        Warn(walk->report, walk->line, nullptr,
             {"the texture's name does not begin in column 19", "it is taken as " + Quote(base),
              "write 'file name: string \"./NAME\"' with one blank after each word"});
    } else if (taken.size() < name.size()) {
        Warn(walk->report, walk->line, nullptr,
             {Format("a texture name of %zu characters", name.size()),
              "it is cut to " + Quote(base), "shorten it"});
    } else if (base.empty()) {
        Warn(walk->report, walk->line, nullptr,
             {"the texture has no name", "none is found: its faces are white or black",
              "write 'file name: string \"./NAME\"'"});
    } else if (std::any_of(name.begin(), name.end(), [](char c) { return (c & 0x80) != 0; })) {
        Warn(walk->report, walk->line, nullptr,
             {"the texture's name has letters beyond ASCII",
              "it is taken from after the last of them: " + Quote(base),
              "rename the file with plain letters"});
    } else if (name.find_first_of("/\\") == std::string::npos) {
        Warn(walk->report, walk->line, nullptr,
             {"the texture's name has no slash", "it keeps the blank before it and is not found",
              "write \"./" + base.substr(base.find_first_not_of(' ')) + "\""});
    }
    ObjectFacts* const facts = walk->facts;
    if (facts->textureLine == 0) {
        facts->texture = base;
        facts->textureLine = walk->line;
    } else if (base != facts->texture) {
        Warn(walk->report, walk->line, nullptr,
             {"a second texture, " + Quote(base),
              "an object has one: " + Quote(facts->texture) + " is drawn instead",
              "put both into one image or split the object"});
    }
}

bool WalkColorShader(Walk* walk, MaterialFacts* material) {
    if (!Search(walk, kColorClass, "Shader class: color")) {
        return false;
    }
    const std::int64_t from = walk->line;
    BeginSearch(walk);
    for (;;) {
        if (!NextLine(walk)) {
            NoteMissing(walk, from, "Shader name: \"plain color\" or \"texture map\"");
            return false;
        }
        if (MatchLine(walk, kPlainColor)) {
            return true;
        }
        if (MatchLine(walk, kTextureMap)) {
            break;
        }
        if (Fits(&walk->scratch, walk->reader.line, kShaderName)) {
            Warn(walk->report, walk->line, nullptr,
                 {"a colour shader that is neither \"plain color\" nor \"texture map\"",
                  "it is passed over until one of the two comes", "write one of the two"});
        }
        NotePassed(walk, kPlainColor);
    }
    material->textured = true;
    if (!Search(walk, kFileName, "file name: string \"NAME\"")) {
        return false;
    }
    CheckTextureName(walk);
    return true;
}

bool WalkFilter(Walk* walk, MaterialFacts* material) {
    if (!Search(walk, kFilter, "colour: color (R, G, B)")) {
        return false;
    }
    const std::int32_t* const rgb = walk->reader.ints;
    const std::int32_t brightest = std::max({rgb[0], rgb[1], rgb[2]});
    const std::int32_t whole = ToIntChop(static_cast<float>(brightest) * kFilterScale + 0.5F);
    material->level = std::min(whole & 0xFF, 7);
    if (std::min({rgb[0], rgb[1], rgb[2]}) < 0 || brightest > 255) {
        Warn(walk->report, walk->line, nullptr,
             {Format("filter colour (%d, %d, %d) lies outside 0..255", rgb[0], rgb[1], rgb[2]),
              Format("it counts as level %d of 7", material->level),
              "write numbers from 0 to 255"});
    } else if (material->level == 0) {
        Warn(walk->report, walk->line, nullptr,
             {Format("filter level 0, the brightest of the colour is %d", brightest),
              "its faces cannot be seen and still hide what is drawn behind them later",
              "write 19 or more, 128 for half"});
    } else if (material->level == 7) {
        Warn(walk->report, walk->line, nullptr,
             {Format("filter level 7, the brightest of the colour is %d", brightest),
              "a bright filter is opaque", "write 128 for half, or \"none\" as transparency"});
    }
    return true;
}

bool WalkTransparency(Walk* walk, MaterialFacts* material) {
    if (!Search(walk, kTransClass, "Shader class: transparency") ||
        !Search(walk, kShaderName, "Shader name: \"none\"")) {
        return false;
    }
    const std::string word = walk->reader.words[2];
    if (word == "filter") {
        return WalkFilter(walk, material);
    }
    if (word != "none") {
        Warn(walk->report, walk->line, nullptr,
             {"transparency " + Quote(word) + " is neither \"none\" nor \"filter\"",
              "it changes nothing: opaque", "write one of the two"});
    }
    return true;
}

bool WalkReflectance(Walk* walk, MaterialFacts* material) {
    if (!Search(walk, kReflClass, "Shader class: reflectance") ||
        !Search(walk, kShaderName, "Shader name: \"matte\"")) {
        return false;
    }
    material->shading = walk->reader.words[2];
    const bool known =
        std::any_of(std::begin(kClasses), std::end(kClasses),
                    [&](const ShadingClass& shading) { return material->shading == shading.word; });
    if (!known) {
        Warn(walk->report, walk->line, nullptr,
             {"reflectance " + Quote(material->shading) + " is no class", "it counts as matte",
              "write constant, matte or plastic"});
        material->shading = "matte";
    }
    if (material->shading == "phong") {
        Warn(walk->report, walk->line, nullptr,
             {"class phong",
              material->textured ? "its textured faces are lit by chance"
                                 : "its faces are not drawn",
              "write plastic"});
    }
    const auto place = static_cast<std::int32_t>(walk->facts->materials.size());
    if (material->shading == "plastic" && material->number != place) {
        Warn(walk->report, walk->line, nullptr,
             {Format("class plastic in block %d of the file, which is material %d", place,
                     material->number),
              Format("material %d becomes plastic instead", place),
              "write the blocks in the order of their numbers, from 0 on"});
    }
    return true;
}

void CheckBlockNumber(Walk* walk, std::int32_t number) {
    const auto& before = walk->facts->materials;
    if (std::any_of(before.begin(), before.end(),
                    [&](const MaterialFacts& m) { return m.number == number; })) {
        Warn(walk->report, walk->line, nullptr,
             {Format("a second block of material %d", number),
              "it is laid over the first, and takes the place of a later block",
              "give each material one block"});
    } else if (!walk->used[number]) {
        Warn(walk->report, walk->line, nullptr,
             {Format("no face uses material %d", number),
              "its block takes the place of a later one that is used",
              "remove the block and number the others 0, 1, 2 and so on"});
    }
}

bool WalkMaterials(Walk* walk) {
    ObjectFacts* const facts = walk->facts;
    for (std::int32_t k = 0; k < facts->materialCount; ++k) {
        walk->inBlock = false;
        if (!Search(walk, kMaterial, "mat# M")) {
            return false;
        }
        walk->listForm = nullptr;
        MaterialFacts material{walk->reader.ints[0], walk->line, {0, 0, 0}, false, -1, ""};
        if (material.number < 0 || material.number >= kMaterialNumbers ||
            material.number >= kMaxMaterials - materialBase) {
            Fail(walk, walk->line, nullptr,
                 Format("material number %d does not fit the table", material.number),
                 "write 0, 1, 2 and so on");
            return false;
        }
        CheckBlockNumber(walk, material.number);
        walk->inBlock = true;
        if (!WalkColors(walk, &material) || !WalkColorShader(walk, &material) ||
            !WalkTransparency(walk, &material) || !WalkReflectance(walk, &material)) {
            return false;
        }
        facts->materials.push_back(material);
    }
    return true;
}

// What stands after the last block that is read.
void WalkRest(Walk* walk) {
    const std::int64_t from = walk->line;
    while (NextLine(walk)) {
        if (walk->line > from && Fits(&walk->scratch, walk->reader.line, kMaterial)) {
            Warn(walk->report, walk->line, "block after the last",
                 {"a material block after the last that is read",
                  Format("as many are read as numbers are used: %d", walk->facts->materialCount),
                  "remove it, or the blocks before it that are not needed"});
        }
    }
}

// The numbers that faces use, against the blocks that were read.
void CheckNumbering(Walk* walk) {
    std::int32_t highest = -1;
    for (std::int32_t number = 0; number < kMaterialNumbers; ++number) {
        if (!walk->used[number]) {
            continue;
        }
        highest = number;
        const auto& read = walk->facts->materials;
        if (std::none_of(read.begin(), read.end(),
                         [&](const MaterialFacts& m) { return m.number == number; })) {
            Warn(walk->report, walk->firstUse[number], nullptr,
                 {Format("no block of material %d is read", number),
                  "its faces are black and matte", "add the block, one for each number"});
        }
    }
    const std::int32_t count = walk->facts->materialCount;
    if (highest >= count) {
        Warn(walk->report, walk->firstUse[highest], nullptr,
             {Format("material %d, with %d in use: the numbers have gaps", highest, count),
              "the next object's materials are laid over it", "number them 0, 1, 2 and so on"});
    }
}

// --- the text as such --------------------------------------------------------------------------
void CheckText(Walk* walk) {
    const std::string_view bytes = walk->bytes;
    std::size_t start = 0;
    for (std::int64_t line = 1; start < bytes.size(); ++line) {
        const std::size_t end = std::min(bytes.find('\n', start), bytes.size());
        if (end - start > static_cast<std::size_t>(kMaxLine) - 1) {
            Warn(walk->report, line, "long line",
                 {Format("a line of %zu characters", end - start),
                  Format("it is read in pieces of %d", kMaxLine - 1), "break it"});
        }
        if (bytes.substr(start, end - start).find('\0') != std::string_view::npos) {
            Warn(walk->report, line, "zero byte",
                 {"a zero byte in a text", "the line ends there", "save it as plain text"});
        }
        start = end + 1;
    }
    if (bytes.find('\n') == std::string::npos && bytes.find('\r') != std::string::npos) {
        Warn(walk->report, 1, nullptr,
             {"the lines end with carriage returns alone", "they are one line for the loader",
              "end them with line feeds"});
    }
}

} // namespace

bool WalkObject(const std::string& path, std::string_view bytes, Report* report,
                ObjectFacts* facts) {
    Walk walk{};
    walk.bytes = bytes;
    walk.report = report;
    walk.facts = facts;
    walk.lines = LineCounter(bytes);
    if (!open(&walk.reader, path.c_str())) {
        Fail(&walk, 1, nullptr, "the loader cannot open it", "make it readable");
        return false;
    }
    CheckText(&walk);
    // Which materials are in use is only known when every face was taken.
    const bool whole = WalkFrame(&walk) && WalkVertices(&walk) && WalkTexCoords(&walk) &&
                       WalkFaces(&walk) && !walk.refused && WalkMaterials(&walk);
    if (whole) {
        WalkRest(&walk);
        CheckNumbering(&walk);
    }
    reset(&walk.reader);
    return whole && !walk.refused;
}

} // namespace inspect
