# Compiler flags of our own code, as one interface library.
# The float flags keep every single-precision operation as written: the processor's rounding mode is
# changed at run time, products and sums are never fused, and square roots do not set errno.
add_library(ombrel_flags INTERFACE)
target_compile_options(ombrel_flags INTERFACE
  -Wall -Wextra -Wconversion -Werror
  -frounding-math -ffp-contract=off -fno-math-errno
  -fno-exceptions)
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  # Clang says of some processors that it only keeps the strict model in part; x86 and ARM64 are whole.
  target_compile_options(ombrel_flags INTERFACE -Wno-unsupported-floating-point-opt)
endif()
if(OMBREL_SANITIZE)
  add_compile_options(-fsanitize=${OMBREL_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${OMBREL_SANITIZE})
endif()
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_options(ombrel_flags INTERFACE -msse2 -mfpmath=sse)
endif()
if(CMAKE_SYSTEM_PROCESSOR STREQUAL wasm32)
  # Comparisons of singles are functions there (base/cut_single.h).
  target_compile_options(ombrel_flags INTERFACE -Wno-bitwise-instead-of-logical)
endif()
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
  target_compile_options(ombrel_flags INTERFACE -fsigned-char) # as it is on x86
endif()
# The same sources give the same bytes, wherever the checkout stands.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
