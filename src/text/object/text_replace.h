// Rebuilding text objects in their places on the page.
#pragma once

#include "host/text_node.h"
#include "host/tool.h"

/// Rebuilds the text object at a font size in pixels, with its look, and puts the top-left of its bounds with
/// frame at the point (document units; null leaves it round its middle). 1, also when it has that size
/// already; 0 for null, for another object and when it cannot be rebuilt; then it stays as it is.
int RebuildTextAtSize(CTool& tool, CImgNode* pNode, int nPixelSize, const CPoint* pptCorner);

/// The operations of the tools' tables.
namespace text_objects {
int ReplaceTextNode(CTool& tool, CTextNode* pOld, CTextNode* pRebuilt, int nRedraw);
int RebuildTextNodeInPlace(CTool& tool, CTextNode* pOld, CTextNode* pRebuilt, int nRedraw);
CTextNode* RecolorTextNode(CTool& tool, CTextNode* pNode, COLORREF crColor);
} // namespace text_objects
