// The conversion library: between bitmaps and pixel buffers.
#pragma once

#include <windows.h>

#include "host/buffer.h"

/// A new 24-bit buffer with the bitmap's pixels, top row first; the caller frees it. `nReserved` is 0 at
/// every call. Answers 1, or 0, with `*phBuf` 0, for a bad bitmap or when memory is out.
int cvt32DDBToBuf(HBITMAP hBitmap, HBUF32* phBuf, int nReserved);
