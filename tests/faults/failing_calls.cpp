// The stand-ins. Names with two underscores in front are the linker's (--wrap).
#include "failing_calls.h"

#include <bits/functexcept.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace ombrel {

constinit FailingCalls failing{};

void StartFailing() {
    failing.blockCalls = failing.smallCalls = failing.openCalls = failing.readCalls =
        failing.seekCalls = 0;
    failing.failed = 0;
    failing.active = true;
}
void StopFailing() {
    failing.active = false;
}

namespace {

// Counts a call; whether it fails.
bool Fails(const FailureRule& rule, std::int64_t* calls) {
    if (!failing.active) {
        return false;
    }
    const std::int64_t call = (*calls)++;
    const bool fails =
        call >= rule.first && call <= rule.last && (call - rule.first) % rule.every == 0;
    failing.failed += fails ? 1 : 0;
    return fails;
}

// The file that breaks off, while it is open, and its reads so far.
constinit std::FILE* brokenFile = nullptr;
constinit std::int64_t brokenCalls = 0;

bool ReadFails(const std::FILE* file) {
    const bool ofBroken = file == brokenFile && Fails(failing.brokenReads, &brokenCalls);
    const bool fails = Fails(failing.reads, &failing.readCalls) || ofBroken;
    if (fails) {
        errno = EIO;
    }
    return fails;
}

bool EndsIn(const char* path, const char* end) {
    const std::size_t length = std::strlen(path);
    const std::size_t endLength = std::strlen(end);
    return length >= endLength && std::strcmp(path + length - endLength, end) == 0;
}

} // namespace

} // namespace ombrel

extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* memory, std::size_t size);
std::FILE* __real_fopen(const char* path, const char* mode);
std::size_t __real_fread(void* to, std::size_t size, std::size_t count, std::FILE* file);
char* __real_fgets(char* to, int size, std::FILE* file);
int __real_fseek(std::FILE* file, long offset, int whence);
long __real_ftell(std::FILE* file);

void* __wrap_malloc(std::size_t size) {
    using ombrel::failing;
    return ombrel::Fails(failing.blocks, &failing.blockCalls) ? nullptr : __real_malloc(size);
}
void* __wrap_calloc(std::size_t count, std::size_t size) {
    using ombrel::failing;
    return ombrel::Fails(failing.blocks, &failing.blockCalls) ? nullptr
                                                              : __real_calloc(count, size);
}
void* __wrap_realloc(void* memory, std::size_t size) {
    using ombrel::failing;
    return ombrel::Fails(failing.blocks, &failing.blockCalls) ? nullptr
                                                              : __real_realloc(memory, size);
}
std::FILE* __wrap_fopen(const char* path, const char* mode) {
    using ombrel::failing;
    if (failing.active && failing.onOpen != nullptr) {
        failing.onOpen(failing.openCalls);
    }
    const bool fails = ombrel::Fails(failing.opens, &failing.openCalls);
    if (fails || (failing.active && failing.unreadable != nullptr &&
                  ombrel::EndsIn(path, failing.unreadable))) {
        failing.failed += fails ? 0 : 1;
        errno = EACCES;
        return nullptr;
    }
    std::FILE* const file = __real_fopen(path, mode);
    // (A record of the library may have been that of the broken file before.)
    if (file != nullptr && failing.broken != nullptr && ombrel::EndsIn(path, failing.broken)) {
        ombrel::brokenFile = file;
        ombrel::brokenCalls = 0;
    } else if (file == ombrel::brokenFile) {
        ombrel::brokenFile = nullptr;
    }
    return file;
}
std::size_t __wrap_fread(void* to, std::size_t size, std::size_t count, std::FILE* file) {
    return ombrel::ReadFails(file) ? 0 : __real_fread(to, size, count, file);
}
char* __wrap_fgets(char* to, int size, std::FILE* file) {
    return ombrel::ReadFails(file) ? nullptr : __real_fgets(to, size, file);
}
int __wrap_fseek(std::FILE* file, long offset, int whence) {
    using ombrel::failing;
    return ombrel::Fails(failing.seeks, &failing.seekCalls) ? -1
                                                            : __real_fseek(file, offset, whence);
}
long __wrap_ftell(std::FILE* file) {
    using ombrel::failing;
    return ombrel::Fails(failing.seeks, &failing.seekCalls) ? -1 : __real_ftell(file);
}

} // extern "C"

// As the standard has it: without memory the handler is asked, and then it is tried again.
void* operator new(std::size_t size) {
    using ombrel::failing;
    while (true) {
        void* const memory = ombrel::Fails(failing.small, &failing.smallCalls)
                                 ? nullptr
                                 : __real_malloc(size != 0 ? size : 1);
        if (memory != nullptr) {
            return memory;
        }
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr) {
            std::__throw_bad_alloc();
        }
        handler();
    }
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    using ombrel::failing;
    return ombrel::Fails(failing.small, &failing.smallCalls) ? nullptr
                                                             : __real_malloc(size != 0 ? size : 1);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
