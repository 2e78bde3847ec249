// The soundtrack beside the pictures: decoded on a thread of its own, heard from wherever the show
// is. Without a device, without a file, or with a broken one, it is silent.
#pragma once

#include <memory>
#include <string>

namespace player {

struct MusicState;
struct Music {
    std::shared_ptr<MusicState> state; // null: none
};

// path empty: none. Opens the device at the first call. Says on standard error when there is none,
// and when the file is missing or broken.
void OpenMusic(Music* music, const std::string& path);
void CloseMusic(Music* music); // allowed when nothing is open

// Where the show is, and whether it can be heard there. What is heard already stays as it is while
// it is near that place.
void FollowShow(Music* music, double seconds, bool audible);

} // namespace player
