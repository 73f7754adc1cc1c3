// The node services that every tool offers the host.
#pragma once

#include "host/tool.h"

namespace services {
int DuplicateNode(CTool& tool, CImgNode* pNode, CImgNode** ppCopy, int nAdd, std::int32_t* pError);
int IsPointOnSelection(CTool& tool, const CPoint* pPoint, std::int32_t* pnAnswer, std::int32_t* pError);
int CreateNodeShadow(CTool& tool, CImgNode* pNode, int nOffsetX, int nOffsetY, const COLORREF* pcrColor,
                     int nSoftness, int nTransparency, std::int32_t* pError);
} // namespace services
