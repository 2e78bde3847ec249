// The Windows back end with system calls that fail, lie or only take notes: every case replaces
// entries of the table of calls, and runs against the system's own DirectDraw for the rest. One
// line a check, `ok what` or `FAILED what`, and the count at the end.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "base/float_mode.h"
#include "base/shell_state.h"
#include "platform/display.h"
#include "platform/system.h"
#include "platform/win32/sound.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"

namespace {

using namespace ombrel;

int passed = 0;
int failed = 0;

void Check(bool good, const char* what) {
    std::printf("%s %s\n", good ? "ok" : "FAILED", what);
    std::fflush(stdout);
    (good ? passed : failed) += 1;
}

// What the replaced calls were told and are to do.
struct Notes {
    int blits, creates, clippers, releases, flips, flipsToFail;
    int failCreate;  // number of the createSurface call that fails, from 1; 0 none
    int failClipper; // likewise of createClipper
    int failSet;     // likewise of setClipper
    int sets;
    RECT target;
    DWORD fillColor, fillSize;
    DDSURFACEDESC2 wanted;
    std::vector<unsigned char> region;
    std::vector<IUnknown*> released;
    std::vector<std::wstring> commands;
    std::vector<unsigned> control;
    std::vector<DWORD> depths;
    std::string text;
    UINT boxFlags;
    int boxAnswer;
    short key;
    int bitmapWidth, bitmapHeight, sourceWidth, sourceHeight;
    DWORD masks[3];
};
Notes notes;

void Begin(bool windowed) {
    ResetWin32Calls();
    ResetWin32Sound();
    HWND window = win32State.window;
    ResetWin32State();
    ResetDisplayState();
    win32State.window = window;
    win32State.instance = GetModuleHandleA(nullptr);
    shell.windowed = windowed;
    notes = Notes{};
}

int Open(bool windowed, int flip = 0) {
    return OpenDisplay(shell.screenWidth, shell.screenHeight, 16, windowed, flip);
}

// --- calls that fail

HRESULT WINAPI NoDirectDraw(GUID*, LPVOID*, REFIID, IUnknown*) {
    return DDERR_GENERIC;
}
HRESULT NoLevel(IDirectDraw7*, HWND, DWORD) {
    return DDERR_EXCLUSIVEMODEALREADYSET;
}
HRESULT NoMode(IDirectDraw7*, DWORD, DWORD, DWORD) {
    return DDERR_UNSUPPORTEDMODE;
}
HRESULT BrokenMode(IDirectDraw7*, DWORD, DWORD, DWORD) {
    return DDERR_GENERIC;
}
// Says yes to full screen, and leaves the desktop alone.
HRESULT GoodLevel(IDirectDraw7* direct, HWND window, DWORD) {
    return direct::SetCooperativeLevel(direct, window, DDSCL_NORMAL);
}
HRESULT GoodMode(IDirectDraw7*, DWORD, DWORD, DWORD) {
    return DD_OK;
}
HRESULT SomeCreateFails(IDirectDraw7* direct, DDSURFACEDESC2* wanted, IDirectDrawSurface7** made) {
    notes.wanted = *wanted;
    return ++notes.creates == notes.failCreate ? DDERR_OUTOFMEMORY
                                               : direct::CreateSurface(direct, wanted, made);
}
HRESULT SomeClipperFails(IDirectDraw7* direct, IDirectDrawClipper** made) {
    return ++notes.clippers == notes.failClipper ? DDERR_OUTOFMEMORY
                                                 : direct::CreateClipper(direct, made);
}
HRESULT SomeSetClipperFails(IDirectDrawSurface7* surface, IDirectDrawClipper* clipper) {
    return ++notes.sets == notes.failSet ? DDERR_GENERIC : direct::SetClipper(surface, clipper);
}
HRESULT NoHWnd(IDirectDrawClipper*, HWND) {
    return DDERR_INVALIDPARAMS;
}
HRESULT NoClipList(IDirectDrawClipper*, RGNDATA*) {
    return DDERR_INVALIDCLIPLIST;
}
HRESULT NoAttached(IDirectDrawSurface7*, DDSCAPS2*, IDirectDrawSurface7**) {
    return DDERR_NOTFOUND;
}
HRESULT NoLock(IDirectDrawSurface7*, DDSURFACEDESC2*, DWORD) {
    return DDERR_SURFACELOST;
}
HRESULT LostBlt(IDirectDrawSurface7*, RECT*, IDirectDrawSurface7*, RECT*, DWORD, DDBLTFX*) {
    ++notes.blits;
    return DDERR_SURFACELOST;
}
HRESULT FlipFailsAWhile(IDirectDrawSurface7*, DWORD flags) {
    ++notes.flips;
    return flags == DDFLIP_WAIT && notes.flips <= notes.flipsToFail ? DDERR_SURFACEBUSY : DD_OK;
}
BOOL WINAPI NoWindowRect(HWND, LPRECT) {
    return FALSE;
}
ATOM WINAPI NoClass(const WNDCLASSA*) {
    return 0;
}
HWND WINAPI NoWindow(DWORD, LPCSTR, LPCSTR, DWORD, int, int, int, int, HWND, HMENU, HINSTANCE,
                     LPVOID) {
    return nullptr;
}
LONG WINAPI NoChange(DEVMODEA* mode, DWORD) {
    notes.depths.push_back(mode->dmBitsPerPel);
    return DISP_CHANGE_BADMODE;
}
BOOL WINAPI SizeWanted(LPCSTR device, DWORD number, DEVMODEA* mode) {
    return mode->dmSize == sizeof(*mode) ? EnumDisplaySettingsA(device, number, mode) : FALSE;
}
BOOL WINAPI NoModes(LPCSTR, DWORD, DEVMODEA*) {
    return FALSE;
}
BOOL WINAPI OneMode(LPCSTR, DWORD number, DEVMODEA* mode) {
    mode->dmPelsWidth = 640;
    mode->dmPelsHeight = 480;
    mode->dmBitsPerPel = 16;
    return number == 0;
}

// --- calls that lie or take notes

HRESULT Format15(IDirectDrawSurface7* surface, DDPIXELFORMAT* format) {
    const HRESULT result = direct::GetPixelFormat(surface, format);
    format->dwRGBBitCount = 15;
    return result;
}
HRESULT Format16(IDirectDrawSurface7*, DDPIXELFORMAT* format) {
    *format = Format565();
    return DD_OK;
}
HRESULT Format32(IDirectDrawSurface7*, DDPIXELFORMAT* format) {
    format->dwFlags = DDPF_RGB;
    format->dwRGBBitCount = 32;
    format->dwRBitMask = 0xFF0000;
    format->dwGBitMask = 0xFF00;
    format->dwBBitMask = 0xFF;
    return DD_OK;
}
HRESULT NotingBlt(IDirectDrawSurface7* destination, RECT* target, IDirectDrawSurface7* origin,
                  RECT* source, DWORD flags, DDBLTFX* effects) {
    ++notes.blits;
    notes.target = target ? *target : RECT{};
    if (effects) {
        notes.fillColor = effects->dwFillColor;
        notes.fillSize = effects->dwSize;
    }
    return direct::Blt(destination, target, origin, source, flags, effects);
}
// Says that all went well and copies nothing, so that the target stays black.
HRESULT IdleBlt(IDirectDrawSurface7*, RECT*, IDirectDrawSurface7*, RECT*, DWORD, DDBLTFX*) {
    return DD_OK;
}
HRESULT NotingClipList(IDirectDrawClipper* clipper, RGNDATA* region) {
    const auto* bytes = reinterpret_cast<unsigned char*>(region);
    notes.region.assign(bytes, bytes + region->rdh.dwSize + region->rdh.nRgnSize);
    return direct::SetClipList(clipper, region);
}
ULONG NotingRelease(IUnknown* object) {
    notes.released.push_back(object);
    return direct::Release(object);
}
// A surface whose rows are far apart: memory of our own in its place.
std::uint16_t wideMemory[480 * 1000];
HRESULT WideLock(IDirectDrawSurface7*, DDSURFACEDESC2* description, DWORD) {
    description->lpSurface = wideMemory;
    description->lPitch = 2000;
    return DD_OK;
}
HRESULT WideUnlock(IDirectDrawSurface7*) {
    return DD_OK;
}
int WINAPI NotingBitmap(HDC, int, int, int, int, int, int, int width, int height, const void*,
                        const BITMAPINFO* bitmap, UINT, DWORD) {
    notes.bitmapWidth = bitmap->bmiHeader.biWidth;
    notes.bitmapHeight = bitmap->bmiHeader.biHeight;
    notes.sourceWidth = width;
    notes.sourceHeight = height;
    std::memcpy(notes.masks, bitmap->bmiColors, sizeof(notes.masks));
    return height;
}
int WINAPI NoBitmap(HDC, int, int, int, int, int, int, int, int, const void*, const BITMAPINFO*,
                    UINT, DWORD) {
    return 0;
}
unsigned Noting87(unsigned value, unsigned mask) {
    notes.control.insert(notes.control.end(), {87, value, mask});
    return 0;
}
unsigned NotingFp(unsigned value, unsigned mask) {
    notes.control.insert(notes.control.end(), {1, value, mask});
    return 0;
}
int WINAPI NotingBox(HWND owner, LPCSTR text, LPCSTR caption, UINT flags) {
    notes.text = std::string(owner ? "owned " : "") + caption + "|" + text;
    notes.boxFlags = flags;
    return notes.boxAnswer;
}
SHORT WINAPI NotingKey(int key) {
    return key == VK_ESCAPE ? notes.key : SHORT{0};
}
UINT WINAPI NoDevices() {
    return 0;
}
UINT WINAPI OneDevice() {
    return 1;
}
MCIERROR WINAPI NotingCommand(LPCWSTR command, LPWSTR, UINT, HWND) {
    notes.commands.emplace_back(command);
    return 0;
}
MCIERROR WINAPI NoCommand(LPCWSTR command, LPWSTR, UINT, HWND) {
    notes.commands.emplace_back(command);
    return MCIERR_FILE_NOT_FOUND;
}
HMODULE WINAPI NoLibrary(LPCWSTR) {
    return nullptr;
}
FARPROC WINAPI NoFunction(HMODULE, LPCSTR) {
    return nullptr;
}

// --- the cases

void FailingWindow() {
    Begin(true);
    win32Calls.registerClass = NoClass;
    Check(RegisterWindowClass() == 0, "a class that cannot be registered gives 0");
    ResetWin32Calls();
    Check(RegisterWindowClass() == 1, "the class is registered");
    win32Calls.createWindow = NoWindow;
    Check(CreateMainWindow() == 0, "a window that cannot be created gives 0");
    ResetWin32Calls();
    Check(CreateMainWindow() == 1, "the window is created");
    Check(!IsWindowVisible(win32State.window), "a windowed window is created hidden");

    win32Calls.changeDisplaySettings = NoChange;
    win32Calls.enumDisplaySettings = SizeWanted;
    SetUpWindowedDesktop();
    Check(shell.savedDesktopDepth == 32, "a system that wants the record's size gets it");
    Check(notes.depths.size() == 1 && notes.depths[0] == 16, "16 bits are asked for once");
    RECT client = {};
    GetClientRect(win32State.window, &client);
    Check(client.right == 640 && client.bottom == 480, "the client area is exact");
    RECT outer = {};
    GetWindowRect(win32State.window, &outer);
    POINT corner = {0, 0};
    ClientToScreen(win32State.window, &corner);
    Check(corner.x - outer.left == shell.clientOffsetX &&
              corner.y - outer.top == shell.clientOffsetY,
          "the client offset is the way from the outer corner to the client area");
    Check(IsWindowVisible(win32State.window), "the window is shown, though the mode was refused");
    RestoreDesktopDepth();
    RestoreDisplayModeAtExit();
    Check(notes.depths.size() == 3 && notes.depths[1] == 32 && notes.depths[2] == 32,
          "the depth is put back twice");
}

void FailingOpen() {
    Begin(true);
    win32Calls.directDrawCreate = NoDirectDraw;
    win32Calls.release = NotingRelease;
    Check(Open(true) == 0, "no DirectDraw: 0");
    Check(CloseDisplay() == 1 && notes.released.empty(), "no DirectDraw: nothing to release");

    Begin(true);
    win32Calls.setCooperativeLevel = NoLevel;
    win32Calls.release = NotingRelease;
    Check(Open(true) == 0, "no cooperative level: 0");
    CloseDisplay();
    Check(notes.released.size() == 1, "no cooperative level: one object to release");

    Begin(false);
    win32Calls.setCooperativeLevel = GoodLevel;
    win32Calls.setDisplayMode = BrokenMode;
    win32Calls.enumDisplaySettings = OneMode;
    win32Calls.createSurface = SomeCreateFails;
    Check(Open(false) == 0, "a listed mode that cannot be set: 0");
    Check(notes.creates == 0, "a listed mode that cannot be set: no surface is tried");
    CloseDisplay();

    Begin(false);
    win32Calls.setCooperativeLevel = GoodLevel;
    win32Calls.setDisplayMode = NoMode;
    win32Calls.enumDisplaySettings = OneMode;
    Check(Open(false) == 1 && win32State.path == PresentPath::Stretch,
          "a listed mode that is said to be none: over the monitor instead");
    CloseDisplay();

    Begin(false);
    win32Calls.setCooperativeLevel = GoodLevel;
    win32Calls.setDisplayMode = BrokenMode;
    win32Calls.enumDisplaySettings = NoModes;
    Check(Open(false) == 1 && win32State.path == PresentPath::Stretch,
          "a mode that is not listed, whatever the answer: over the monitor instead");
    CloseDisplay();

    Begin(false);
    win32Calls.setCooperativeLevel = GoodLevel;
    win32Calls.setDisplayMode = NoMode;
    win32Calls.enumDisplaySettings = NoModes;
    Check(Open(false) == 1 && win32State.path == PresentPath::Stretch,
          "a mode that the display does not have: over the monitor instead");
    const std::int32_t wide = win32State.picture.right - win32State.picture.left;
    Check(wide >= 640 && wide % 640 == 0, "over the monitor: enlarged by a whole factor");
    Check(PresentFrame() == 1, "over the monitor: a frame is shown");
    CloseDisplay();
}

void FailingSurfaces() {
    Begin(true);
    win32Calls.createSurface = SomeCreateFails;
    notes.failCreate = 1;
    Check(Open(true) == 0, "no visible surface in a window: 0, the window clipper has no place");
    Check(PresentFrame() == 0, "no visible surface: nothing is presented");
    CloseDisplay();

    Begin(false);
    win32Calls.setCooperativeLevel = GoodLevel;
    win32Calls.setDisplayMode = GoodMode;
    win32Calls.createSurface = SomeCreateFails;
    notes.failCreate = 1;
    Check(Open(false) == 1, "no visible surface full screen: not looked at");
    Check(PresentFrame() == 0, "no visible surface full screen: nothing is presented");
    CloseDisplay();

    Begin(true);
    win32Calls.createSurface = SomeCreateFails;
    notes.failCreate = 2;
    Check(Open(true) == 1 && !display.backSurface, "no back surface: not looked at");
    LockFrame();
    Check(!display.back.pixels && UnlockFrame() == 0, "no back surface: nothing to lock");
    Check(PresentFrame() == 0, "no back surface: nothing is presented");
    CloseDisplay();

    Begin(false);
    win32Calls.setCooperativeLevel = GoodLevel;
    win32Calls.setDisplayMode = GoodMode;
    win32Calls.getAttachedSurface = NoAttached;
    Check(Open(false, 1) == 0, "flipping without a back buffer: 0");
    CloseDisplay();

    Begin(true);
    Open(true);
    win32Calls.createSurface = SomeCreateFails;
    notes.failCreate = 1;
    Check(!MakeOffscreenSurface(48, 42, SurfaceMemory::System, 0), "no glyph surface: null");
    const Rect place = {0, 0, 48, 42};
    Check(BlitKeyed(display.backSurface, &place, nullptr) == 0, "a null glyph is not drawn");
    FrameBuffer memory = {};
    Check(LockSurface(nullptr, &memory) == 0 && !memory.pixels, "a null surface is not locked");
    ReleaseSurface(nullptr);
    CloseDisplay();
}

void FailingClippers() {
    for (int which = 1; which <= 2; ++which) {
        Begin(true);
        win32Calls.createClipper = SomeClipperFails;
        notes.failClipper = which;
        Check(Open(true) == (which == 1 ? 1 : 0), which == 1
                                                      ? "no clipper for the back surface: goes on"
                                                      : "no clipper for the window: 0");
        CloseDisplay();
    }
    for (int which = 1; which <= 2; ++which) {
        Begin(true);
        win32Calls.setClipper = SomeSetClipperFails;
        notes.failSet = which;
        Check(Open(true) == (which == 1 ? 1 : 0),
              which == 1 ? "back clipper not attached: goes on" : "window clipper not attached: 0");
        Check(which == 2 || !win32State.backClipper, "a clipper that is not attached is null");
        CloseDisplay();
    }
    Begin(true);
    win32Calls.setHWnd = NoHWnd;
    Check(Open(true) == 0, "a clipper that does not take the window: 0");
    CloseDisplay();

    Begin(true);
    Open(true);
    win32Calls.setClipList = NoClipList;
    const Rect one = {0, 0, 1, 1};
    Check(!SetSurfaceClipList(display.backSurface, 1, &one), "a refused clip list gives null");
    win32Calls.setClipList = NotingClipList;
    const Rect two[2] = {{10, 20, 30, 40}, {5, 50, 25, 70}};
    Check(SetSurfaceClipList(display.backSurface, 2, two) != nullptr, "a clip list of two");
    const auto* region = reinterpret_cast<RGNDATA*>(notes.region.data());
    const RECT box = region->rdh.rcBound;
    Check(region->rdh.dwSize == 32 && region->rdh.iType == RDH_RECTANGLES &&
              region->rdh.nCount == 2 && region->rdh.nRgnSize == 32,
          "the region data has its header");
    Check(box.left == 5 && box.top == 20 && box.right == 30 && box.bottom == 70,
          "the region data has the box around both");
    Check(std::memcmp(region->Buffer, two, sizeof(two)) == 0,
          "the region data has both rectangles");
    CloseDisplay();
}

void FramesThatFail() {
    Begin(true);
    Check(Open(true) == 1, "the display opens");
    Check(display.format.rgbBits == 16 || win32State.ownFormat, "the format is known");
    LockFrame();
    Check(display.back.pixels && display.back.pitch >= 1280, "the back surface is memory");
    win32Calls.blt = NotingBlt;
    Check(PresentFrame() == 0 && notes.blits == 0, "no present while locked");
    Check(UnlockFrame() == 1 && UnlockFrame() == 0, "the second unlock gives 0");
    Check(PresentFrame() == 1 && notes.blits == 1, "a frame is presented");
    RECT before = notes.target;
    MoveWindow(win32State.window, 77, 55, 660, 520, FALSE);
    RECT outer = {};
    GetWindowRect(win32State.window, &outer);
    Check(PresentFrame() == 1 && notes.target.left == outer.left + shell.clientOffsetX &&
              notes.target.top == outer.top + shell.clientOffsetY &&
              notes.target.left != before.left,
          "a moved window gets its next frame at the new place");
    Check(notes.target.right - notes.target.left == 640 &&
              notes.target.bottom - notes.target.top == 480,
          "the target has the frame's size");

    win32Calls.blt = LostBlt;
    notes.blits = 0;
    Check(PresentFrame() == 0 && PresentFrame() == 0 && PresentFrame() == 0 && notes.blits == 3,
          "R49_ lost surfaces: 0 each, one try a frame, no restoring");
    ResetWin32Calls();
    Check(PresentFrame() == 1, "the surfaces are back: the next frame is presented");
    win32Calls.getWindowRect = NoWindowRect;
    Check(PresentFrame() == 0, "a window without a place: 0");
    ResetWin32Calls();

    win32Calls.lock = NoLock;
    LockFrame();
    Check(!display.back.pixels && display.back.pitch == 0, "a failed lock leaves null and 0");
    Check(UnlockFrame() == 0, "a failed lock needs no unlock");
    ResetWin32Calls();
    LockFrame();
    Check(display.back.pixels != nullptr && UnlockFrame() == 1, "the next lock works");

    win32Calls.lock = WideLock;
    win32Calls.unlock = WideUnlock;
    LockFrame();
    Check(display.back.pitch == 2000, "a wide pitch is handed on");
    UnlockFrame();
    win32State.path = PresentPath::Gdi;
    win32Calls.stretchDIBits = NotingBitmap;
    Check(PresentFrame() == 1 && notes.bitmapWidth == 1000 && notes.bitmapHeight == -480 &&
              notes.sourceWidth == 640 && notes.sourceHeight == 480,
          "a bitmap is as wide as the pitch, and the frame's part of it is drawn");
    Check(notes.masks[0] == 0xF800 && notes.masks[1] == 0x07E0 && notes.masks[2] == 0x001F,
          "a bitmap says 5-6-5");
    win32Calls.stretchDIBits = NoBitmap;
    Check(PresentFrame() == 0, "a bitmap that is not drawn: 0");
    win32Calls.lock = NoLock;
    Check(PresentFrame() == 0, "a bitmap without memory: 0");
    win32State.path = PresentPath::Blit;
    ResetWin32Calls();

    win32Calls.blt = NotingBlt;
    const Rect part = {1, 2, 3, 4};
    Check(FillSurface(display.backSurface, 0xABCD1234, &part) == 1 && notes.fillColor == 0x1234 &&
              notes.fillSize == sizeof(DDBLTFX) && notes.target.left == 1 &&
              notes.target.bottom == 4,
          "a fill takes the low 16 bits and the rectangle");
    win32Calls.blt = LostBlt;
    Check(FillSurface(display.backSurface, 0, nullptr) == 1, "a fill that fails gives 1");

    win32Calls.release = NotingRelease;
    IUnknown* const order[5] = {win32State.backClipper, win32State.windowClipper,
                                ObjectOf(display.backSurface), win32State.primary,
                                win32State.directDraw};
    Check(CloseDisplay() == 1 && notes.released.size() == 5 &&
              std::memcmp(notes.released.data(), order, sizeof(order)) == 0,
          "everything is released in its order");
    Check(win32State.directDraw != nullptr, "the variables are not cleared");

    Begin(true);
    Open(true);
    Surface* first = MakeOffscreenSurface(48, 42, SurfaceMemory::System, 0);
    Surface* second = MakeOffscreenSurface(48, 42, SurfaceMemory::System, 0);
    win32Calls.release = NotingRelease;
    ReleaseSurface(first);
    CloseDisplay();
    Check(notes.released.size() == 7 && notes.released[0] == ObjectOf(first) &&
              notes.released[6] == ObjectOf(second),
          "what is still there at the end is released last");
    ReleaseSurface(second);
    Check(notes.released.size() == 7, "and not twice");
}

void Flipping() {
    Begin(false);
    win32Calls.setCooperativeLevel = GoodLevel;
    win32Calls.setDisplayMode = GoodMode;
    Open(false);
    display.flip = 1;
    win32Calls.flip = FlipFailsAWhile;
    notes.flipsToFail = 5;
    Check(PresentFrame() == 1 && notes.flips == 6, "a flip is tried until it does not fail");
    display.flip = 0;
    CloseDisplay();
}

void Formats() {
    Begin(true);
    win32Calls.getPixelFormat = Format15;
    Open(true);
    Check(display.format.rgbBits == 15 && display.format.pack(255, 255, 255) == 0x7FFF,
          "R50_ 15 bits choose the 5-5-5 packer");
    Check(!win32State.ownFormat, "15 bits: surfaces take the screen's format");
    CloseDisplay();

    Begin(true);
    win32Calls.getPixelFormat = Format16;
    win32Calls.createSurface = SomeCreateFails;
    Open(true);
    Check(display.format.pack(255, 255, 255) == 0xFFFF, "else the 5-6-5 packer");
    Surface* glyph = MakeOffscreenSurface(48, 42, SurfaceMemory::Any, 0x10007);
    Check(notes.wanted.dwSize == sizeof(DDSURFACEDESC2) &&
              notes.wanted.dwFlags == (DDSD_CAPS | DDSD_HEIGHT | DDSD_WIDTH) &&
              notes.wanted.ddsCaps.dwCaps == DDSCAPS_OFFSCREENPLAIN && notes.wanted.dwWidth == 48 &&
              notes.wanted.dwHeight == 42,
          "a surface is described by size and capabilities only");
    DDCOLORKEY key = {};
    ObjectOf(glyph)->GetColorKey(DDCKEY_SRCBLT, &key);
    Check(key.dwColorSpaceLowValue == 7 && key.dwColorSpaceHighValue == 7,
          "its colour key has the low 16 bits");
    ReleaseSurface(glyph);
    CloseDisplay();

    Begin(true);
    win32Calls.getPixelFormat = Format32;
    win32Calls.createSurface = SomeCreateFails;
    Open(true);
    Check(win32State.ownFormat, "32 bits: surfaces have a format of their own");
    Check(display.format.rgbBits == 16, "32 bits: for the loaders that is 16 bits");
    Check(win32State.path == PresentPath::Blit, "32 bits: blits that convert are used");
    glyph = MakeOffscreenSurface(48, 42, SurfaceMemory::Any, 0);
    Check((notes.wanted.dwFlags & DDSD_PIXELFORMAT) &&
              notes.wanted.ddpfPixelFormat.dwRBitMask == 0xF800 &&
              (notes.wanted.ddsCaps.dwCaps & DDSCAPS_SYSTEMMEMORY),
          "32 bits: glyphs are 5-6-5 in system memory");
    ReleaseSurface(glyph);
    CloseDisplay();

    Begin(true);
    win32Calls.getPixelFormat = Format32;
    win32Calls.blt = LostBlt;
    Open(true);
    Check(win32State.path == PresentPath::Gdi, "32 bits: blits that fail are not used");
    CloseDisplay();

    Begin(true);
    win32Calls.getPixelFormat = Format32;
    win32Calls.blt = IdleBlt;
    Open(true);
    Check(win32State.path == PresentPath::Gdi, "32 bits: blits with wrong colours are not used");
    CloseDisplay();
}

void Boxes() {
    Begin(true);
    win32Calls.messageBox = NotingBox;
    notes.boxAnswer = IDYES;
    Check(ShowMessage("Full screen?", MessageKind::YesNo) == MessageAnswer::Yes, "Yes");
    Check(notes.boxFlags == MB_YESNO &&
              notes.text == "Ombrel - a fast prod from Quellant|Full screen?",
          "a question has two buttons, the title and no owner");
    notes.boxAnswer = IDNO;
    Check(ShowMessage("?", MessageKind::YesNo) == MessageAnswer::No, "No");
    notes.boxAnswer = IDCANCEL;
    Check(ShowMessage("?", MessageKind::YesNo) == MessageAnswer::No, "closed otherwise: No");
    notes.boxAnswer = 0;
    Check(ShowMessage("?", MessageKind::YesNo) == MessageAnswer::No, "a box that fails: No");
    Check(ShowMessage("!", MessageKind::Error) == MessageAnswer::Ok &&
              notes.boxFlags == MB_ICONERROR,
          "an error has its sign and one button");
    Check(ShowMessage("!", MessageKind::Ok) == MessageAnswer::Ok && notes.boxFlags == MB_OK,
          "a message has one button");

    win32Calls.getAsyncKeyState = NotingKey;
    notes.key = 1;
    Check(!EscapeKeyDown(), "Escape pressed since the last look, but not down: no");
    notes.key = static_cast<short>(0x8000);
    Check(EscapeKeyDown(), "Escape down: yes");
}

void FloatMode16() {
    Begin(true);
    win32Calls.control87 = Noting87;
    win32Calls.controlfp = NotingFp;
    const ScopedFloatMode keep(FloatMode::Nearest);
    SetRenderFloatMode();
    const std::vector<unsigned> wanted = {87, _PC_24,   _MCW_PC, 87, _DN_FLUSH, _MCW_DN,
                                          87, _RC_NEAR, _MCW_RC, 1,  _RC_CHOP,  _MCW_RC};
    Check(notes.control == wanted, "the four control calls in their order");
    Check(CurrentFloatMode() == FloatMode::Chop, "then the unit truncates");
    ResetWin32Calls();
    SetFloatMode(FloatMode::Nearest);
    SetRenderFloatMode();
    volatile float third = 1.0F;
    third = third / 3.0F;
    volatile float tiny = 1.0e-38F;
    tiny = tiny * 0.125F;
    std::uint32_t bits = 0;
    const float value = third;
    std::memcpy(&bits, &value, sizeof(bits));
    Check(bits == 0x3EAAAAAA && tiny == 0.0F, "with the system's own calls: chopped and flushed");
}

void SoundWithout() {
    Begin(true);
    win32Calls.loadLibrary = NoLibrary;
    win32Calls.waveOutGetNumDevs = NoDevices;
    win32Calls.mciSendString = NotingCommand;
    const SoundCalls* calls = BackEndSound();
    Check(calls == SystemSound(), "no library: the system plays");
    Check(calls->getVersion() >> 16 == kSoundVersion, "the system has the right version");
    Check(calls->init(-1, 44100) == 0, "no device: the first try fails");
    Check(calls->init(0, 44100) == 1, "no device: the silent try works");
    Check(calls->streamCreateFile("./data/sfx/soundtrack.mp3") == 0, "no device: no stream");
    calls->channelPlay(0, 0);
    calls->channelStop(0);
    calls->sampleFree(0);
    Check(calls->free() == 1 && notes.commands.empty(), "no device: the player is left alone");

    win32Calls.waveOutGetNumDevs = OneDevice;
    Check(calls->init(-1, 44100) == 1, "a device: the first try works");
    Check(calls->streamCreateFile("./data/sfx/soundtrack.mp3") != 0, "a device: a stream");
    calls->channelPlay(1, 0);
    calls->channelStop(1);
    calls->sampleFree(1);
    calls->free();
    Check(notes.commands.size() == 4 && notes.commands[0].find(L"open \"") == 0 &&
              notes.commands[0].find(L"\\data\\sfx\\soundtrack.mp3\" type mpegvideo") !=
                  std::wstring::npos &&
              notes.commands[1] == L"play ombrel" && notes.commands[2] == L"stop ombrel" &&
              notes.commands[3] == L"close ombrel",
          "a device: open, play once, stop, close");

    notes.commands.clear();
    win32Calls.mciSendString = NoCommand;
    calls->init(-1, 44100);
    Check(calls->streamCreateFile("./data/sfx/soundtrack.mp3") == 0, "an unplayable file: 0");
    Check(calls->channelPlay(0, 0) == 0 && notes.commands.size() == 1,
          "an unplayable file: no further commands");
    calls->free();

    Begin(true);
    win32Calls.getProcAddress = NoFunction;
    Check(BackEndSound() == SystemSound(), "a library without the functions: the system plays");
    Check(BackEndSound() == SystemSound(), "the choice is kept");
}

} // namespace

int main() {
    shell.screenWidth = 640;
    shell.screenHeight = 480;
    FailingWindow();
    FailingOpen();
    FailingSurfaces();
    FailingClippers();
    FramesThatFail();
    Flipping();
    Formats();
    Boxes();
    FloatMode16();
    SoundWithout();
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed ? 1 : 0;
}
