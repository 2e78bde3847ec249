// The icon of the program, the same file that the Windows program carries.
#pragma once

#include <cstddef>

namespace ombrel {

// The bytes of larkfen.ico: a directory of uncompressed pictures. Defined in a source file that the
// build writes (cmake/icon.cmake).
extern const unsigned char kIconFile[];
extern const std::size_t kIconFileSize;

} // namespace ombrel
