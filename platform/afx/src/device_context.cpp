#include "afxgdi.h"
#include "afxwnd.h"

#include "handle_map.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

// Never torn down: objects of static life leave it as the process ends.
auto& Map() {
    static auto& map = *new afx::CHandleMap<CDC, &CDC::m_hDC>;
    return map;
}

} // namespace

CDC::~CDC() { DeleteDC(); }

CDC* CDC::FromHandle(HDC hDC) { return Map().FromHandle(hDC); }

void CDC::DeleteTempMap() { Map().Temporary().FreeAll(); }

BOOL CDC::Attach(HDC hDC) {
    ASSERT(m_hDC == nullptr);
    return Map().Attach(hDC, this);
}

HDC CDC::Detach() { return Map().Detach(this); }

BOOL CDC::AttachNew(HDC hDC) {
    if (Attach(hDC)) {
        return TRUE;
    }
    ::DeleteDC(hDC);
    return FALSE;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) { return AttachNew(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr)); }

BOOL CDC::CreateDC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, LPCVOID lpInitData) {
    return AttachNew(
        ::CreateDCA(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEA*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCSTR lpszDriverName, LPCSTR lpszDeviceName, LPCSTR lpszOutput, LPCVOID lpInitData) {
    return AttachNew(
        ::CreateICA(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEA*>(lpInitData)));
}

BOOL CDC::DeleteDC() { return m_hDC && ::DeleteDC(Detach()); }

CPen* CDC::SelectObject(CPen* pPen) {
    const HGDIOBJ hPen = pPen ? pPen->m_hObject : nullptr;
    return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, hPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    const HGDIOBJ hBrush = pBrush ? pBrush->m_hObject : nullptr;
    return CBrush::FromHandle(static_cast<HBRUSH>(::SelectObject(m_hDC, hBrush)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    const HGDIOBJ hBitmap = pBitmap ? pBitmap->m_hObject : nullptr;
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, hBitmap)));
}

CFont* CDC::SelectObject(CFont* pFont) {
    const HGDIOBJ hFont = pFont ? pFont->m_hObject : nullptr;
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, hFont)));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(nIndex)));
}

// The point that one of the system's functions tells through its last parameter.
namespace {

template <class FUNCTION, class... VALUES>
CPoint Told(FUNCTION pfn, HDC hDC, VALUES... values) {
    CPoint point;
    pfn(hDC, values..., &point);
    return point;
}

} // namespace

CPoint CDC::SetViewportOrg(int x, int y) { return Told(::SetViewportOrgEx, m_hDC, x, y); }

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    return Told(::OffsetViewportOrgEx, m_hDC, nWidth, nHeight);
}

CPoint CDC::GetViewportOrg() const { return Told(::GetViewportOrgEx, m_hDC); }

CPoint CDC::SetWindowOrg(int x, int y) { return Told(::SetWindowOrgEx, m_hDC, x, y); }

CPoint CDC::GetWindowOrg() const { return Told(::GetWindowOrgEx, m_hDC); }

CPoint CDC::GetCurrentPosition() const { return Told(::GetCurrentPositionEx, m_hDC); }

CPoint CDC::MoveTo(int x, int y) { return Told(::MoveToEx, m_hDC, x, y); }

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    SetBkColor(clr);
    CBrush brush(clr);
    if (brush.m_hObject) {
        FillRect(lpRect, &brush);
    }
}

CSize CDC::GetTextExtent(LPCSTR lpszString, int nCount) const {
    CSize size(0, 0);
    ::GetTextExtentPoint32A(m_hDC, lpszString, nCount, &size);
    return size;
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->m_hWnd : nullptr) {
    const HDC hDC = ::GetDC(m_hWnd);
    if (!Attach(hDC) && hDC) {
        ::ReleaseDC(m_hWnd, hDC);
    }
}

CClientDC::~CClientDC() {
    if (m_hDC) {
        ::ReleaseDC(m_hWnd, Detach());
    }
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(pWnd->m_hWnd) {
    const HDC hDC = ::BeginPaint(m_hWnd, &m_ps);
    if (!Attach(hDC) && hDC) {
        ::EndPaint(m_hWnd, &m_ps);
    }
}

CPaintDC::~CPaintDC() {
    if (m_hDC) {
        Detach();
        ::EndPaint(m_hWnd, &m_ps);
    }
}

CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }

int CWnd::ReleaseDC(CDC* pDC) {
    const HDC hDC = pDC->m_hDC;
    Map().Temporary().Free(pDC);
    return ::ReleaseDC(m_hWnd, hDC);
}
