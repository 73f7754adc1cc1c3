// Resizing objects with their companions. Rectangles are document units.
#pragma once

#include <optional>

#include "host/text_node.h"
#include "host/tool.h"

/// Resizes the object to the rectangle together with its frame, and rebuilds its shadow. 1 (also for null),
/// or 0 for a shadow or frame node and for a text that cannot be rebuilt.
int ResizeObject(CTool& tool, CImgNode* pNode, const CRect& rcTarget);

/// The font size in pixels nearest to the text's scaled one that the text page lets pass; none without that
/// page.
std::optional<int> ScaledTextSize(CTool& tool, const CTextNode& text, double dScale);
/// The quotient of two lengths; what has no extent has no scale.
inline double ScaleOf(int nNew, int nOld) { return nOld != 0 ? static_cast<double>(nNew) / nOld : 1.0; }
