// The ways out that are not the end of the loop: a crash puts the desktop back and then dies as it
// would have; a request to end from outside becomes the destroy message.
#include <signal.h>
#include <sys/time.h>

#include <cstdint>

#include "platform/sdl2/sdl2_state.h"

namespace ombrel {

namespace {

constexpr int kCrashes[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGSYS};
constexpr int kRequests[] = {SIGINT, SIGTERM, SIGHUP};
constexpr int kMicrosecondsToRescue = 500000;
constexpr std::size_t kStackSize = 1 << 16;

struct CrashHandler {
    int signal;
    struct sigaction before;
};
constinit CrashHandler handlers[sizeof kCrashes / sizeof kCrashes[0]]{};
constinit bool installed = false;
constinit volatile sig_atomic_t endRequested = 0;
constinit volatile sig_atomic_t crashedWith = 0;
alignas(16) constinit unsigned char rescueStack[kStackSize]{};

// The rescue hangs: die of the crash all the same. What the window system holds for a client it
// takes back from a dead one.
void OnLate(int) {
    sigset_t crash;
    sigemptyset(&crash);
    sigaddset(&crash, crashedWith);
    sigprocmask(SIG_UNBLOCK, &crash, nullptr);
    raise(crashedWith);
}

void OnCrash(int signal) {
    crashedWith = signal;
    for (const CrashHandler& handler : handlers) {
        sigaction(handler.signal, &handler.before, nullptr);
    }
    // Whoever crashed may hold a lock that is needed here: allow for a limited time.
    struct sigaction late {};
    late.sa_handler = OnLate;
    late.sa_flags = SA_ONSTACK;
    sigaction(SIGALRM, &late, nullptr);
    const itimerval limit{{0, 0}, {0, kMicrosecondsToRescue}};
    setitimer(ITIMER_REAL, &limit, nullptr);
    sdl.ShowCursor(SDL_ENABLE);
    sdl.EnableScreenSaver();
    sdl.VideoQuit(); // full screen and grabs end with the window
    const itimerval none{};
    setitimer(ITIMER_REAL, &none, nullptr);
    raise(signal); // waits until this handler returns, then does what it would have done
}

void OnRequest(int signal) {
    if (endRequested != 0) {
        ::signal(signal, SIG_DFL);
        raise(signal);
    }
    endRequested = 1;
}

} // namespace

void InstallRescue() {
    if (installed) {
        return;
    }
    installed = true;
    // A stack of its own, for the crash that ran out of one.
    stack_t stack{};
    stack.ss_sp = rescueStack;
    stack.ss_size = kStackSize;
    sigaltstack(&stack, nullptr);

    struct sigaction action {};
    action.sa_handler = OnCrash;
    action.sa_flags = SA_ONSTACK;
    for (std::size_t i = 0; i < sizeof kCrashes / sizeof kCrashes[0]; ++i) {
        handlers[i].signal = kCrashes[i];
        sigaction(kCrashes[i], &action, &handlers[i].before);
    }
    action.sa_handler = OnRequest;
    action.sa_flags = SA_RESTART;
    for (const int signal : kRequests) {
        sigaction(signal, &action, nullptr);
    }
}

bool EndRequested() {
    return endRequested != 0;
}

} // namespace ombrel
