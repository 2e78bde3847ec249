// Starts the program under test inside the desktop where this runs, and writes what becomes of
// desktop, windows and boxes into a file, a line a change; the suite reads it and presses the keys.
//
//     stage OUT [--move X Y] [--focus] [--close-box] [--close-window] [--limit SECONDS] -- COMMAND
//
// Once the program's window has stood for two seconds, --move puts it elsewhere, --focus takes the
// focus away from it, --close-window closes it as its close box does. --close-box closes a box
// without choosing a button. The lines:
//
//     before | seen | after mode WxH saver 0|1   (Wine shows another program's depth to nobody)
//     seen window L T R B client L T R B style 0xN visible 0|1 "TITLE"
//     seen box "TITLE" "TEXT" [BUTTONS] icon 0|1
//     gone box
//     did WHAT
//     exit CODE
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::FILE* out;
DWORD child;
constexpr DWORD kStartPatience = 20000; // ms
std::string lastMode, lastWindow, lastBox, boxBefore;
HWND mainWindow, boxWindow;
bool boxSeen, boxThere; // one was written down and not yet that it is gone; one stands now

void Say(const std::string& line) {
    std::fprintf(out, "%s\n", line.c_str());
    std::fflush(out);
}

std::string Mode() {
    DEVMODEA mode = {};
    mode.dmSize = sizeof(mode);
    EnumDisplaySettingsA(nullptr, ENUM_CURRENT_SETTINGS, &mode);
    BOOL saver = FALSE;
    SystemParametersInfoA(SPI_GETSCREENSAVEACTIVE, 0, &saver, 0);
    char text[80];
    std::snprintf(text, sizeof(text), "mode %lux%lu saver %d", mode.dmPelsWidth, mode.dmPelsHeight,
                  saver ? 1 : 0);
    return text;
}

// The text of a control of another program, line ends as \n, tabs as \t.
std::string TextOf(HWND window) {
    char text[1000] = "";
    DWORD_PTR length = 0;
    SendMessageTimeoutA(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text),
                        SMTO_ABORTIFHUNG, 2000, &length);
    std::string quoted;
    for (const char* c = text; *c; ++c) {
        quoted += *c == '\n' ? "\\n" : *c == '\t' ? "\\t" : *c == '\r' ? "" : std::string(1, *c);
    }
    return quoted;
}

struct BoxParts {
    std::string text, buttons;
    bool icon;
};

BOOL CALLBACK AddPart(HWND window, LPARAM parts) {
    auto* box = reinterpret_cast<BoxParts*>(parts);
    char kind[40] = "";
    GetClassNameA(window, kind, sizeof(kind));
    const bool visible = (GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0;
    if (std::string(kind) == "Button" && visible) {
        box->buttons += (box->buttons.empty() ? "" : " ") + TextOf(window);
    } else if (std::string(kind) == "Static" && visible) {
        if ((GetWindowLongA(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
            DWORD_PTR icon = 0;
            SendMessageTimeoutA(window, STM_GETICON, 0, 0, SMTO_ABORTIFHUNG, 2000, &icon);
            box->icon = icon != 0;
        } else {
            box->text += TextOf(window);
        }
    }
    return TRUE;
}

void LookAtWindow(HWND window) {
    RECT outer = {}, client = {};
    POINT corner = {0, 0};
    GetWindowRect(window, &outer);
    GetClientRect(window, &client);
    ClientToScreen(window, &corner);
    const long style = GetWindowLongA(window, GWL_STYLE);
    char title[100] = "";
    GetWindowTextA(window, title, sizeof(title));
    char line[400];
    std::snprintf(
        line, sizeof(line),
        "seen window %ld %ld %ld %ld client %ld %ld %ld %ld style 0x%lx visible %d \"%s\"",
        outer.left, outer.top, outer.right, outer.bottom, corner.x, corner.y,
        corner.x + client.right, corner.y + client.bottom, style, (style & WS_VISIBLE) != 0, title);
    mainWindow = window;
    if (lastWindow != line) {
        Say(lastWindow = line);
    }
}

BOOL CALLBACK Look(HWND window, LPARAM) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner != child) {
        return TRUE;
    }
    char kind[60] = "";
    GetClassNameA(window, kind, sizeof(kind));
    if (std::string(kind) == "BALTHERIUM -1.1") {
        LookAtWindow(window);
    } else if (std::string(kind) == "#32770" && IsWindowVisible(window)) {
        boxThere = true;
        BoxParts parts{};
        EnumChildWindows(window, AddPart, reinterpret_cast<LPARAM>(&parts));
        const std::string title = TextOf(window);
        const std::string line = "seen box \"" + title + "\" \"" + parts.text + "\" [" +
                                 parts.buttons + "] icon " + (parts.icon ? "1" : "0");
        // A box that comes or goes has only some of its parts: two looks must find the same.
        const bool whole = !title.empty() && !parts.text.empty() && !parts.buttons.empty();
        if (!whole || boxBefore != line) {
            boxBefore = line;
            return TRUE;
        }
        boxWindow = window;
        boxSeen = true;
        if (lastBox != line) {
            Say(lastBox = line);
        }
    }
    return TRUE;
}

// A window of our own in front, with the focus.
void TakeFocus() {
    HWND own = CreateWindowExA(0, "STATIC", "another window", WS_POPUP | WS_VISIBLE, 0, 0, 60, 20,
                               nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(own);
    SetFocus(own);
    Say(GetForegroundWindow() == own ? "did focus" : "did not focus");
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3 || !(out = std::fopen(arguments[1], "wb"))) {
        return 2;
    }
    bool focus = false, closeBox = false, closeWindow = false, move = false;
    int x = 0, y = 0;
    DWORD limit = 60;
    int i = 2;
    for (; i < count && std::string(arguments[i]) != "--"; ++i) {
        const std::string word = arguments[i];
        focus |= word == "--focus";
        closeBox |= word == "--close-box";
        closeWindow |= word == "--close-window";
        if (word == "--move" && i + 2 < count) {
            move = true;
            x = std::atoi(arguments[++i]);
            y = std::atoi(arguments[++i]);
        } else if (word == "--limit" && i + 1 < count) {
            limit = static_cast<DWORD>(std::atoi(arguments[++i]));
        }
    }
    std::string command;
    for (++i; i < count; ++i) {
        command += (command.empty() ? "" : " ") + std::string(arguments[i]);
    }

    Say("before " + Mode());
    STARTUPINFOA start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    // (A busy Wine refuses now and then, for a moment.)
    const DWORD firstTry = GetTickCount();
    while (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                           &start, &process)) {
        const DWORD error = GetLastError();
        if (GetTickCount() - firstTry > kStartPatience) {
            Say("could not start " + command + ", error " + std::to_string(error));
            return 1;
        }
        Sleep(500);
    }
    child = process.dwProcessId;
    DWORD since = 0;
    const DWORD begin = GetTickCount();
    while (WaitForSingleObject(process.hProcess, 50) == WAIT_TIMEOUT) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageA(&message);
        }
        const std::string mode = Mode();
        if (mode != lastMode) {
            Say("seen " + (lastMode = mode));
        }
        mainWindow = boxWindow = nullptr;
        boxThere = false;
        EnumWindows(Look, 0);
        if (boxSeen && !boxThere) {
            boxSeen = false;
            Say("gone box");
        }
        if (closeBox && boxWindow) {
            closeBox = false;
            PostMessageA(boxWindow, WM_CLOSE, 0, 0);
            Say("did close-box");
        }
        if (!mainWindow || boxWindow || !IsWindowVisible(mainWindow)) {
            since = GetTickCount();
        } else if (GetTickCount() - since > 2000) {
            if (move) {
                SetWindowPos(mainWindow, nullptr, x, y, 0, 0,
                             SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
                Say("did move");
            }
            if (focus) {
                TakeFocus();
            }
            if (closeWindow) {
                PostMessageA(mainWindow, WM_SYSCOMMAND, SC_CLOSE, 0);
                Say("did close-window");
            }
            move = focus = closeWindow = false;
        }
        if (GetTickCount() - begin > limit * 1000) {
            Say("did kill");
            TerminateProcess(process.hProcess, 99);
        }
    }
    if (boxSeen) {
        Say("gone box");
    }
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    Say("exit " + std::to_string(code));
    Sleep(500);
    Say("after " + Mode());
    std::fclose(out);
    return 0;
}
