// The scene list: a text file that names the objects of the world, where they stand and how large
// they are. Read once by start-up into the scene object table.
#pragma once

#include <cstddef>
#include <cstdint>

#include "assets/object_loader.h"
#include "base/single.h"
#include "demo/world.h"

namespace ombrel {

inline constexpr std::size_t kMaxListFile = std::size_t{1} << 20; // bytes read of a list
inline constexpr std::uint32_t kListOptions =
    LOAD_SWAP_YZ | LOAD_MIRROR_V | LOAD_OBJECT_FRAME | LOAD_TRANSFORM;
static_assert(kListOptions == 0x708);
inline constexpr std::int32_t kMaxScenePath = 1023; // characters; a longer word is cut to this

// What one read of the list gives: sizes and places in tenths of a unit, angles in degrees.
struct SceneLine {
    char path[kMaxScenePath + 1];
    Single values[9]; // sx, sy, sz, px, py, pz, ax, ay, az
};

// A list as text in memory, and where reading goes on.
struct SceneListText {
    const char* at;
    const char* end;
};

// One read of "%s \t %f, %f, %f; \t %f, %f, %f; \t %f, %f, %f;\n", as the C library defines it:
// - the path is the next word, whatever line it stands on; blanks in the pattern stand for any run
//   of blanks, tabs and line ends, or none; commas and semicolons must follow at once;
// - a number is the longest run that can still become one; a run that never does ("-", "1e") is
//   used up and ends the read;
// - a read that ends early leaves the values it did not reach as they were, and the next read goes
//   on at the character where this one stopped.
// Returns how many of the ten values were read (at least 1), or -1 at the end of the text.
std::int32_t ReadSceneLine(SceneListText* text, SceneLine* line);

// Whether a line that was read names an object to load: a "#" anywhere in the path makes it a
// comment, though its numbers were read all the same, and a file that does not open is passed over.
bool NamesObject(const SceneLine& line);

// Loads every object of the list that exists into the entries after world->objectCounter, which
// then holds the index of the last; ends at the end of the table. The faces of the entry at the
// counter become two-sided. A missing list loads nothing.
void LoadSceneList(World* destination, const char* path, const DisplayFormat& format);

} // namespace ombrel
