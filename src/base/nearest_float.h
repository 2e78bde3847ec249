// The exact conversion behind ParseFloat. A build links one of nearest_float_chars.cpp and
// nearest_float_libc.cpp.
#pragma once

namespace ombrel {

// The single nearest to the decimal number that fills first..last: digits, one of them at least, a
// point among them or none, an exponent or none; no sign before it. Ties to even; too large:
// infinity. Called in the mode to nearest.
float NearestFloat(const char* first, const char* last);

} // namespace ombrel
