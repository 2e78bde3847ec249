// WinMain of the Windows program: keeps the instance, makes the program's folder the working one
// (so that "./data/" is beside the program wherever it was started from) and runs the production.
#include <windows.h>

#include <cstddef>

#include "app/shell.h"
#include "platform/win32/win32_state.h"

namespace {

// In wide characters: the folder may have any name.
void EnterProgramFolder() {
    wchar_t path[MAX_PATH + 1] = L"";
    std::size_t end = GetModuleFileNameW(nullptr, path, MAX_PATH);
    while (end > 0 && path[end] != L'\\') {
        --end;
    }
    path[end > 0 ? end + 1 : 0] = L'\0'; // the backslash stays: it may be the root of a drive
    SetCurrentDirectoryW(path);
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int) {
    ombrel::win32State.instance = instance;
    EnterProgramFolder();
    return ombrel::RunProduction(commandLine);
}
