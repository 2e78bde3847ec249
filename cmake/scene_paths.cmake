# The vector kernels of the front end: one file an instruction set, each with its own flags. Integer
# sums of light wrap, as those of the plain code do.
set(kernels ${CMAKE_SOURCE_DIR}/src/scene/simd)
set(kernel_flags -Wno-psabi -fwrapv)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
  target_sources(ombrel_scene PRIVATE ${kernels}/kernels_neon.cpp)
  target_compile_definitions(ombrel_scene PRIVATE OMBREL_NEON_KERNELS)
  set_source_files_properties(${kernels}/kernels_neon.cpp PROPERTIES COMPILE_OPTIONS
                                                                     "${kernel_flags}")
endif()
if(CMAKE_SYSTEM_PROCESSOR STREQUAL wasm32)
  target_sources(ombrel_scene PRIVATE ${kernels}/kernels_wasm.cpp)
  target_compile_definitions(ombrel_scene PRIVATE OMBREL_WASM_KERNELS)
  # A call costs more there than the formula behind it, vectors being passed through memory.
  set_source_files_properties(${kernels}/kernels_wasm.cpp PROPERTIES COMPILE_OPTIONS
                              "${kernel_flags};-mllvm;-inline-threshold=5000")
  set_source_files_properties(${CMAKE_SOURCE_DIR}/src/scene/fused.cpp PROPERTIES COMPILE_OPTIONS
                              "-mllvm;-inline-threshold=2000")
endif()
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|amd64|AMD64|i[3-6]86)$")
  return()
endif()
target_sources(ombrel_scene PRIVATE ${kernels}/kernels_sse41.cpp ${kernels}/kernels_avx2.cpp)
target_compile_definitions(ombrel_scene PRIVATE OMBREL_X86_KERNELS)
if(WIN32)
  # The stack is not aligned for wide vectors there (raster_paths.cmake says more).
  list(APPEND kernel_flags -Wa,-muse-unaligned-vector-move)
endif()
set_source_files_properties(${kernels}/kernels_sse41.cpp
                            PROPERTIES COMPILE_OPTIONS "${kernel_flags};-msse4.1")
set_source_files_properties(${kernels}/kernels_avx2.cpp
                            PROPERTIES COMPILE_OPTIONS "${kernel_flags};-mavx2")
