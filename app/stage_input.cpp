#include "stage.h"

#include <algorithm>
#include <cctype>

#include "ctrl_scope.h"

namespace {

constexpr LPARAM OneRepeat = 1;
constexpr LPARAM WasDown = LPARAM{1} << 30;
constexpr LPARAM GoesUp = LPARAM{1} << 31;

void SetBothKeys(int nKey, bool bDown) {
    platform::SetAsyncKey(nKey, bDown);
    platform::SetSyncKey(nKey, bDown);
}

WPARAM MouseFlags(bool bLeftButton) {
    const bool bCtrl = ::GetAsyncKeyState(VK_CONTROL) < 0;
    return (bLeftButton ? MK_LBUTTON : 0) | (bCtrl ? MK_CONTROL : 0);
}

MSG MakeMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    MSG msg{};
    msg.hwnd = hWnd;
    msg.message = nMessage;
    msg.wParam = wParam;
    msg.lParam = lParam;
    msg.time = ::GetTickCount();
    ::GetCursorPos(&msg.pt);
    return msg;
}

} // namespace

void CStage::Deliver(MSG msg) {
    if (AfxPreTranslateMessage(&msg) ||
        (msg.message == WM_KEYDOWN && FireAccelerator(static_cast<int>(msg.wParam)))) {
        return;
    }
    ::TranslateMessage(&msg);
    ::DispatchMessageA(&msg);
}

void CStage::Dispatch(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (hWnd) {
        Deliver(MakeMessage(hWnd, nMessage, wParam, lParam));
    }
}

// What the system makes on demand (paints or timers), until there is no more.
void CStage::DispatchAll(UINT nMessage) {
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, nMessage, nMessage, PM_REMOVE)) {
        Deliver(msg);
    }
}

HWND CStage::TargetOf(CPoint& point) const {
    HWND hView = m_desk.View()->m_hWnd;
    HWND hTarget = ::GetCapture();
    if (!hTarget) {
        hTarget = ::ChildWindowFromPoint(hView, point);
    }
    if (hTarget && hTarget != hView) {
        ::ClientToScreen(hView, &point);
        ::ScreenToClient(hTarget, &point);
    }
    return hTarget;
}

void CStage::SendMouse(UINT nMessage, CPoint point) {
    SetPointer(point);
    HWND hTarget = TargetOf(point);
    if (!hTarget && nMessage != WM_MOUSEMOVE) {
        hTarget = m_desk.View()->m_hWnd;
    }
    Dispatch(hTarget, nMessage, MouseFlags(m_bLeftButton), MAKELPARAM(point.x, point.y));
}

void CStage::PostMouse(UINT nMessage, CPoint point) {
    SetPointer(point);
    HWND hTarget = TargetOf(point);
    if (!hTarget && nMessage != WM_MOUSEMOVE) {
        hTarget = m_desk.View()->m_hWnd;
    }
    if (hTarget) {
        ::PostMessageA(hTarget, nMessage, MouseFlags(m_bLeftButton), MAKELPARAM(point.x, point.y));
    }
}

void CStage::SetButton(bool bDown) {
    m_bLeftButton = bDown;
    SetBothKeys(VK_LBUTTON, bDown);
}

void CStage::Press(CPoint point, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    SetButton(true);
    SendMouse(WM_LBUTTONDOWN, point);
}

void CStage::Move(CPoint point, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    SendMouse(WM_MOUSEMOVE, point);
}

void CStage::Release(CPoint point, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    SetButton(false);
    SendMouse(WM_LBUTTONUP, point);
}

void CStage::RightPress(CPoint point, const MenuChoice& choice) {
    m_menuHand.Intend(choice);
    SendMouse(WM_RBUTTONDOWN, point);
    if (m_menuHand.Forget() && choice.dismissPress) {
        DeliverQueuedClick();
    }
}

// The press, unless it was swallowed, and the release of what dismissed a menu.
void CStage::DeliverQueuedClick() {
    MSG msg;
    for (const UINT nMessage : {WM_LBUTTONDOWN, WM_LBUTTONUP}) {
        if (::PeekMessageA(&msg, nullptr, nMessage, nMessage, PM_REMOVE)) {
            Deliver(msg);
        }
    }
}

void CStage::SecondPress(CPoint point, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    SetButton(true);
    SendMouse(WM_LBUTTONDBLCLK, point);
}

void CStage::Click(CPoint point, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    Press(point);
    Release(point);
}

void CStage::DblClick(CPoint point, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    Click(point);
    SecondPress(point);
    Release(point);
}

void CStage::Drag(CPoint ptFrom, CPoint ptTo, Ctrl ctrl, int nSteps) {
    CCtrlScope held(ctrl);
    Press(ptFrom);
    const auto share = [nSteps](LONG nFrom, LONG nTo, int n) {
        return nFrom + static_cast<LONG>((std::int64_t{nTo} - nFrom) * n / nSteps);
    };
    for (int n = 1; n <= nSteps; n++) {
        Move({share(ptFrom.x, ptTo.x, n), share(ptFrom.y, ptTo.y, n)});
    }
    Release(ptTo);
}

void CStage::SetPointer(CPoint point) {
    ::ClientToScreen(m_desk.View()->m_hWnd, &point);
    platform::SetPointer(point);
}

void CStage::SendKeyDown(int nKey) {
    const bool bRepeat = ::GetAsyncKeyState(nKey) < 0;
    SetBothKeys(nKey, true);
    HWND hFocus = ::GetFocus();
    if (!hFocus) {
        FireAccelerator(nKey);
        return;
    }
    const LPARAM lParam = OneRepeat | (bRepeat ? WasDown : 0);
    const std::size_t nBefore = platform::QueuedMessages();
    Dispatch(hFocus, WM_KEYDOWN, static_cast<WPARAM>(nKey), lParam);
    const bool bChar = platform::QueuedMessages() > nBefore;
    MSG msgChar;
    if (bChar && ::PeekMessageA(&msgChar, nullptr, WM_CHAR, WM_CHAR, PM_REMOVE)) {
        Deliver(msgChar);
    }
}

void CStage::SendKeyUp(int nKey) {
    SetBothKeys(nKey, false);
    Dispatch(::GetFocus(), WM_KEYUP, static_cast<WPARAM>(nKey), OneRepeat | WasDown | GoesUp);
}

void CStage::KeyDown(int nKey, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    SendKeyDown(nKey);
}

void CStage::KeyUp(int nKey, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    SendKeyUp(nKey);
}

void CStage::Key(int nKey, int nTimes, Ctrl ctrl) {
    CCtrlScope held(ctrl);
    for (int n = 0; n < nTimes; n++) {
        SendKeyDown(nKey);
    }
    SendKeyUp(nKey);
}

void CStage::Char(unsigned nCode) { Dispatch(::GetFocus(), WM_CHAR, nCode, OneRepeat); }

void CStage::Type(const std::string& bytes) {
    for (const char c : bytes) {
        if (c == '\n' || c == '\t') {
            Key(c == '\n' ? VK_RETURN : VK_TAB);
        } else {
            Char(static_cast<unsigned char>(c));
        }
    }
}

void CStage::Hold(int nKey, KeyStates states) {
    if (states != KeyStates::Sync) {
        platform::SetAsyncKey(nKey, true);
    }
    if (states != KeyStates::Async) {
        platform::SetSyncKey(nKey, true);
    }
}

void CStage::LetGo(int nKey) { SetBothKeys(nKey, false); }

void CStage::AddAccelerator(int nKey, Ctrl ctrl) { m_accelerators.push_back({nKey, ctrl}); }

bool CStage::FireAccelerator(int nKey) {
    const Ctrl ctrl = ::GetKeyState(VK_CONTROL) < 0 ? Ctrl::Down : Ctrl::Up;
    const bool bFires =
        std::any_of(m_accelerators.begin(), m_accelerators.end(), [&](const Accelerator& accelerator) {
            return accelerator.nKey == nKey && accelerator.ctrl == ctrl;
        });
    if (bFires) {
        trace::Call("frame", "Accelerator", {nKey, ctrl == Ctrl::Down ? 1 : 0});
    }
    return bFires;
}

void CStage::FocusView() { m_desk.View()->SetFocus(); }

void CStage::FocusNone() { ::SetFocus(nullptr); }

void CStage::QueuePress(CPoint point) {
    SetButton(true);
    PostMouse(WM_LBUTTONDOWN, point);
}

void CStage::QueueMove(CPoint point) { PostMouse(WM_MOUSEMOVE, point); }

void CStage::QueueRelease(CPoint point) {
    SetButton(false);
    PostMouse(WM_LBUTTONUP, point);
}

void CStage::QueueKeyDown(int nKey) {
    if (HWND hFocus = ::GetFocus()) {
        platform::PostKey(hFocus, WM_KEYDOWN, static_cast<WPARAM>(nKey), OneRepeat);
    }
}

// Posted messages come first, so while one waits the next one taken is such a one.
void CStage::Pump(int nCount) {
    MSG msg;
    while (nCount != 0 && platform::QueuedMessages() > 0 && ::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        Deliver(msg);
        nCount--;
    }
    Paint();
}

void CStage::Wait(unsigned nMilliseconds) {
    for (;;) {
        const int nDue = platform::NextTimerDue();
        const bool bFires = nDue >= 0 && static_cast<unsigned>(nDue) <= nMilliseconds;
        const unsigned nStep = bFires ? static_cast<unsigned>(nDue) : nMilliseconds;
        m_clock.Advance(nStep);
        nMilliseconds -= nStep;
        DispatchAll(WM_TIMER);
        if (!bFires) {
            break;
        }
    }
    Paint();
}

void CStage::Paint() {
    trace::CQuietScope quiet;
    DispatchAll(WM_PAINT);
}
