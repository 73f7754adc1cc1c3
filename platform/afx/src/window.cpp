#include "afxgdi.h"
#include "afxwnd.h"

#include "handle_map.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace {

// Never torn down: objects of static life leave it as the process ends.
auto& Map() {
    static auto& map = *new afx::CHandleMap<CWnd, &CWnd::m_hWnd>;
    return map;
}

} // namespace

CWnd::~CWnd() {
    if (m_hWnd) {
        CWnd::DestroyWindow();
    }
}

CWnd* CWnd::FromHandle(HWND hWnd) { return Map().FromHandle(hWnd); }

CWnd* CWnd::FromHandlePermanent(HWND hWnd) { return Map().Lookup(hWnd); }

void CWnd::DeleteTempMap() { Map().Temporary().FreeAll(); }

BOOL CWnd::Attach(HWND hWndNew) {
    ASSERT(m_hWnd == nullptr);
    return Map().Attach(hWndNew, this);
}

HWND CWnd::Detach() {
    const HWND hWnd = Map().Detach(this);
    if (m_pfnSuper) {
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
        m_pfnSuper = nullptr;
    }
    return hWnd;
}

// A window of a class that is not the framework's has a procedure of its own, which becomes the default one.
BOOL CWnd::TakeOver(HWND hWnd) {
    if (!Attach(hWnd)) {
        return FALSE;
    }
    m_pfnSuper = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    if (!m_hWnd) {
        return FALSE;
    }
    const HWND hWnd = m_hWnd;
    const BOOL bResult = ::DestroyWindow(hWnd);
    // This object may be gone, unless the table still has it: WM_NCDESTROY did not come its way.
    if (Map().Lookup(hWnd) == this) {
        Detach();
    }
    return bResult;
}

void CWnd::OnNcDestroy() {
    Default();
    Detach();
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

BOOL AfxPreTranslateMessage(MSG* pMsg) {
    // A window that goes meanwhile has no parent any more, which ends the walk.
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* const pWnd = CWnd::FromHandlePermanent(hWnd);
        if (pWnd && pWnd->PreTranslateMessage(pMsg)) {
            return TRUE;
        }
    }
    return FALSE;
}

void CWnd::GetWindowText(CString& rString) const {
    const int nLength = GetWindowTextLength();
    const int nCopied = GetWindowText(rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer(nCopied);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    POINT origin = {0, 0};
    ::ClientToScreen(m_hWnd, &origin);
    ::OffsetRect(lpRect, origin.x, origin.y);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    POINT origin = {0, 0};
    ::ScreenToClient(m_hWnd, &origin);
    ::OffsetRect(lpRect, origin.x, origin.y);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    const HWND hWndInsertAfter = pWndInsertAfter ? pWndInsertAfter->m_hWnd : HWND_TOP;
    return ::SetWindowPos(m_hWnd, hWndInsertAfter, x, y, cx, cy, nFlags);
}
