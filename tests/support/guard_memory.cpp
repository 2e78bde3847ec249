// One anonymous mapping: page without access, whole pages of memory, page without access.
#include "guard_memory.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <sys/mman.h>
#include <unistd.h>

namespace ombrel {

namespace {
constexpr unsigned char kMark = 0xA7;

bool AllMarks(const unsigned char* begin, const unsigned char* end) {
    for (const unsigned char* byte = begin; byte != end; ++byte) {
        if (*byte != kMark) {
            return false;
        }
    }
    return true;
}

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "guard memory: %s failed\n", what);
    std::abort();
}
} // namespace

GuardMemory MakeGuardMemory(std::size_t size, GuardSide side) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t inner = (size + page - 1) / page * page;
    GuardMemory memory = {nullptr, size, nullptr, inner + 2 * page};
    void* map =
        mmap(nullptr, memory.mapSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (map == MAP_FAILED) {
        Fail("mmap");
    }
    memory.map = static_cast<unsigned char*>(map);
    if (mprotect(memory.map, page, PROT_NONE) != 0 ||
        mprotect(memory.map + page + inner, page, PROT_NONE) != 0) {
        Fail("mprotect");
    }
    std::memset(memory.map + page, kMark, inner);
    memory.bytes = memory.map + page + (side == GuardSide::After ? inner - size : 0);
    std::memset(memory.bytes, 0, size);
    return memory;
}

bool GuardIntact(const GuardMemory& memory) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return AllMarks(memory.map + page, memory.bytes) &&
           AllMarks(memory.bytes + memory.size, memory.map + memory.mapSize - page);
}

void FreeGuardMemory(GuardMemory* memory) {
    if (memory->map != nullptr) {
        munmap(memory->map, memory->mapSize);
    }
    *memory = {};
}

} // namespace ombrel
