# The vector twins of the fillers and of the blur: one file an instruction set, each with its own flags.
set(simd ${CMAKE_SOURCE_DIR}/src/raster/simd)
target_sources(ombrel_raster PRIVATE ${simd}/paths.cpp ${simd}/blur.cpp)
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|amd64|AMD64|i[3-6]86)$")
  return()
endif()
target_compile_definitions(ombrel_raster PRIVATE OMBREL_X86_TWINS)

# Vectors never cross a boundary between files, so what other compilers think of passing them does
# not matter. On 64-bit Windows the compiler takes the stack to be aligned for wide vectors, and it is
# not: the assembler then writes every move of a vector as one that may be unaligned.
set(twin_flags -Wno-psabi)
if(WIN32)
  list(APPEND twin_flags -Wa,-muse-unaligned-vector-move)
endif()
# Sanitizers look for bad addresses only: their arithmetic wraps by rule, and three times the compile
# time would buy nothing. The widest ones, which no machine of ours runs, are only made to link.
set(twin_sanitize)
set(wide_sanitize)
if(OMBREL_SANITIZE)
  set(twin_sanitize -fno-sanitize=undefined)
  set(wide_sanitize -fno-sanitize=all -O0)
endif()
function(ombrel_twins name)
  set(source ${CMAKE_SOURCE_DIR}/src/raster/simd/twins_${name}.cpp)
  target_sources(ombrel_raster PRIVATE ${source})
  set_source_files_properties(${source} PROPERTIES COMPILE_OPTIONS "${twin_flags};${ARGN}")
endfunction()
ombrel_twins(sse41 -msse4.1 ${twin_sanitize})
ombrel_twins(avx2 -mavx2 ${twin_sanitize})
# (g++ 12's own header makes its undefined vectors out of uninitialized ones.)
set(wide_flags -mavx512f -mavx512bw -mavx512dq -mavx512vl)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  list(APPEND wide_flags -Wno-uninitialized -Wno-maybe-uninitialized)
endif()
ombrel_twins(avx512 ${wide_flags} ${wide_sanitize})

# The blur's.
target_sources(ombrel_raster PRIVATE ${simd}/blur_sse41.cpp ${simd}/blur_avx2.cpp)
set_source_files_properties(${simd}/blur_sse41.cpp PROPERTIES COMPILE_OPTIONS "${twin_flags}")
set_source_files_properties(${simd}/blur_avx2.cpp PROPERTIES COMPILE_OPTIONS "${twin_flags};-mavx2")
