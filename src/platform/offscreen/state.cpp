// Script, state and log of the offscreen back end.
#include <cstdarg>
#include <cstdio>

#include "platform/offscreen/offscreen.h"
#include "platform/soft/soft.h"

namespace ombrel {

namespace {

constexpr std::int32_t kLogCapacity = 1 << 20;
constexpr std::int64_t kNever = INT64_MAX;

constexpr OffscreenScript InitialScript() {
    OffscreenScript s{};
    s.startTick = 1000;
    s.msPerRead = 1;
    s.desktopWidth = 1280;
    s.desktopHeight = 1024;
    s.desktopBits = 32;
    s.borderLeft = s.borderRight = s.borderBottom = 3;
    s.borderTop = 22;
    s.screenRgbBits = 16;
    s.yesNoAnswer = MessageAnswer::No;
    s.escapeFrom = s.escapeTo = kNever;
    s.failShowFrom = s.failShowTo = kNever;
    s.soundDevices = 1;
    s.soundVersion = kSoundVersion << 16;
    return s;
}

constexpr OffscreenState InitialState() {
    OffscreenState s{};
    s.screenSaver = 1;
    s.cursorX = 7;
    s.cursorY = 9;
    return s;
}

constinit char logText[kLogCapacity] = "";
constinit std::int32_t logSize = 0;
constinit bool logging = false;

} // namespace

constinit OffscreenScript script = InitialScript();
constinit OffscreenState offscreen = InitialState();

void ResetOffscreen() {
    ResetSoft();
    ResetDisplayState();
    UseSoundCalls(nullptr);
    script = InitialScript();
    offscreen = InitialState();
    logging = false;
    logSize = 0;
    logText[0] = '\0';
}

void StartSeamLog() {
    logging = true;
    logSize = 0;
    logText[0] = '\0';
}

std::string SeamLog() {
    return {logText, static_cast<std::size_t>(logSize)};
}

void LogSeamCall(const char* format, ...) {
    if (script.onCall != nullptr) {
        script.onCall(script.user);
    }
    if (!logging) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    const auto room = static_cast<std::size_t>(kLogCapacity - logSize - 1);
    const int length = std::vsnprintf(logText + logSize, room, format, arguments);
    va_end(arguments);
    if (length >= 0 && static_cast<std::size_t>(length) < room) {
        logSize += length;
        logText[logSize++] = '\n';
        logText[logSize] = '\0';
    }
}

} // namespace ombrel
