// The system half of the seam: window, messages, boxes, cursor, clock. Every back-end folder
// defines these functions; a build links exactly one folder.
#pragma once

#include <cstdint>
#include <string>

namespace ombrel {

// --- window and desktop. They read the resolution, the windowed flag and so on from `shell`.
int RegisterWindowClass(); // 0 on failure
int CreateMainWindow();    // full screen: shown at once; windowed: hidden. 0 on failure
// Windowed only: widens the window to an exact client area (sets shell.clientOffset), puts the
// desktop at 16 bits where the system has such modes (sets shell.savedDesktopDepth), sets
// shell.screenCenter to the middle of the desktop, moves the window there and shows it.
void SetUpWindowedDesktop();
void RestoreDesktopDepth();      // windowed: puts shell.savedDesktopDepth back
void RepaintDesktop();           // desktop window, own window, foreground window
void RestoreDisplayModeAtExit(); // the second, unconditional restore with the entry's own record

// --- messages
enum class Pump { None, Dispatched, Quit };
Pump PumpMessage(std::int32_t* quitParameter); // takes and dispatches one waiting message at most
void PostQuit(std::int32_t quitParameter);
void PostWindowDestroy(); // answered with the quit message when it is dispatched
bool EscapeKeyDown();     // polled, whatever window has the focus

// --- boxes; the caption is always kWindowTitle
enum class MessageKind { Ok, Error, YesNo };
enum class MessageAnswer { Ok, Yes, No };
MessageAnswer ShowMessage(const char* text, MessageKind kind); // a closed box answers Ok or No

// --- cursor, screen saver
void ShowMouseCursor(bool show); // counts, as the system's own call does
void MoveMouseCursor(std::int32_t x, std::int32_t y);
void ReadMouseCursor(std::int32_t* x, std::int32_t* y);
void EnableScreenSaver(bool enable);

// --- clock and process
std::uint32_t TickCount(); // ms, wraps at 2^32
// Called between two reads of the clock while a frame has msLeft to go, above 0. A back end may
// sleep for a part of that; one that shall spin does nothing.
void NapBeforeFrame(std::uint32_t msLeft);
// The four control calls of start-up, in their order, where the system has them; then
// SetFloatMode(FloatMode::Chop).
void SetRenderFloatMode();
std::string ProgramFolder(); // of the running program, without a slash at its end

} // namespace ombrel
