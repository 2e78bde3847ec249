// What a fuzz target needs as a module of WebAssembly: memory for an input, and the data files
// beside it. tests/web/core/fuzz.mjs replays the inputs.
#include <cstdint>
#include <cstdlib>

#include "base/memory_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" {

__attribute__((export_name("ombrel_allocate"))) void* Allocate(std::size_t size) {
    return std::malloc(size > 0 ? size : 1);
}
__attribute__((export_name("ombrel_free"))) void Free(void* memory) {
    std::free(memory);
}
__attribute__((export_name("ombrel_add_file"))) void AddFile(const char* name, std::uint8_t* bytes,
                                                             std::size_t size) {
    ombrel::AddMemoryFile(name, bytes, size);
}
__attribute__((export_name("run_input"))) void RunInput(const std::uint8_t* data,
                                                        std::size_t size) {
    (void)LLVMFuzzerTestOneInput(data, size);
}
}
