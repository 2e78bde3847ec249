// By the C library's strtof, where the standard library has no from_chars for floats and the C
// library no locale but its own: WebAssembly. It is correctly rounded.
#include <cstdlib>
#include <string>

#include "base/nearest_float.h"

namespace ombrel {

float NearestFloat(const char* first, const char* last) {
    const std::string number(first, last); // closed by a zero
    return std::strtof(number.c_str(), nullptr);
}

} // namespace ombrel
