// Drawing marks into the view's display cache.
#pragma once

#include <optional>

#include <afxwin.h>

#include "ops/canvas.h"
#include "ops/handles.h"

/// Selects a GDI object into a device context for as long as it lives.
class [[nodiscard]] CSelectObjectScope {
  public:
    CSelectObjectScope(CDC& dc, CGdiObject& object)
        : m_hDC(dc.m_hDC), m_hOld(::SelectObject(m_hDC, object.m_hObject)) {}
    ~CSelectObjectScope() { ::SelectObject(m_hDC, m_hOld); }
    CSelectObjectScope(const CSelectObjectScope&) = delete;
    CSelectObjectScope& operator=(const CSelectObjectScope&) = delete;

  private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};

/// A part of the display cache's picture, to be drawn on and put back. It holds nothing when the area does
/// not meet the client area, or when a bitmap or device context cannot be made.
class CCachePicture {
  public:
    /// `rcClient` is clipped to the client area.
    CCachePicture(const CCanvas& canvas, CRect rcClient);
    ~CCachePicture();
    CCachePicture(const CCachePicture&) = delete;
    CCachePicture& operator=(const CCachePicture&) = delete;

    explicit operator bool() const { return m_hOldBitmap != nullptr; }
    CDC& DC() { return m_dc; }
    /// The client point at the picture's top-left.
    CPoint Origin() const { return m_ptOrigin; }
    void PutBack();

  private:
    void Deselect();

    CVorView& m_view;
    CPoint m_ptOrigin;
    HBITMAP m_hBitmap = nullptr; ///< owned
    CDC m_dc;
    HGDIOBJ m_hOldBitmap = nullptr;
};

/// A dotted pen, one pixel wide, its gaps black. Without the pen nothing is drawn; background colour and pen
/// are restored with it.
class [[nodiscard]] CDottedPenScope {
  public:
    CDottedPenScope(CDC& dc, COLORREF crLine);
    ~CDottedPenScope() { m_dc.SetBkColor(m_crOldBackground); }
    CDottedPenScope(const CDottedPenScope&) = delete;
    CDottedPenScope& operator=(const CDottedPenScope&) = delete;

    void Line(CPoint ptFrom, CPoint ptTo);
    /// The closed outline through the corners, their coordinates truncated.
    void Outline(const Corners& corners);

  private:
    CDC& m_dc;
    CPen m_pen;
    std::optional<CSelectObjectScope> m_selected;
    COLORREF m_crOldBackground;
};

void DrawDottedOutline(CDC& dc, const Corners& corners, COLORREF crLine);
/// A closed figure: framed by a black pen of one pixel, filled with the colour.
class [[nodiscard]] CFilledShapeScope {
  public:
    CFilledShapeScope(CDC& dc, COLORREF crFill);
    /// False when pen or brush cannot be made.
    explicit operator bool() const { return m_filled.has_value(); }

  private:
    CPen m_pen;
    CBrush m_brush;
    std::optional<CSelectObjectScope> m_framed;
    std::optional<CSelectObjectScope> m_filled;
};

/// Draws the outline of one selected object (white) and its eight handles (yellow, framed black).
void DrawOutlineAndHandles(CDC& dc, const Corners& corners);
