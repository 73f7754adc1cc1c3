#include "ops/drawing.h"

namespace {

constexpr COLORREF OutlineColor = RGB(255, 255, 255);
constexpr COLORREF HandleColor = RGB(255, 255, 0);
constexpr COLORREF HandleFrameColor = RGB(0, 0, 0);

void DrawHandles(CDC& dc, const Corners& corners) {
    CPen pen;
    CBrush brush;
    if (!pen.CreatePen(PS_SOLID, 1, HandleFrameColor) || !brush.CreateSolidBrush(HandleColor)) {
        return;
    }
    CSelectObjectScope framed(dc, pen);
    CSelectObjectScope filled(dc, brush);
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

void DrawDottedOutline(CDC& dc, const Corners& corners, COLORREF crLine) {
    constexpr COLORREF Black = RGB(0, 0, 0);
    CPen pen;
    if (!pen.CreatePen(PS_DOT, 1, crLine)) {
        return;
    }
    CSelectObjectScope selected(dc, pen);
    const COLORREF crOldBackground = dc.SetBkColor(Black);
    const auto at = [&corners](Corner corner) {
        return CPoint(static_cast<int>(corners[corner].x), static_cast<int>(corners[corner].y));
    };
    dc.MoveTo(at(TopLeft));
    for (const Corner corner : {TopRight, BottomRight, BottomLeft, TopLeft}) {
        dc.LineTo(at(corner));
    }
    dc.SetBkColor(crOldBackground);
}

void DrawOutlineAndHandles(CDC& dc, const Corners& corners) {
    DrawDottedOutline(dc, corners, OutlineColor);
    DrawHandles(dc, corners);
}
