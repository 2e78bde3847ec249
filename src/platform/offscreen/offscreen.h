// The back end without a screen: the clock, the messages, the answers and the keys come from a
// script, every presented frame goes to a hook, and the calls of the seam can be written down in
// their order. It keeps every result and side effect of a back end with a screen. Callers: the
// tools and the tests.
#pragma once

#include <cstdint>
#include <string>

#include "platform/display.h"
#include "platform/sound.h"
#include "platform/system.h"

namespace ombrel {

// A frame as it was shown. pixels hold until the hook returns.
struct PresentedFrame {
    const Pixel16* pixels;
    std::int32_t pitch; // bytes
    std::int32_t width, height;
    std::int32_t x, y;   // of its top left corner on the desktop
    std::int64_t number; // from 0, counts shown frames
};
using FrameHook = void (*)(const PresentedFrame& shown, void* user);
using TurnHook = void (*)(std::int64_t turn, void* user); // before a turn takes its message

// A message that waits in the queue from a turn of the loop on (turns count from 0).
enum class MessageEvent { Other, CloseBox };
struct ScriptedMessage {
    std::int64_t turn;
    MessageEvent event;
};

// A call of the system that fails when told to.
enum class Failure {
    None,
    WindowClass,   // RegisterWindowClass
    Window,        // CreateMainWindow
    Screen,        // OpenDisplay, first step
    WindowClipper, // OpenDisplay, last step; windowed only
};

inline constexpr std::int32_t kMaxScriptedMessages = 64;

struct OffscreenScript {
    // The clock: where it starts, and what moves it. When nobody moves it for a thousand reads it
    // moves by 1 ms a read, so that waiting always ends.
    std::uint32_t startTick;
    std::uint32_t msPerRead;    // added after each read
    std::uint32_t msPerPresent; // added by each present, shown or not

    // The desktop and the borders of a window on it, pixels.
    std::int32_t desktopWidth, desktopHeight, desktopBits;
    std::int32_t borderLeft, borderTop, borderRight, borderBottom;
    std::int32_t screenRgbBits; // 15 or 16, as the visible surface reports it

    MessageAnswer yesNoAnswer;
    std::int64_t escapeFrom, escapeTo; // Escape is down for frames from..to - 1 (shown so far)
    ScriptedMessage messages[kMaxScriptedMessages]; // in the order of their turns
    std::int32_t messageCount;

    Failure failure;
    std::int64_t failShowFrom, failShowTo; // presents from..to - 1 fail
    std::int32_t soundDevices;             // 0: opening the default device fails
    std::uint32_t soundVersion;            // what getVersion returns

    FrameHook onFrame; // null: none
    TurnHook onTurn;
    void (*onMessage)(const char* text, MessageKind kind, void* user); // a box was shown
    void (*onCall)(void* user); // at the beginning of every call that the log would hold
    void* user;
};
// Written by tools and tests before and during a run; read by the back end.
extern OffscreenScript script;

// What has become of the pretended system. Read by tests.
struct OffscreenState {
    std::uint32_t tick;
    std::uint32_t idleReads; // reads since the clock last moved
    std::int64_t turns, presents, shown;
    std::int32_t windowX, windowY, windowWidth, windowHeight; // outer size
    std::int32_t windowMade, windowVisible;
    std::int32_t cursorCount; // visible when 0 or more
    std::int32_t cursorX, cursorY;
    std::int32_t screenSaver; // 1 on
    std::int32_t desktopBits; // now
    std::int32_t screenOpen;
    std::int32_t fullScreenMode; // 1 while the display is open full screen
    std::int32_t soundOpen, soundPlaying;
    std::int32_t destroysWaiting, quitWaiting, quitParameter;
    std::int32_t nextMessage;
};
extern OffscreenState offscreen;

// Script and state at their start values, all surfaces released, log off and empty. Clears the
// display state too.
void ResetOffscreen();

// Copies what is on the pretended screen; pixels of a frame never shown are 0.
Pixel16 ShownPixel(std::int32_t x, std::int32_t y);

// The log of seam calls, one line a call: its name and its arguments, "OpenDisplay 640 480 16 1 0".
// Reads of the clock, polls of Escape and turns without a message are left out.
void StartSeamLog();
std::string SeamLog();
void LogSeamCall(const char* format, ...) __attribute__((format(printf, 1, 2)));

} // namespace ombrel
