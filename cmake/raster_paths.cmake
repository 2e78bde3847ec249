# The fillers and the blur over wide vectors: one file a lane set, each with its own flags.
# Those of other architectures are not compiled.
set(x86_paths ${CMAKE_SOURCE_DIR}/src/raster/path_sse41.cpp ${CMAKE_SOURCE_DIR}/src/raster/path_avx2.cpp
              ${CMAKE_SOURCE_DIR}/src/raster/path_avx512.cpp)
set(neon_path ${CMAKE_SOURCE_DIR}/src/raster/path_neon.cpp)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
  target_compile_definitions(ombrel_raster PRIVATE OMBREL_NEON_LANES)
else()
  set_source_files_properties(${neon_path} PROPERTIES HEADER_FILE_ONLY ON)
endif()
set(wasm_path ${CMAKE_SOURCE_DIR}/src/raster/path_wasm.cpp)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL wasm32)
  target_compile_definitions(ombrel_raster PRIVATE OMBREL_WASM_LANES)
else()
  set_source_files_properties(${wasm_path} PROPERTIES HEADER_FILE_ONLY ON)
endif()
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|amd64|AMD64|i[3-6]86)$")
  set_source_files_properties(${x86_paths} PROPERTIES HEADER_FILE_ONLY ON)
  return()
endif()
target_compile_definitions(ombrel_raster PRIVATE OMBREL_X86_LANES)

# Vectors never cross a boundary between files, so what other compilers think of passing them does
# not matter. On 64-bit Windows the compiler takes the stack to be aligned for wide vectors, and it is
# not: the assembler then writes every move of a vector as one that may be unaligned
# (tools/check_moves.py looks whether it did).
set(lane_flags -Wno-psabi)
if(WIN32)
  list(APPEND lane_flags -Wa,-muse-unaligned-vector-move)
endif()
# Sanitizers look for bad addresses only: their arithmetic wraps by rule, and three times the compile
# time would buy nothing. The widest ones are only made to link.
set(lane_sanitize)
set(wide_sanitize)
if(OMBREL_SANITIZE)
  set(lane_sanitize -fno-sanitize=undefined)
  set(wide_sanitize -fno-sanitize=all -O0)
endif()
function(ombrel_lanes name)
  set_source_files_properties(${CMAKE_SOURCE_DIR}/src/raster/path_${name}.cpp
                              PROPERTIES COMPILE_OPTIONS "${lane_flags};${ARGN}")
endfunction()
ombrel_lanes(sse41 -msse4.1 ${lane_sanitize})
ombrel_lanes(avx2 -mavx2 ${lane_sanitize})
# (g++ 12's own header makes its undefined vectors out of uninitialized ones.)
set(wide_flags -mavx512f -mavx512bw -mavx512dq -mavx512vl)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  list(APPEND wide_flags -Wno-uninitialized -Wno-maybe-uninitialized)
endif()
ombrel_lanes(avx512 ${wide_flags} ${wide_sanitize})
