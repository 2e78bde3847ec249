// The program larkfen on systems with SDL2: hands the command line on as one raw string.
#include <signal.h>

#include <string>

#include "app/shell.h"
#include "base/data_file.h"
#include "platform/system.h"

int main(int argc, char** argv) {
    // A reader that goes away is no reason to end.
    signal(SIGPIPE, SIG_IGN);
    ombrel::SetDataFolder(ombrel::DataFolderOf(ombrel::ProgramFolder()));
    std::string commandLine;
    for (int i = 1; i < argc; ++i) {
        commandLine += i > 1 ? " " : "";
        commandLine += argv[i];
    }
    return ombrel::RunProduction(commandLine.c_str());
}
