// The geometry of a resize by a handle, in client pixels and without a window.
#pragma once

#include <afxwin.h>

#include "ops/handles.h"

inline constexpr double LeastResizedSide = 16.0; ///< client pixels

/// The pointer, kept away from the side of the view that faces the edges which the handle moves.
CPoint ClampedPointer(CPoint point, int nHandle, const CRect& rcView);
/// The corner points that a drag of the handle to the pointer gives a node of that rectangle. An edge handle
/// changes one side; a corner handle keeps the proportions, the opposite corner staying where it is. No side
/// gets shorter than LeastResizedSide.
Corners ResizedCorners(const CRect& rcNode, CPoint point, int nHandle);
