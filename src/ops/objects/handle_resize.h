// What the drag of a handle makes of an object. Rectangles are document units.
#pragma once

#include "host/tool.h"

/// A new text object for the rectangle that a drag of the handle gave, owned by the caller; null for anything
/// but a text object, without a text page, and when it cannot be made.
CTextNode* ResizedText(CTool& tool, CImgNode* pNode, const RECT* pRect, int nHandle);
/// The object takes the resized text's place; its frame grows with it.
void PlaceResizedText(CTool& tool, CTextNode& text, CTextNode& resized);
