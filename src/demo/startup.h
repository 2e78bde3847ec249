// Everything that is loaded and made once, and what is put back at the end.
#pragma once

#include <cstdint>

#include "math/vec3.h"

namespace ombrel {

// Set by StartUp. No step of a frame reads the first two.
struct StartUpState {
    Vec3 marker;                   // (20, 20, 20, 1)
    Single cameraStart;            // (180 - field of view) * 0.3 / 90
    std::int32_t cursorX, cursorY; // where the cursor is after it was parked, pixels
};
extern StartUpState startUp;
void ResetStartUp();

// Display, random numbers, tables, camera, lights, depth buffer, float mode, objects, scene list,
// fonts, cursor, sound, start tick, in this order. Whatever cannot be had is left empty. Returns 1.
int StartUp();
void ShutDown(); // display, screen saver, desktop depth (windowed), sound (unless switched off)

// Cells of 16 or 32 bits (formatBit 16 or 32), cleared; null for any other format bit, for a size
// below 1 and without memory. Freed with free().
void* AllocateDepthBuffer(std::int32_t width, std::int32_t height, std::uint32_t formatBit);

} // namespace ombrel
