# WebAssembly with 128-bit vectors from Linux, with clang and the C and C++ libraries of Debian
# (wasi-libc, libc++-14-dev-wasm32, libclang-rt-14-dev-wasm32, lld-14).
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_CXX_COMPILER clang++-14)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_FLAGS_INIT "-msimd128 -mnontrapping-fptoint -mbulk-memory -msign-ext")
# A library of functions without a main program. The last -O says when linking that no optimiser is
# to work on the finished module: this clang would call any wasm-opt that it finds, and without the
# features that were compiled for, so that the build would end on machines that happen to have one.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-mexec-model=reactor -O0")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
