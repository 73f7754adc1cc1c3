#pragma once

#include "platform/surface.h"

namespace win32 {

/// Tells the presenter of changed pixels; `dirty` in client pixels of the top-level window.
void PresentSurface(HWND top, const RECT& dirty);

} // namespace win32
