#include "afxgdi.h"
#include "afxwnd.h"

#include "handle_map.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

// The tables are never torn down: objects of static life leave them as the process ends.
static afx::CPointerTable<CDC>& Permanent() {
    static auto& table = *new afx::CPointerTable<CDC>;
    return table;
}

static auto& Temporary() {
    static auto& objects = *new afx::CTempObjects<CDC, &CDC::m_hDC>;
    return objects;
}

CDC::~CDC() { DeleteDC(); }

CDC* CDC::FromHandle(HDC hDC) {
    if (hDC == nullptr) {
        return nullptr;
    }
    CDC* const pOwn = Permanent().Lookup(hDC);
    return pOwn != nullptr ? pOwn : Temporary().FromHandle(hDC);
}

void CDC::DeleteTempMap() { Temporary().FreeAll(); }

BOOL CDC::Attach(HDC hDC) {
    ASSERT(m_hDC == nullptr);
    if (hDC == nullptr || !Permanent().Set(hDC, this)) {
        return FALSE;
    }
    m_hDC = hDC;
    return TRUE;
}

HDC CDC::Detach() {
    const HDC hDC = m_hDC;
    Permanent().Remove(hDC, this);
    m_hDC = nullptr;
    return hDC;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    const HDC hDC = ::CreateCompatibleDC(pDC != nullptr ? pDC->m_hDC : nullptr);
    if (Attach(hDC)) {
        return TRUE;
    }
    ::DeleteDC(hDC);
    return FALSE;
}

BOOL CDC::DeleteDC() { return m_hDC != nullptr && ::DeleteDC(Detach()); }

CPen* CDC::SelectObject(CPen* pPen) {
    const HGDIOBJ hPen = pPen != nullptr ? pPen->m_hObject : nullptr;
    return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, hPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    const HGDIOBJ hBrush = pBrush != nullptr ? pBrush->m_hObject : nullptr;
    return CBrush::FromHandle(static_cast<HBRUSH>(::SelectObject(m_hDC, hBrush)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    const HGDIOBJ hBitmap = pBitmap != nullptr ? pBitmap->m_hObject : nullptr;
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, hBitmap)));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(nIndex)));
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint before;
    ::SetViewportOrgEx(m_hDC, x, y, &before);
    return before;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    CPoint before;
    ::OffsetViewportOrgEx(m_hDC, nWidth, nHeight, &before);
    return before;
}

CPoint CDC::GetViewportOrg() const {
    CPoint origin;
    ::GetViewportOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint before;
    ::SetWindowOrgEx(m_hDC, x, y, &before);
    return before;
}

CPoint CDC::GetWindowOrg() const {
    CPoint origin;
    ::GetWindowOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::GetCurrentPosition() const {
    CPoint position;
    ::GetCurrentPositionEx(m_hDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint before;
    ::MoveToEx(m_hDC, x, y, &before);
    return before;
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    SetBkColor(clr);
    CBrush brush(clr);
    if (brush.m_hObject != nullptr) {
        FillRect(lpRect, &brush);
    }
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    const HDC hDC = ::GetDC(m_hWnd);
    if (!Attach(hDC) && hDC != nullptr) {
        ::ReleaseDC(m_hWnd, hDC);
    }
}

CClientDC::~CClientDC() {
    if (m_hDC != nullptr) {
        ::ReleaseDC(m_hWnd, Detach());
    }
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(pWnd->m_hWnd) {
    const HDC hDC = ::BeginPaint(m_hWnd, &m_ps);
    if (!Attach(hDC) && hDC != nullptr) {
        ::EndPaint(m_hWnd, &m_ps);
    }
}

CPaintDC::~CPaintDC() {
    if (m_hDC != nullptr) {
        Detach();
        ::EndPaint(m_hWnd, &m_ps);
    }
}

CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }

int CWnd::ReleaseDC(CDC* pDC) {
    const HDC hDC = pDC->m_hDC;
    Temporary().Free(pDC);
    return ::ReleaseDC(m_hWnd, hDC);
}
