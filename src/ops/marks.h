// The selection marks in the view's display cache.
#pragma once

#include "host/tool.h"

/// Flushes four strips of that width along the inside of the rectangle (client pixels). 1, or 0 without a
/// view.
int InvalidateStrips(CTool& tool, const CRect& rc, int nWidth);

/// The operations of the tools' tables.
namespace marks {
int ShowSelectionMarks(CTool& tool, int nShow);
int DrawMarkRect(CTool& tool, CDC* pDC, const CPoint* pOrigin, CImgNode* pNode);
int InvalidateMarkRect(CTool& tool, CImgNode* pNode);
int ShowNodeFrame(CTool& tool, CImgNode* pNode, int nShow);
int FlushViewRect(CTool& tool, const RECT* pRect);
int RedrawRect(CTool& tool, const RECT* pRect);
int FlushSelectionArea(CTool& tool);
int RedrawSelectionArea(CTool& tool);
} // namespace marks
