// Merging a picture into the page's base image.
#pragma once

#include "host/tool.h"

namespace base_image {
int MergeIntoBaseImage(CTool& tool, HBUF32 hImage, HBUF32 hMask, int nPercent, int nRedraw,
                       std::int32_t* pError);
} // namespace base_image
