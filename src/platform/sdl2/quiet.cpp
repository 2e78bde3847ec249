// Standard error is another file for a while.
#include "platform/sdl2/quiet.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace ombrel {

QuietErrors::QuietErrors() : saved_(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0)) {
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (saved_ < 0 || nowhere < 0 || dup2(nowhere, STDERR_FILENO) < 0) {
        if (saved_ >= 0) {
            close(saved_);
        }
        saved_ = -1;
    }
    if (nowhere >= 0) {
        close(nowhere);
    }
}

QuietErrors::~QuietErrors() {
    if (saved_ >= 0) {
        std::fflush(stderr);
        dup2(saved_, STDERR_FILENO);
        close(saved_);
    }
}

} // namespace ombrel
