#pragma once

// Rectangle arithmetic. A null pointer makes a call answer FALSE and change nothing; a null rectangle counts
// as empty.

#include "win32/types.h"

BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom);
BOOL SetRectEmpty(LPRECT rect);
BOOL CopyRect(LPRECT to, LPCRECT from);
/// Moves left and top outward by (dx, dy), right and bottom likewise; negative amounts shrink.
BOOL InflateRect(LPRECT rect, int dx, int dy);
BOOL OffsetRect(LPRECT rect, int dx, int dy);
/// FALSE, and an all-zero result, when the two have no area in common.
BOOL IntersectRect(LPRECT result, LPCRECT a, LPCRECT b);
/// The bounding rectangle; an empty operand does not count. FALSE, and an all-zero result, when both are
/// empty.
BOOL UnionRect(LPRECT result, LPCRECT a, LPCRECT b);
/// Left and top edges count as inside, right and bottom do not.
BOOL PtInRect(LPCRECT rect, POINT point);
BOOL EqualRect(LPCRECT a, LPCRECT b);
/// TRUE when the width or the height is not positive.
BOOL IsRectEmpty(LPCRECT rect);
