#include "ops/objects/visibility.h"

namespace {

constexpr int Margin = 8; ///< client pixels

} // namespace

// The margin is the place of a client point, so that it moves with the scroll as the view's far edge does.
CVisibleSpan::CVisibleSpan(const CCanvas& canvas, Axis axis) {
    const CPoint ptMargin =
        canvas.ToDocument(axis == Axis::Horizontal ? CPoint(Margin, 0) : CPoint(0, Margin));
    m_nMargin = axis == Axis::Horizontal ? ptMargin.x : ptMargin.y;
    m_nViewFar = FarEdge(canvas.ToDocument(canvas.ClientRect()), axis);
}
