// The page alone, without window or marks.
#pragma once

#include "host/img_doc.h"
#include "platform/pixels.h"

struct RenderedPage {
    platform::PixelArray pixels; ///< 0x00RRGGBB, rows directly behind each other
    int width = 0;
    int height = 0;
};

/// Composes the whole page at a scale: page size times `dScale`, truncated, is the size in pixels. False for
/// a scale that gives a side below 1 or above 32,767, or when memory or the room for pixels is out.
bool RenderPage(const CImgDoc& doc, double dScale, RenderedPage& page);
