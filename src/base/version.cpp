// The version comes from the build.
#include "base/version.h"

namespace ombrel {

const char kVersion[] = OMBREL_VERSION;

} // namespace ombrel
