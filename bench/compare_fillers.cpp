// Rows of --compare: the triangle fillers.
#include "compare.h"

namespace ombrel {

std::vector<CompareRow> FillerRows() {
    return {};
}

} // namespace ombrel
