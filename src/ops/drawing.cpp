#include "ops/drawing.h"

namespace {

constexpr COLORREF OutlineColor = RGB(255, 255, 255);
constexpr COLORREF HandleColor = RGB(255, 255, 0);
constexpr COLORREF ShapeFrameColor = RGB(0, 0, 0);
constexpr COLORREF GapColor = RGB(0, 0, 0);

void DrawHandles(CDC& dc, const Corners& corners) {
    const CFilledShapeScope shape(dc, HandleColor);
    if (!shape) {
        return;
    }
    for (const int nHandle : HandleOrder) {
        const CRect rc = HandleSquare(corners, nHandle);
        dc.Rectangle(rc.left, rc.top, rc.right, rc.bottom);
    }
}

} // namespace

CCachePicture::CCachePicture(const CCanvas& canvas, CRect rcClient) : m_view(canvas.View()) {
    const CRect rcWindow = canvas.ClientRect();
    if (!rcClient.IntersectRect(&rcClient, &rcWindow)) {
        return;
    }
    m_ptOrigin = rcClient.TopLeft();
    m_hBitmap = m_view.m_fnGetDisplayCache(rcClient);
    if (m_hBitmap && m_dc.CreateCompatibleDC(nullptr)) {
        m_hOldBitmap = ::SelectObject(m_dc.m_hDC, m_hBitmap);
    }
}

CCachePicture::~CCachePicture() {
    Deselect();
    if (m_hBitmap) {
        ::DeleteObject(m_hBitmap);
    }
}

// The bitmap is taken out of the device context first: a selected bitmap cannot be read or deleted.
void CCachePicture::Deselect() {
    if (m_hOldBitmap) {
        ::SelectObject(m_dc.m_hDC, m_hOldBitmap);
        m_hOldBitmap = nullptr;
    }
}

void CCachePicture::PutBack() {
    Deselect();
    m_view.m_fnUpdateDisplayCache(m_ptOrigin, m_hBitmap);
}

CDottedPenScope::CDottedPenScope(CDC& dc, COLORREF crLine)
    : m_dc(dc), m_crOldBackground(dc.SetBkColor(GapColor)) {
    if (m_pen.CreatePen(PS_DOT, 1, crLine)) {
        m_selected.emplace(dc, m_pen);
    }
}

void CDottedPenScope::Line(CPoint ptFrom, CPoint ptTo) {
    if (m_selected) {
        m_dc.MoveTo(ptFrom);
        m_dc.LineTo(ptTo);
    }
}

void CDottedPenScope::Outline(const Corners& corners) {
    if (!m_selected) {
        return;
    }
    const auto at = [&corners](Corner corner) {
        return CPoint(static_cast<int>(corners[corner].x), static_cast<int>(corners[corner].y));
    };
    m_dc.MoveTo(at(TopLeft));
    for (const Corner corner : {TopRight, BottomRight, BottomLeft, TopLeft}) {
        m_dc.LineTo(at(corner));
    }
}

void DrawDottedOutline(CDC& dc, const Corners& corners, COLORREF crLine) {
    CDottedPenScope(dc, crLine).Outline(corners);
}

CFilledShapeScope::CFilledShapeScope(CDC& dc, COLORREF crFill) {
    if (m_pen.CreatePen(PS_SOLID, 1, ShapeFrameColor) && m_brush.CreateSolidBrush(crFill)) {
        m_framed.emplace(dc, m_pen);
        m_filled.emplace(dc, m_brush);
    }
}

void DrawOutlineAndHandles(CDC& dc, const Corners& corners) {
    DrawDottedOutline(dc, corners, OutlineColor);
    DrawHandles(dc, corners);
}
