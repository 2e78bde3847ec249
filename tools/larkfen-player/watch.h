// A data folder that somebody works on. What is played is a copy of it, so that a file which is
// half written, broken or gone disturbs nothing; the copy is made anew when every changed file is
// good.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace player {

struct FileMark {
    std::uintmax_t size;
    std::filesystem::file_time_type time;
    bool operator==(const FileMark&) const = default;
};
using FileMarks = std::map<std::string, FileMark>; // by name below the folder

struct Watch {
    std::string folder, copy; // empty: nothing is watched
    FileMarks taken;          // as they were when they were copied, or found broken
    FileMarks played;         // of the copy
    FileMarks seen;           // at the last look
    std::chrono::steady_clock::time_point next;
};

// Copies the folder and makes the copy the data folder. Empty, or what went wrong.
std::string OpenWatch(Watch* watch, const std::string& folder);
void CloseWatch(Watch* watch); // removes the copy; allowed when nothing is watched

// Looks now and then. True once when files have changed and nobody writes them any more.
bool HasChanged(Watch* watch);

// Takes the changed files over. Empty, or the first that is broken: "cam/scene1.trk:12: what is
// wrong"; then nothing is taken over. While no show is open: the files are read as the production
// reads them, and the world is reset.
std::string TakeChanges(Watch* watch);

} // namespace player
