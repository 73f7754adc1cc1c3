#include "desk/desk_view.h"

#include "desk/desk.h"
#include "host/tool_interfaces.h"

BEGIN_MESSAGE_MAP(CDeskView, CVorView)
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_WM_KEYUP()
ON_WM_DESTROY()
END_MESSAGE_MAP()

BOOL CDeskView::CreateWindowOn(CWnd* pParent, int nWidth, int nHeight) {
    LPCSTR pszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW));
    const DWORD dwStyle = WS_VISIBLE | (pParent ? WS_CHILD : WS_POPUP);
    HWND hParent = pParent ? pParent->GetSafeHwnd() : nullptr;
    return CreateEx(0, pszClass, "", dwStyle, 0, 0, nWidth, nHeight, hParent, nullptr);
}

IToolInput* CDeskView::Input() const { return CDesk::Query<IToolInput>(m_desk.CurrentTool()); }

void CDeskView::TakeFocus() {
    if (!::IsChild(m_hWnd, ::GetFocus())) {
        SetFocus();
    }
}

// Every pixel comes from the display cache.
BOOL CDeskView::OnEraseBkgnd(CDC*) { return TRUE; }

void CDeskView::OnLButtonDown(UINT nFlags, CPoint point) {
    TakeFocus();
    if (IToolInput* pInput = Input()) {
        pInput->OnLButtonDown(nFlags, point);
    }
}

void CDeskView::OnLButtonUp(UINT nFlags, CPoint point) {
    if (IToolInput* pInput = Input()) {
        pInput->OnLButtonUp(nFlags, point);
    }
}

void CDeskView::OnLButtonDblClk(UINT nFlags, CPoint point) {
    TakeFocus();
    if (IToolInput* pInput = Input()) {
        pInput->OnLButtonDblClk(nFlags, point);
    }
}

void CDeskView::OnMouseMove(UINT nFlags, CPoint point) {
    if (IToolInput* pInput = Input()) {
        pInput->OnMouseMove(nFlags, point);
    }
}

void CDeskView::OnRButtonDown(UINT nFlags, CPoint point) {
    TakeFocus();
    if (IToolInput* pInput = Input()) {
        pInput->OnRButtonDown(nFlags, point);
    }
}

void CDeskView::OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags) {
    if (IToolInput* pInput = Input()) {
        pInput->OnKeyDown(nChar, nRepeat, nFlags);
    }
}

void CDeskView::OnKeyUp(UINT nChar, UINT nRepeat, UINT nFlags) {
    if (IToolInput* pInput = Input()) {
        pInput->OnKeyUp(nChar, nRepeat, nFlags);
    }
}

void CDeskView::OnDestroy() {
    CVorView::OnDestroy();
    m_desk.OnViewGone();
}
