// The processor that plays, by its own name.
#pragma once

#include <string>

namespace capture {

// "unknown processor" where it does not tell.
std::string ProcessorName();

} // namespace capture
