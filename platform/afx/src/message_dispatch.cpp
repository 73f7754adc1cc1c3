#include "afxgdi.h"
#include "afxwnd.h"

#include "window_creation.h"

namespace {

MSG* g_pCurrentMessage = nullptr;

class [[nodiscard]] CCurrentMessageScope {
  public:
    explicit CCurrentMessageScope(MSG& message) : m_pOuter(g_pCurrentMessage) {
        g_pCurrentMessage = &message;
    }
    ~CCurrentMessageScope() { g_pCurrentMessage = m_pOuter; }
    CCurrentMessageScope(const CCurrentMessageScope&) = delete;
    CCurrentMessageScope& operator=(const CCurrentMessageScope&) = delete;

  private:
    MSG* m_pOuter;
};

} // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (!pWnd) {
        pWnd = afx::CCreationScope::Bind(hWnd);
    }
    if (!pWnd) {
        return ::DefWindowProcA(hWnd, message, wParam, lParam);
    }
    return AfxCallWndProc(pWnd, hWnd, message, wParam, lParam);
}

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG current = {hWnd, message, wParam, lParam, 0, {0, 0}};
    const CCurrentMessageScope scope(current);
    return pWnd->WindowProc(message, wParam, lParam);
}

const MSG* CWnd::GetCurrentMessage() {
    if (g_pCurrentMessage) {
        g_pCurrentMessage->time = static_cast<DWORD>(::GetMessageTime());
        g_pCurrentMessage->pt = CPoint(static_cast<LPARAM>(::GetMessagePos()));
    }
    return g_pCurrentMessage;
}

LRESULT CWnd::Default() {
    const MSG* const pMessage = g_pCurrentMessage;
    return pMessage ? DefWindowProc(pMessage->message, pMessage->wParam, pMessage->lParam) : 0;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pfnSuper) {
        return ::CallWindowProcA(m_pfnSuper, m_hWnd, message, wParam, lParam);
    }
    return ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

// A handler may have deleted this object: once one has taken the message, nothing here touches it.
LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

namespace {

const AFX_MSGMAP_ENTRY* FindInTable(const AFX_MSGMAP_ENTRY* pEntry, UINT message) {
    while (pEntry->nSig != AfxSig_end && pEntry->nMessage != message) {
        ++pEntry;
    }
    return pEntry->nSig != AfxSig_end ? pEntry : nullptr;
}

const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* pMap, UINT message) {
    while (true) {
        if (const AFX_MSGMAP_ENTRY* const pEntry = FindInTable(pMap->lpEntries, message)) {
            return pEntry;
        }
        if (!pMap->pfnGetBaseMap) {
            return nullptr;
        }
        pMap = pMap->pfnGetBaseMap();
    }
}

} // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const AFX_MSGMAP_ENTRY* const pEntry = FindEntry(GetMessageMap(), message);
    if (!pEntry) {
        return FALSE;
    }
    const LRESULT result = CallHandler(*pEntry, wParam, lParam);
    if (pResult) {
        *pResult = result;
    }
    return TRUE;
}

namespace {

UINT LowWord(LPARAM lParam) { return LOWORD(static_cast<ULONG_PTR>(lParam)); }

UINT HighWord(LPARAM lParam) { return HIWORD(static_cast<ULONG_PTR>(lParam)); }

CWnd* WindowOf(ULONG_PTR parameter) { return CWnd::FromHandle(reinterpret_cast<HWND>(parameter)); }

} // namespace

// The context is the sender's: the object around it goes without deleting it, and is in no table.
BOOL CWnd::CallEraseBkgnd(BOOL (CWnd::*pfn)(CDC*), HDC hDC) {
    CDC dc;
    dc.m_hDC = hDC;
    const BOOL bErased = (this->*pfn)(&dc);
    dc.m_hDC = nullptr;
    return bErased;
}

LRESULT CWnd::CallHandler(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam) {
    const AFX_MSGHANDLER& handler = entry.pfn;
    const UINT nParam = static_cast<UINT>(wParam);
    switch (entry.nSig) {
    case AfxSig_end: return 0;
    case AfxSig_vv: return (this->*handler.pfn_vv)(), 0;
    case AfxSig_bD: return CallEraseBkgnd(handler.pfn_bD, reinterpret_cast<HDC>(wParam));
    case AfxSig_is: return (this->*handler.pfn_is)(reinterpret_cast<LPCREATESTRUCT>(lParam));
    case AfxSig_wv: return (this->*handler.pfn_wv)();
    case AfxSig_vw: return (this->*handler.pfn_vw)(nParam), 0;
    case AfxSig_vbw: return (this->*handler.pfn_vbw)(wParam != 0, static_cast<UINT>(lParam)), 0;
    case AfxSig_vwii: {
        const int cx = static_cast<int>(LowWord(lParam));
        const int cy = static_cast<int>(HighWord(lParam));
        return (this->*handler.pfn_vwii)(nParam, cx, cy), 0;
    }
    case AfxSig_vwp: return (this->*handler.pfn_vwp)(nParam, CPoint(lParam)), 0;
    case AfxSig_vwww: return (this->*handler.pfn_vwww)(nParam, LowWord(lParam), HighWord(lParam)), 0;
    case AfxSig_vW: return (this->*handler.pfn_vW)(WindowOf(wParam)), 0;
    case AfxSig_vlW: return (this->*handler.pfn_vW)(WindowOf(static_cast<ULONG_PTR>(lParam))), 0;
    case AfxSig_bWww: return (this->*handler.pfn_bWww)(WindowOf(wParam), LowWord(lParam), HighWord(lParam));
    case AfxSig_lwl: return (this->*handler.pfn_lwl)(wParam, lParam);
    }
    return 0;
}
