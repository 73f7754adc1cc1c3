// What shows the shadow of a selected object: its outline, a connector, and the round handle that drags it.
#pragma once

#include "host/tool.h"
#include "ops/handles.h"

/// The shadow's corner points, client pixels. For an object with a shadow.
Corners ShadowCorners(CTool& tool, const CImgNode& object);
/// The handle's square: 12 client pixels a side, its centre 18 pixels right of the middle of the shadow's
/// right edge.
CRect ShadowHandle(const Corners& corners);
/// The whole mark: the corners' bounds with what the handle needs on the right.
CRect ShadowMarkRect(const Corners& corners);
/// Whether the point (client pixels) is on the shadow's handle; never for an object without a shadow.
bool IsOnShadowHandle(CTool& tool, const CImgNode& object, CPoint point);
/// Whether it is on the shadow or on its handle.
bool IsOnShadowMark(CTool& tool, const CImgNode& object, CPoint point);
/// Draws the mark into a picture that starts at the origin.
void DrawShadowMark(CDC& dc, CPoint ptOrigin, const Corners& corners);
