// The production as one call, from the command line to the exit code. Callers: the entry of every
// back end, the capture tool, the tests.
#pragma once

#include <string>

namespace ombrel {

// Parses, asks, makes the window, starts up, runs the message loop, shuts down. Returns the quit
// message's parameter (0 at the end of a normal run), or 0 when the help was shown or there could
// be no window.
int RunProduction(const char* commandLine);

// The data folder of a program in that folder: "data" beside it, else "../share/ombrel/data" (an
// installed program), else "../../data" (a program in the build tree), else the one beside it,
// though it is not there.
std::string DataFolderOf(const std::string& programFolder);

} // namespace ombrel
