// Pixels at another size.
#pragma once

#include "buffer/buffer_host.h"

/// A 24-bit image and an 8-bit mask; either may be without pixels.
struct PixelPair {
    buffer_host::View image;
    buffer_host::View mask;
};

/// Resamples over every source pixel into `to`, whose parts are those of `from`; colours count by their mask,
/// so that those of transparent pixels do not bleed (a mask of another size is scaled on its own). False when
/// memory is out.
bool ScalePixels(const PixelPair& from, const PixelPair& to);
