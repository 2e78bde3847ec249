// The program larkfen on systems with SDL2: answers --help and --version, says what is missing,
// and hands the command line on as one raw string.
#include <signal.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>

#include "app/shell.h"
#include "base/data_file.h"
#include "base/version.h"
#include "platform/sdl2/say.h"
#include "platform/sdl2/sdl2_state.h"
#include "platform/system.h"

namespace {

constexpr char kUsage[] =
    "Usage: larkfen [-w] [-ns] [-resolution=WIDTHxHEIGHT]\n"
    "Plays Ombrel, a real-time demo: two and a half minutes of music and picture.\n"
    "\n"
    "  -w                   in a window; without it the program asks \"Full screen?\"\n"
    "  -ns                  no sound\n"
    "  -resolution=800x600  also 320x240, 400x300, 512x384, 640x480 (the default),\n"
    "                       1024x768 and 1280x800\n"
    "  -?                   the help of the production, in a box\n"
    "  --help               this text\n"
    "  --version            the version\n"
    "\n"
    "Escape ends it, and so do Alt-F4 and the close box; Alt-Enter changes between\n"
    "window and full screen.\n"
    "\n"
    "Exit code: 0 played to its end or ended by the user, or there was no display;\n"
    "1 SDL2 is missing, or the display went away.\n";

// Answers an argument that wants no production.
bool Answered(const char* argument) {
    if (std::strcmp(argument, "--help") == 0) {
        std::fputs(kUsage, stdout);
        return true;
    }
    if (std::strcmp(argument, "--version") == 0) {
        std::printf("larkfen %s\n", ombrel::kVersion);
        return true;
    }
    return false;
}

// Reports a folder that is not there once, else each file.
void WatchDataFolder() {
    const std::string folder = ombrel::DataFolder();
    std::error_code error;
    if (std::filesystem::is_directory(folder, error)) {
        ombrel::SetMissingFileHook(ombrel::SayMissing);
    } else {
        ombrel::Say("the data folder %s is missing; there is nothing to show", folder.c_str());
    }
}

} // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (Answered(argv[i])) {
            return 0;
        }
    }
    // A reader that goes away is no reason to end.
    signal(SIGPIPE, SIG_IGN);
    if (!ombrel::OpenSdl()) {
        return 1;
    }
    ombrel::SetDataFolder(ombrel::DataFolderOf(ombrel::ProgramFolder()));
    WatchDataFolder();
    std::string commandLine;
    for (int i = 1; i < argc; ++i) {
        commandLine += i > 1 ? " " : "";
        commandLine += argv[i];
    }
    const int result = ombrel::RunProduction(commandLine.c_str());
    ombrel::CloseVideo(); // where the way out was short
    return result;
}
