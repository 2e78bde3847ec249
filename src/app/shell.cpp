// A whole run, step by step. Whatever it needs of the system is in platform/system.h.
#include "app/shell.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <initializer_list>
#include <system_error>

#include "app/command_line.h"
#include "app/frame_driver.h"
#include "app/vector_choice.h"
#include "base/shell_state.h"
#include "demo/startup.h"
#include "platform/system.h"

namespace ombrel {

namespace {

// REQUIRED R13: one message at most a turn, then a frame, whether or not there was one.
std::int32_t RunMessageLoop() {
    std::int32_t quitParameter = 0;
    while (PumpMessage(&quitParameter) != Pump::Quit) {
        RenderFrame();
    }
    return quitParameter;
}

} // namespace

int RunProduction(const char* commandLine) {
    // Read the switches; the help ends the program before anything is made.
    const CommandLine options = ParseCommandLine(commandLine);
    if (options.help) {
        ShowMessage(kHelpText, MessageKind::Ok);
        // REQUIRED R7: the word goes to standard output, if there is one.
        std::fprintf(stdout, "\nTEST\n");
        return 0;
    }
    shell.screenWidth = options.width;
    shell.screenHeight = options.height;
    shell.noSound = options.noSound;

    // Ask about full screen where the switches leave it open.
    shell.windowed = 1;
    if (!options.windowed) {
        const MessageAnswer answer = ShowMessage("Full screen?", MessageKind::YesNo);
        shell.windowed = answer == MessageAnswer::Yes ? 0 : 1;
    }

    // Make the one window.
    // REQUIRED R10: without one the result is 0 all the same.
    if (RegisterWindowClass() == 0 || CreateMainWindow() == 0) {
        return 0;
    }
    if (shell.windowed != 0) {
        SetUpWindowedDesktop();
    } else {
        shell.screenCenterX = shell.screenWidth / 2;
        shell.screenCenterY = shell.screenHeight / 2;
    }

    // Load, play, put everything back.
    ChooseVectorPath(nullptr);
    StartUp();
    const std::int32_t result = RunMessageLoop();
    ShutDown();
    RepaintDesktop();
    // REQUIRED R14: a second restore, full screen too.
    RestoreDisplayModeAtExit();
    return result;
}

std::string DataFolderOf(const std::string& programFolder) {
    const std::filesystem::path folder = programFolder;
    for (const char* const place : {"data", "../share/ombrel/data", "../../data"}) {
        std::error_code error;
        if (std::filesystem::is_directory(folder / place, error)) {
            return (folder / place).lexically_normal().string();
        }
    }
    return (folder / "data").string();
}

} // namespace ombrel
