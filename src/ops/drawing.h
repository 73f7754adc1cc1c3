// Drawing marks into the view's display cache.
#pragma once

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

/// Draws the closed outline through the corners with a dotted pen, one pixel wide, its gaps black. The
/// background colour and pen are restored.
void DrawDottedOutline(CDC& dc, const Corners& corners, COLORREF crLine);

/// Draws the outline of one selected object (white) and its eight handles (yellow, framed black).
void DrawOutlineAndHandles(CDC& dc, const Corners& corners);
