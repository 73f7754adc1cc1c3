#pragma once

// Pens, brushes, bitmaps, fonts and device contexts.

#include "afx.h"
#include "afxrect.h"
#include "afxstr.h"

class CDC;
class CWnd;

/// The owner of a drawing object. FromHandle answers the handle's object, or a temporary one that is good
/// until the next DeleteTempMap.
class CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)

    HGDIOBJ m_hObject = nullptr;

    CGdiObject() = default;
    /// Deletes the drawing object, which fails silently while it is selected in a context.
    ~CGdiObject() override { DeleteObject(); }

    static CGdiObject* FromHandle(HGDIOBJ hObject);
    static void DeleteTempMap();

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    /// FALSE for null, and when memory is short.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    /// Bytes written, 0 on failure.
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectA(m_hObject, nCount, lpObject); }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }

  protected:
    /// As Attach; an object that could not be attached is deleted.
    BOOL AttachNew(HGDIOBJ hObject);
};

class CPen : public CGdiObject {
    DECLARE_DYNCREATE(CPen)

    CPen() = default;
    /// Without a handle when the creation fails.
    CPen(int nPenStyle, int nWidth, COLORREF crColor) { CreatePen(nPenStyle, nWidth, crColor); }

    static CPen* FromHandle(HPEN hPen);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return AttachNew(::CreatePen(nPenStyle, nWidth, crColor));
    }
};

class CBrush : public CGdiObject {
    DECLARE_DYNCREATE(CBrush)

    CBrush() = default;
    /// Without a handle when the creation fails.
    explicit CBrush(COLORREF crColor) { CreateSolidBrush(crColor); }

    static CBrush* FromHandle(HBRUSH hBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF crColor) { return AttachNew(::CreateSolidBrush(crColor)); }
};

class CBitmap : public CGdiObject {
    DECLARE_DYNCREATE(CBitmap)

    CBitmap() = default;

    static CBitmap* FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
        return AttachNew(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    /// Bytes written, 0 on failure.
    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
    /// Rows are padded to 16 bits. Bytes written, 0 on failure.
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
        return static_cast<DWORD>(
            ::GetBitmapBits(static_cast<HBITMAP>(m_hObject), static_cast<LONG>(dwCount), lpBits));
    }
};

class CFont : public CGdiObject {
    DECLARE_DYNCREATE(CFont)

    CFont() = default;

    static CFont* FromHandle(HFONT hFont);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return AttachNew(::CreateFontIndirectA(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCSTR lpszFacename);
    /// `nPointSize` in tenths of a point, at the resolution of `pDC` (null: of the screen).
    BOOL CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC = nullptr);
    /// Bytes written, 0 on failure.
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};

/// A device context. Coordinates are logical. The destructor deletes a context that is still attached.
class CDC : public CObject {
    DECLARE_DYNCREATE(CDC)

    HDC m_hDC = nullptr;

    CDC() = default;
    ~CDC() override;

    /// The context's object, or a temporary one that is good until the next DeleteTempMap.
    static CDC* FromHandle(HDC hDC);
    static void DeleteTempMap();

    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    /// FALSE for null, and when memory is short.
    BOOL Attach(HDC hDC);
    HDC Detach();

    /// A memory context; a null `pDC` means one that fits the screen.
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL CreateDC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, LPCVOID lpInitData);
    /// An information context: the resolution can be asked, and text measured.
    BOOL CreateIC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, LPCVOID lpInitData);
    BOOL DeleteDC();
    /// The number of the kept state, 0 on failure.
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int nSavedDC) { return ::RestoreDC(m_hDC, nSavedDC); }
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hDC, nIndex); }

    /// The object selected before, of the same type; null when nothing was selected. A temporary object may
    /// answer.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CBitmap* SelectObject(CBitmap* pBitmap);
    CFont* SelectObject(CFont* pFont);
    HGDIOBJ SelectObject(HGDIOBJ hObject) { return ::SelectObject(m_hDC, hObject); }
    CGdiObject* SelectStockObject(int nIndex);

    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    int GetBkMode() const { return ::GetBkMode(m_hDC); }
    int GetROP2() const { return ::GetROP2(m_hDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hDC); }
    /// The setters answer the value before.
    COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    int SetROP2(int nDrawMode) { return ::SetROP2(m_hDC, nDrawMode); }
    COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hDC); }
    UINT SetTextAlign(UINT nFlags) { return ::SetTextAlign(m_hDC, nFlags); }

    /// Origins in device (viewport) and logical (window) pixels; the setters answer the origin before.
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CPoint GetViewportOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint GetWindowOrg() const;

    /// The answers are region kinds.
    int IntersectClipRect(int x1, int y1, int x2, int y2) {
        return ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
    }
    int IntersectClipRect(LPCRECT lpRect) {
        return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }

    CPoint GetCurrentPosition() const;
    /// The position before.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    /// The last pixel is not drawn.
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }

    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect) {
        return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect) { return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    void FillRect(LPCRECT lpRect, CBrush* pBrush) {
        ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->m_hObject));
    }
    /// Leaves the colour as the background colour.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
        FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
    }

    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, dwRop);
    }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }

    BOOL TextOut(int x, int y, LPCSTR lpszString, int nCount) {
        return ::TextOutA(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    /// Empty on failure.
    CSize GetTextExtent(LPCSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetricsA(m_hDC, lpMetrics); }

  protected:
    /// As Attach; a context that could not be attached is deleted.
    BOOL AttachNew(HDC hDC);
};

/// A context on a window's client area, given back by the destructor. `m_hDC` is null when there was none to
/// have.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

    /// A null window means the screen.
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

  protected:
    HWND m_hWnd;
};

/// A context for the handling of WM_PAINT, clipped to the update area. `m_hDC` is null when there was none to
/// have.
class CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

    PAINTSTRUCT m_ps;

    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

  protected:
    HWND m_hWnd;
};
