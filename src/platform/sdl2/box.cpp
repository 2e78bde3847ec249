// Message boxes, drawn by ourselves: in the main window when there is one, else in a small window
// of their own. Measures are in points, the pixels of the small font; a point is drawn as a square
// of whole pixels.
#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "base/float_mode.h"
#include "base/shell_state.h"
#include "base/small_font.h"
#include "platform/sdl2/say.h"
#include "platform/sdl2/sdl2_state.h"
#include "platform/system.h"

namespace ombrel {

namespace {

constexpr int kMargin = 12, kGap = 10, kLinePitch = 11; // points
constexpr int kButtonWidth = 60, kButtonHeight = 17, kButtonGap = 12;
constexpr int kMinWidth = 240;
constexpr std::size_t kMaxColumns = 64;
constexpr int kPointsOfDesktop = 400; // the desktop's height, about
constexpr int kMinScale = 2;          // pixels a point, where there is room
constexpr int kPatience = 50;         // ms between two looks at requests to end
constexpr int kNobody = -1;

// clang-format off
constexpr SDL_Color kBack   {0x1C, 0x18, 0x42, 255};
constexpr SDL_Color kFrame  {0xE2, 0x70, 0x4A, 255};
constexpr SDL_Color kTitle  {0xFF, 0xEC, 0xC4, 255};
constexpr SDL_Color kText   {0xFF, 0xFF, 0xFF, 255};
constexpr SDL_Color kButton {0x3A, 0x34, 0x70, 255};
constexpr SDL_Color kChosen {0xE7, 0x48, 0x3C, 255};
// clang-format on

struct ButtonRow {
    const char* labels[2];
    int count; // the first is chosen at the start, the last is what Escape means
};
constexpr ButtonRow kOk{{"OK", nullptr}, 1};
constexpr ButtonRow kYesNo{{"Yes", "No"}, 2};

struct Box {
    SDL_Window* window;
    SDL_Renderer* renderer;
    std::vector<std::string> lines;
    ButtonRow buttons;
    int width, height;    // points
    int maxScale;         // pixels a point, of the window's units
    int left, top, scale; // of the box in the output, pixels
    float pixelsAUnit;    // output pixels a unit of the window
    int chosen;           // button
    int pressed;          // button that the mouse holds, or kNobody
    SDL_Keycode heldKey;  // pressed in this box
    int answer;           // button, or kNobody
};

// Breaks a text at its line ends, and at blanks where a line is too long; tabs become blanks.
std::vector<std::string> BreakLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        std::size_t length = std::min(text.find('\n'), text.size());
        std::size_t next = std::min(length + 1, text.size());
        if (length > kMaxColumns) {
            const std::size_t blank = text.rfind(' ', kMaxColumns);
            const bool breaks = blank != std::string_view::npos && blank > 0;
            length = breaks ? blank : kMaxColumns;
            next = breaks ? length + 1 : length;
        }
        lines.emplace_back(text.substr(0, length));
        std::replace(lines.back().begin(), lines.back().end(), '\t', ' ');
        text.remove_prefix(next);
    }
    return lines;
}

int WidthOf(std::string_view text) {
    return static_cast<int>(text.size()) * kSmallLetterWidth - 1;
}

void Measure(Box* box) {
    int inside = WidthOf(kWindowTitle);
    for (const std::string& line : box->lines) {
        inside = std::max(inside, WidthOf(line));
    }
    box->width = std::max(inside + 2 * kMargin, kMinWidth);
    box->height = kMargin + kSmallLetterHeight + kGap +
                  static_cast<int>(box->lines.size()) * kLinePitch + kGap + kButtonHeight + kMargin;
}

SDL_Rect ButtonPlace(const Box& box, int button) {
    const int count = box.buttons.count;
    const int all = count * kButtonWidth + (count - 1) * kButtonGap;
    return {(box.width - all) / 2 + button * (kButtonWidth + kButtonGap),
            box.height - kMargin - kButtonHeight, kButtonWidth, kButtonHeight};
}

// Finds out where the box stands in the output, as large as a box may be and the output has room.
void Place(Box* box) {
    int outputWidth = box->width;
    int outputHeight = box->height;
    int windowWidth = outputWidth;
    int windowHeight = outputHeight;
    sdl.GetRendererOutputSize(box->renderer, &outputWidth, &outputHeight);
    sdl.GetWindowSize(box->window, &windowWidth, &windowHeight);
    box->pixelsAUnit =
        static_cast<float>(outputWidth) / static_cast<float>(std::max(windowWidth, 1));
    const int limit = static_cast<int>(static_cast<float>(box->maxScale) * box->pixelsAUnit);
    const int room = std::min(outputWidth / box->width, outputHeight / box->height);
    box->scale = std::max(std::min(room, limit), 1);
    box->left = (outputWidth - box->width * box->scale) / 2;
    box->top = (outputHeight - box->height * box->scale) / 2;
}

void FillPoints(const Box& box, const SDL_Rect& r, const SDL_Color& color) {
    const SDL_Rect pixels{box.left + r.x * box.scale, box.top + r.y * box.scale, r.w * box.scale,
                          r.h * box.scale};
    sdl.SetRenderDrawColor(box.renderer, color.r, color.g, color.b, color.a);
    sdl.RenderFillRect(box.renderer, &pixels);
}

void DrawWords(const Box& box, int x, int y, std::string_view text, const SDL_Color& color) {
    for (const char letter : text) {
        for (std::int32_t row = 0; row < kSmallLetterHeight; ++row) {
            for (std::int32_t column = 0; column < kSmallLetterWidth; ++column) {
                if (SmallLetterPixel(letter, column, row)) {
                    FillPoints(box, {x + column, y + row, 1, 1}, color);
                }
            }
        }
        x += kSmallLetterWidth;
    }
}

void DrawButton(const Box& box, int button) {
    const SDL_Rect place = ButtonPlace(box, button);
    const bool chosen = button == box.chosen;
    const char* const label = box.buttons.labels[button];
    FillPoints(box, place, chosen ? kTitle : kFrame);
    FillPoints(box, {place.x + 1, place.y + 1, place.w - 2, place.h - 2},
               chosen ? kChosen : kButton);
    DrawWords(box, place.x + (place.w - WidthOf(label)) / 2,
              place.y + (place.h - kSmallLetterHeight) / 2, label, kText);
}

void Draw(Box* box) {
    Place(box);
    sdl.SetRenderDrawColor(box->renderer, 0, 0, 0, 255);
    sdl.RenderClear(box->renderer);
    FillPoints(*box, {0, 0, box->width, box->height}, kFrame);
    FillPoints(*box, {1, 1, box->width - 2, box->height - 2}, kBack);
    DrawWords(*box, (box->width - WidthOf(kWindowTitle)) / 2, kMargin, kWindowTitle, kTitle);
    // A single line stands in the middle, a text at the left.
    int y = kMargin + kSmallLetterHeight + kGap;
    for (const std::string& line : box->lines) {
        const bool alone = box->lines.size() == 1;
        DrawWords(*box, alone ? (box->width - WidthOf(line)) / 2 : kMargin, y, line, kText);
        y += kLinePitch;
    }
    for (int button = 0; button < box->buttons.count; ++button) {
        DrawButton(*box, button);
    }
    sdl.RenderPresent(box->renderer);
}

int ButtonAt(const Box& box, int x, int y) {
    const int pointX = (static_cast<int>(static_cast<float>(x) * box.pixelsAUnit) - box.left);
    const int pointY = (static_cast<int>(static_cast<float>(y) * box.pixelsAUnit) - box.top);
    const SDL_Point point{pointX / box.scale, pointY / box.scale};
    for (int button = 0; button < box.buttons.count; ++button) {
        const SDL_Rect place = ButtonPlace(box, button);
        if (SDL_PointInRect(&point, &place) == SDL_TRUE) {
            return button;
        }
    }
    return kNobody;
}

void OnKeyDown(Box* box, SDL_Keycode key) {
    box->heldKey = key;
    const int count = box->buttons.count;
    if (key == SDLK_LEFT) {
        box->chosen = std::max(box->chosen - 1, 0);
    } else if (key == SDLK_RIGHT) {
        box->chosen = std::min(box->chosen + 1, count - 1);
    } else if (key == SDLK_TAB) {
        box->chosen = (box->chosen + 1) % count;
    }
}

// A key answers when it is let go, so that nothing is left of it for the production.
void OnKeyUp(Box* box, SDL_Keycode key) {
    if (key != box->heldKey) {
        return;
    }
    const int last = box->buttons.count - 1;
    switch (key) {
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
    case SDLK_SPACE:
        box->answer = box->chosen;
        break;
    case SDLK_ESCAPE:
        box->answer = last;
        break;
    case SDLK_y:
        box->answer = last > 0 ? 0 : kNobody;
        break;
    case SDLK_n:
        box->answer = last > 0 ? last : kNobody;
        break;
    default:
        break;
    }
}

void OnMouseButton(Box* box, const SDL_MouseButtonEvent& event) {
    if (event.button != SDL_BUTTON_LEFT) {
        return;
    }
    const int button = ButtonAt(*box, event.x, event.y);
    if (event.type == SDL_MOUSEBUTTONDOWN) {
        box->pressed = button;
        box->chosen = button != kNobody ? button : box->chosen;
    } else if (button != kNobody && button == box->pressed) {
        box->answer = button;
    }
}

void OnClose(Box* box) {
    box->answer = box->buttons.count - 1;
    if (box->window == sdl2.window) {
        PostWindowDestroy(); // it is the production's window that was closed
    }
}

void Handle(Box* box, const SDL_Event& event) {
    switch (event.type) {
    case SDL_QUIT: // also sent when the last window is asked to close
        OnClose(box);
        break;
    case SDL_KEYDOWN:
        OnKeyDown(box, event.key.keysym.sym);
        break;
    case SDL_KEYUP:
        OnKeyUp(box, event.key.keysym.sym);
        break;
    case SDL_MOUSEMOTION: {
        const int under = ButtonAt(*box, event.motion.x, event.motion.y);
        box->chosen = under != kNobody ? under : box->chosen;
        break;
    }
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        OnMouseButton(box, event.button);
        break;
    default:
        break;
    }
}

// Draws and listens until there is an answer or the program is asked to end.
void RunBox(Box* box) {
    while (box->answer == kNobody && !EndRequested()) {
        Draw(box);
        SDL_Event event;
        if (sdl.WaitEventTimeout(&event, kPatience) == 0) {
            continue;
        }
        do {
            Handle(box, event);
        } while (box->answer == kNobody && sdl.PollEvent(&event) != 0);
    }
}

// Finds or makes the window of the box. False when it cannot be shown.
bool OpenBox(Box* box) {
    SDL_DisplayMode mode{};
    sdl.GetDesktopDisplayMode(0, &mode);
    box->maxScale = std::max(mode.h / kPointsOfDesktop, kMinScale);
    if (sdl2.window != nullptr && sdl2.renderer != nullptr) {
        box->window = sdl2.window;
        box->renderer = sdl2.renderer;
        return true;
    }
    const int room = std::min(mode.w / box->width, mode.h / box->height);
    const int scale = std::max(std::min(box->maxScale, room), 1);
    box->window = sdl.CreateWindow(kWindowTitle, static_cast<int>(SDL_WINDOWPOS_CENTERED),
                                   static_cast<int>(SDL_WINDOWPOS_CENTERED), box->width * scale,
                                   box->height * scale,
                                   WindowFlags() | SDL_WINDOW_ALLOW_HIGHDPI | SDL_WINDOW_HIDDEN);
    if (box->window == nullptr) {
        return false;
    }
    SetWindowIcon(box->window);
    box->renderer = MakeRenderer(box->window);
    sdl.ShowWindow(box->window);
    return box->renderer != nullptr;
}

// A box in a window of its own takes the video with it: what a display server still has to say of a
// window that is gone has nobody to hear it then (a decorated window of Wayland crashes of that).
void CloseBox(Box* box) {
    if (box->window == sdl2.window) {
        return;
    }
    if (box->renderer != nullptr) {
        sdl.DestroyRenderer(box->renderer);
    }
    if (box->window != nullptr) {
        sdl.DestroyWindow(box->window);
    }
    CloseVideo();
}

// What is left of the keys and clicks of the box is not the production's; a press of Escape from
// before the box is.
void ShowBox(Box* box) {
    if (EscapePressedAnywhere()) {
        sdl2.escapePressed = 1;
    }
    sdl.ShowCursor(SDL_ENABLE);
    RunBox(box);
    sdl.ShowCursor(sdl2.cursorCount >= 0 ? SDL_ENABLE : SDL_DISABLE);
    sdl.FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);
    (void)EscapePressedAnywhere();
}

} // namespace

MessageAnswer ShowMessage(const char* text, MessageKind kind) {
    const bool question = kind == MessageKind::YesNo;
    const MessageAnswer closed = question ? MessageAnswer::No : MessageAnswer::Ok;
    const ScopedFloatMode usual(FloatMode::Nearest);
    InstallRescue();
    if (!OpenVideo()) {
        // A question is not asked: why is told already. Tell the rest.
        if (!question) {
            std::fprintf(stderr, "%s\n", text);
        }
        return closed;
    }
    Box box{};
    box.lines = BreakLines(text);
    box.buttons = question ? kYesNo : kOk;
    box.pressed = kNobody;
    box.answer = kNobody;
    Measure(&box);
    if (OpenBox(&box)) {
        ShowBox(&box);
    } else if (question) {
        Say("the question \"%s\" can not be shown (%s); the answer is No", text, sdl.GetError());
    } else {
        std::fprintf(stderr, "%s\n", text);
    }
    CloseBox(&box);
    return question && box.answer == 0 ? MessageAnswer::Yes : closed;
}

} // namespace ombrel
