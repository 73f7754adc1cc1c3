#include "ops/objects/visibility.h"

#include "ops/view_margin.h"

// The margin is the place of a client point, so that it moves with the scroll as the view's far edge does.
CVisibleSpan::CVisibleSpan(const CCanvas& canvas, Axis axis) {
    const CPoint ptMargin =
        canvas.ToDocument(axis == Axis::Horizontal ? CPoint(ViewMargin, 0) : CPoint(0, ViewMargin));
    m_nMargin = axis == Axis::Horizontal ? ptMargin.x : ptMargin.y;
    m_nViewFar = FarEdge(canvas.ToDocument(canvas.ClientRect()), axis);
}
