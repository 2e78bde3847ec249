// Everything that is loaded and made once, and what is put back at the end.
#pragma once

namespace ombrel {

int StartUp();   // returns 1
void ShutDown(); // display, screen saver, desktop depth (windowed), sound (unless switched off)

} // namespace ombrel
