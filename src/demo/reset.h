// The whole program as it was when the process started.
#pragma once

namespace ombrel {

// Frees what was made and puts every process-wide variable outside the back ends at its initial
// value; the floating-point mode too. A test or tool resets the back end afterwards.
void ResetWorld();

} // namespace ombrel
