// Copies of objects with their companions.
#pragma once

#include "host/tool.h"

/// A copy of the object with copies of its companions, put at the front of the page when `nAdd` is 1, else
/// owned by the document off the page. Null on failure.
CImgNode* DuplicateObject(CTool& tool, CImgNode* pNode, int nAdd);
