// Giving one object the look of another.
#pragma once

#include "host/tool.h"

namespace look {
int CopyNodeLook(CTool& tool, CImgNode* pSource, CImgNode* pTarget);
} // namespace look
