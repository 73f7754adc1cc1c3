#include "services/drag_session.h"

#include <cstdlib>
#include <utility>

#include "services/drag_windows.h"

std::optional<CDragSession::Drag> CDragSession::s_drag;
HWND CDragSession::s_hReleasing = nullptr;
unsigned CDragSession::s_nSerial = 0;
unsigned CDragSession::s_nCount = 0;
DWORD CDragSession::s_dwLastEffect = drop_effect::None;

namespace {

/// How far the pointer goes, in pixels, before a press becomes a drag.
constexpr int DragDistance = 4;

bool IsFar(CPoint a, CPoint b) {
    return std::abs(a.x - b.x) >= DragDistance || std::abs(a.y - b.y) >= DragDistance;
}

DWORD KeyState(WPARAM wParam) { return LOWORD(wParam) | (::GetKeyState(VK_CONTROL) < 0 ? MK_CONTROL : 0); }

LPARAM Packed(CPoint point) {
    return MAKELPARAM(static_cast<ULONG_PTR>(point.x), static_cast<ULONG_PTR>(point.y));
}

CPoint Mapped(HWND hFrom, HWND hTo, CPoint point) {
    ::ClientToScreen(hFrom, &point);
    ::ScreenToClient(hTo, &point);
    return point;
}

} // namespace

void CDragSession::SetTargetWindow(CDragDropTarget& target, HWND hWnd) {
    drag_windows::RemoveTarget(target.m_hDropWnd, &target);
    if (CDragDropTarget* pFormer = drag_windows::TargetOf(hWnd)) {
        pFormer->m_hDropWnd = nullptr;
    }
    target.m_hDropWnd = hWnd;
    if (hWnd) {
        drag_windows::AddTarget(hWnd, &target);
    }
}

void CDragSession::SetSourceWindow(CDragDropSource& source, HWND hWnd) {
    if (source.m_hDragWnd == hWnd) {
        return;
    }
    SourceGoes(&source, source.m_hDragWnd);
    SourceGoes(drag_windows::SourceOf(hWnd), hWnd);
    source.m_hDragWnd = hWnd;
    if (hWnd) {
        drag_windows::AddSource(hWnd, &source);
    }
}

void CDragSession::SourceGoes(CDragDropSource* pSource, HWND hWnd) {
    if (s_drag && s_drag->hSource == hWnd) {
        GiveUp(false);
    }
    if (!pSource || pSource->m_hDragWnd != hWnd) {
        return;
    }
    pSource->m_hDragWnd = nullptr;
    drag_windows::RemoveSource(hWnd, pSource);
}

CDragDropTarget* CDragSession::EnabledTarget(HWND hWnd) {
    CDragDropTarget* pTarget = drag_windows::TargetOf(hWnd);
    return pTarget && pTarget->m_nDropEnabled != 0 ? pTarget : nullptr;
}

CDragDropSource* CDragSession::EnabledSource(HWND hWnd) {
    CDragDropSource* pSource = drag_windows::SourceOf(hWnd);
    return pSource && pSource->m_nDragEnabled != 0 ? pSource : nullptr;
}

int CDragSession::Ask(HWND hWnd, int nPhase, Offer& offer, DWORD& dwEffect) {
    dwEffect = drop_effect::None;
    CDragDropTarget* pTarget = EnabledTarget(hWnd);
    if (!pTarget) {
        return -1;
    }
    return pTarget->m_fnOnDataArrive(0, nPhase, offer.nFormat, offer.strText, offer.dwKeyState, offer.point,
                                     offer.dwSource, &dwEffect);
}

int CDragSession::Drop(HWND hWnd, Offer& offer, DWORD dwAllowed, DWORD& dwEffect) {
    const int nAnswer = Ask(hWnd, drop_phase::Drop, offer, dwEffect);
    const bool bForbidden = dwEffect != drop_effect::None && (dwEffect & dwAllowed) == drop_effect::None;
    dwEffect &= dwAllowed;
    if (nAnswer != 1) {
        return nAnswer;
    }
    CDragDropTarget* pTarget = EnabledTarget(hWnd);
    if (!pTarget || bForbidden) {
        return 0;
    }
    pTarget->m_fnOnDataArrive_CF_TEXT(0, offer.strText, 0, &dwEffect);
    dwEffect &= dwAllowed;
    return 1;
}

void CDragSession::Leave(HWND hWnd) {
    if (CDragDropTarget* pTarget = EnabledTarget(hWnd)) {
        pTarget->m_fnOnDragLeave();
    }
}

bool CDragSession::Handle(HWND hWnd, WNDPROC pfnOwn, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    if (nMessage == WM_LBUTTONDOWN) {
        return HoldPress(hWnd, pfnOwn, wParam, point);
    }
    if (nMessage == WM_CAPTURECHANGED && hWnd == s_hReleasing) {
        return true;
    }
    if (!s_drag || s_drag->hSource != hWnd) {
        return false;
    }
    switch (nMessage) {
    case WM_MOUSEMOVE: StepTo(wParam, point); return true;
    case WM_LBUTTONUP: LetGo(wParam, point); return true;
    case WM_CAPTURECHANGED: GiveUp(); return true;
    case WM_DESTROY: GiveUp(false); return false;
    case WM_KEYDOWN:
        if (wParam != VK_ESCAPE || !s_drag->bMoving) {
            return false;
        }
        GiveUp();
        return true;
    default: return false;
    }
}

bool CDragSession::HoldPress(HWND hWnd, WNDPROC pfnOwn, WPARAM wParam, CPoint point) {
    GiveUp();
    CDragDropSource* pSource = EnabledSource(hWnd);
    CPoint ptAsked = point;
    if (!pSource || pSource->m_fnOnPrepareDrag(ptAsked) != 1 || !EnabledSource(hWnd)) {
        return false;
    }
    ::SetCapture(hWnd);
    // Whoever had the capture may have done anything when told of its loss.
    if (::GetCapture() != hWnd || !EnabledSource(hWnd)) {
        return false;
    }
    s_drag.emplace(Drag{hWnd, pfnOwn, point, wParam, ++s_nSerial});
    return true;
}

void CDragSession::StepTo(WPARAM wParam, CPoint point) {
    if (!s_drag->bMoving && (!IsFar(point, s_drag->ptPress) || !Begin())) {
        return;
    }
    Hover(wParam, point);
}

// Without a text there is no drag, and the press is lost.
bool CDragSession::Begin() {
    const unsigned nSerial = s_drag->nSerial;
    const HWND hSource = s_drag->hSource;
    CDragDropSource* pSource = EnabledSource(hSource);
    CPoint ptPress = s_drag->ptPress;
    CString strText;
    const bool bText = pSource && pSource->m_fnOnPrepareDragData_CF_TEXT(ptPress, strText) == 1;
    if (!IsRunning(nSerial)) {
        return false;
    }
    pSource = EnabledSource(hSource);
    // A first zero ends the text, as it does on the clipboard.
    s_drag->strText = static_cast<LPCSTR>(strText);
    if (!bText || s_drag->strText.IsEmpty() || !pSource) {
        GiveUp();
        return false;
    }
    s_drag->bMoving = true;
    s_drag->dwAllowed = pSource->m_dwAllowed;
    return true;
}

void CDragSession::Hover(WPARAM wParam, CPoint point) {
    if (!EnterTargetAt(point) || !s_drag->hOver) {
        return;
    }
    DWORD dwEffect = drop_effect::None;
    Offer offer = OfferFrom(*s_drag, wParam, point);
    Ask(s_drag->hOver, drop_phase::Over, offer, dwEffect);
}

// False when the drag did not live through the leaving of the former target.
bool CDragSession::EnterTargetAt(CPoint point) {
    CPoint ptScreen = point;
    ::ClientToScreen(s_drag->hSource, &ptScreen);
    HWND hTarget = drag_windows::WindowAt(s_drag->hSource, ptScreen);
    while (hTarget && !EnabledTarget(hTarget)) {
        hTarget = drag_windows::ParentOfChild(hTarget);
    }
    const unsigned nSerial = s_drag->nSerial;
    const HWND hLeft = std::exchange(s_drag->hOver, hTarget);
    if (hLeft != hTarget) {
        Leave(hLeft);
    }
    return IsRunning(nSerial);
}

CDragSession::Offer CDragSession::OfferFrom(const Drag& drag, WPARAM wParam, CPoint point) {
    Offer offer;
    offer.strText = drag.strText;
    offer.dwKeyState = KeyState(wParam);
    offer.point = Mapped(drag.hSource, drag.hOver, point);
    offer.dwSource = drag.hOver == drag.hSource ? drop_source::Own : drop_source::Foreign;
    return offer;
}

void CDragSession::LetGo(WPARAM wParam, CPoint point) {
    if (!s_drag->bMoving) {
        HandOverClick(End(), wParam, point);
        return;
    }
    if (!EnterTargetAt(point)) {
        return;
    }
    // The offer is made while the source's window still stands to map the point.
    const HWND hTarget = s_drag->hOver;
    Offer offer = hTarget ? OfferFrom(*s_drag, wParam, point) : Offer();
    const Drag drag = End();
    DWORD dwEffect = drop_effect::None;
    const bool bDropped = hTarget && Drop(hTarget, offer, drag.dwAllowed, dwEffect) == 1;
    s_dwLastEffect = bDropped ? dwEffect : drop_effect::None;
}

void CDragSession::HandOverClick(const Drag& drag, WPARAM wParam, CPoint point) {
    ::CallWindowProcA(drag.pfnOwn, drag.hSource, WM_LBUTTONDOWN, drag.pressKeys, Packed(drag.ptPress));
    if (::IsWindow(drag.hSource)) {
        ::CallWindowProcA(drag.pfnOwn, drag.hSource, WM_LBUTTONUP, wParam, Packed(point));
    }
}

void CDragSession::GiveUp(bool bTellOwn) {
    if (!s_drag) {
        return;
    }
    const Drag drag = End();
    if (bTellOwn || drag.hOver != drag.hSource) {
        Leave(drag.hOver);
    }
}

// The window never took the capture itself, so the loss of it is not its business.
CDragSession::Drag CDragSession::End() {
    const Drag drag = *std::exchange(s_drag, std::nullopt);
    s_nCount += drag.bMoving ? 1 : 0;
    s_dwLastEffect = drag.bMoving ? drop_effect::None : s_dwLastEffect;
    s_hReleasing = drag.hSource;
    if (::GetCapture() == drag.hSource) {
        ::ReleaseCapture();
    }
    s_hReleasing = nullptr;
    return drag;
}
