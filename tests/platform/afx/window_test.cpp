#include "memory_shortage.h"

#include "platform/faults.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

constexpr UINT WM_PROBE = WM_USER + 5;

using Log = std::vector<std::string>;

std::string Words(const char* name, std::initializer_list<long long> numbers) {
    std::string text(name);
    for (long long number : numbers) {
        text += ' ' + std::to_string(number);
    }
    return text;
}

class CProbeWnd : public CWnd {
  public:
    Log m_log;
    CWnd* m_pOther = nullptr;

    bool CreateTop(DWORD dwStyle = 0) {
        return CreateEx(0, nullptr, "probe", WS_POPUP | dwStyle, CRect(100, 50, 300, 150), nullptr, 0);
    }

  protected:
    int OnCreate(LPCREATESTRUCT lpcs) {
        m_log.push_back(Words("create", {lpcs->cx, lpcs->cy}));
        return CWnd::OnCreate(lpcs);
    }
    void OnDestroy() { m_log.push_back("destroy"); }
    void PostNcDestroy() override { m_log.push_back(!m_hWnd ? "gone" : "still there"); }
    void OnSize(UINT nType, int cx, int cy) { m_log.push_back(Words("size", {nType, cx, cy})); }
    void OnSetFocus(CWnd* pOld) { m_pOther = pOld; }
    void OnKillFocus(CWnd* pNew) { m_pOther = pNew; }
    void OnCaptureChanged(CWnd* pNew) { m_pOther = pNew; }
    void OnMouseMove(UINT nFlags, CPoint point) {
        m_log.push_back(Words("move", {nFlags, point.x, point.y}));
    }
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
        m_log.push_back(Words("key", {nChar, nRepCnt, nFlags}));
    }
    void OnTimer(UINT nIDEvent) { m_log.push_back(Words("timer", {nIDEvent})); }
    BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
        m_log.push_back(Words("cursor", {pWnd == this, nHitTest, message}));
        return TRUE;
    }
    LRESULT OnProbe(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) * 100 + lParam; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CProbeWnd, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_CAPTURECHANGED()
ON_WM_MOUSEMOVE()
ON_WM_KEYDOWN()
ON_WM_TIMER()
ON_WM_SETCURSOR()
ON_MESSAGE(WM_PROBE, OnProbe)
END_MESSAGE_MAP()

// Overrides one handler, inherits the rest, and says so by calling its base.
class CDerivedWnd : public CProbeWnd {
  protected:
    void OnMouseMove(UINT nFlags, CPoint point) {
        m_log.push_back("derived");
        CProbeWnd::OnMouseMove(nFlags, point);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedWnd, CProbeWnd)
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

// Ends itself in the middle of a press: by its window, or with the right button as an object. Owned by
// nobody.
class CSelfEndingWnd : public CWnd {
  public:
    CSelfEndingWnd() { ++s_nAlive; }
    ~CSelfEndingWnd() override { --s_nAlive; }

    static inline int s_nAlive = 0;

  protected:
    void OnLButtonDown(UINT, CPoint) { DestroyWindow(); }
    void OnRButtonDown(UINT, CPoint) { delete this; }
    void PostNcDestroy() override { delete this; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSelfEndingWnd, CWnd)
ON_WM_LBUTTONDOWN()
ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

class CRefusingWnd : public CProbeWnd {
  protected:
    int OnCreate(LPCREATESTRUCT) { return -1; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CRefusingWnd, CProbeWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

LRESULT CALLBACK PlainProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_PROBE ? 42 : ::DefWindowProcA(hWnd, message, wParam, lParam);
}

LPCSTR PlainClass() {
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = &PlainProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.lpszClassName = "PlainProbe";
    ::RegisterClassA(&windowClass); // Refused, harmlessly, from the second time on.
    return windowClass.lpszClassName;
}

HWND CreatePlain() {
    return ::CreateWindowExA(0, PlainClass(), "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                             AfxGetInstanceHandle(), nullptr);
}

} // namespace

TEST(Window, CreationAndEndReachTheirHandlers) {
    CProbeWnd wnd;

    ASSERT_TRUE(wnd.CreateTop());
    EXPECT_TRUE(wnd.DestroyWindow());

    EXPECT_EQ(wnd.m_log, (Log{"create 200 100", "size 0 200 100", "destroy", "gone"}));
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(Window, HandleLeadsToItsObjectWhileItLives) {
    HWND hWnd = nullptr;
    {
        CProbeWnd wnd;
        ASSERT_TRUE(wnd.CreateTop());
        hWnd = wnd.m_hWnd;
        EXPECT_EQ(CWnd::FromHandle(hWnd), &wnd);
    }
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
}

TEST(Window, ForeignWindowHasATemporaryObject) {
    const HWND hWnd = CreatePlain();

    CWnd* const pTemporary = CWnd::FromHandle(hWnd);
    ASSERT_NE(pTemporary, nullptr);
    EXPECT_EQ(CWnd::FromHandle(hWnd), pTemporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);

    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(hWnd));
    ::DestroyWindow(hWnd);
}

TEST(Window, ManyHandlesKeepTheirObjectsApart) {
    // Squares, so that the values crowd in some places of a table.
    const auto handleOf = [](std::size_t n) { return reinterpret_cast<HWND>((n + 1) * (n + 1) * 4); };
    std::vector<std::unique_ptr<CWnd>> wnds;
    for (std::size_t n = 0; n < 1000; ++n) {
        wnds.push_back(std::make_unique<CWnd>());
        ASSERT_TRUE(wnds.back()->Attach(handleOf(n)));
    }

    for (std::size_t n = 0; n < 1000; n += 3) {
        wnds[n]->Detach();
    }

    for (std::size_t n = 0; n < 1000; ++n) {
        EXPECT_EQ(CWnd::FromHandlePermanent(handleOf(n)), n % 3 == 0 ? nullptr : wnds[n].get());
    }
    for (const auto& pWnd : wnds) {
        pWnd->Detach();
    }
}

TEST(Window, FailedCreationEndsTheObjectOnce) {
    CProbeWnd wnd;
    platform::ArmFault("window", true, 0);
    EXPECT_FALSE(wnd.CreateTop());
    platform::ClearFaults();
    EXPECT_EQ(wnd.m_log, (Log{"gone"}));

    CRefusingWnd refusing;
    EXPECT_FALSE(refusing.CreateTop());
    EXPECT_EQ(refusing.m_log, (Log{"destroy", "gone"}));
    EXPECT_EQ(refusing.m_hWnd, nullptr);
}

TEST(Window, ClassOfAnotherProcedureStaysTheDefault) {
    CProbeWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, PlainClass(), "", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));

    EXPECT_EQ(wnd.SendMessage(WM_PROBE, 3, 4), 304);
    const HWND hWnd = wnd.Detach();
    EXPECT_EQ(::SendMessageA(hWnd, WM_PROBE, 3, 4), 42);
    ::DestroyWindow(hWnd);
}

TEST(Window, RegisteredClassesAreSharedByTheirValues) {
    const std::string first = AfxRegisterWndClass(CS_DBLCLKS);
    const std::string other = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW);

    EXPECT_EQ(AfxRegisterWndClass(CS_DBLCLKS), first);
    EXPECT_NE(first, other);
}

TEST(Window, RectanglesGoToTheScreenAndBack) {
    CProbeWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    CProbeWnd child;
    ASSERT_TRUE(child.Create(nullptr, "", 0, CRect(10, 20, 40, 60), &wnd, 77));

    CRect rect;
    child.GetClientRect(rect);
    child.ClientToScreen(rect);
    EXPECT_EQ(rect, CRect(110, 70, 140, 110));
    wnd.ScreenToClient(rect);
    EXPECT_EQ(rect, CRect(10, 20, 40, 60));
    EXPECT_EQ(child.GetDlgCtrlID(), 77);
}

TEST(Window, FrequentCallsAllocateNothing) {
    CProbeWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    const int nBefore = testing_memory::CountAllocations();

    for (int n = 0; n < 100; ++n) {
        CRect rect;
        wnd.GetClientRect(rect);
        wnd.InvalidateRect(rect);
        wnd.SendMessage(WM_PROBE, 1, 2);
        CWnd::FromHandle(wnd.m_hWnd);
    }

    EXPECT_EQ(testing_memory::CountAllocations(), nBefore);
}

TEST(MessageMap, ParametersArriveUnpacked) {
    CProbeWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    wnd.m_log.clear();

    wnd.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(0xFFFB, 9));
    wnd.SendMessage(WM_KEYDOWN, VK_LEFT, MAKELPARAM(2, 0x14B));
    wnd.SendMessage(WM_TIMER, 6, 0);
    const WPARAM self = reinterpret_cast<WPARAM>(wnd.m_hWnd);
    EXPECT_EQ(wnd.SendMessage(WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), 1);

    EXPECT_EQ(wnd.m_log, (Log{"move 1 -5 9", "key 37 2 331", "timer 6", "cursor 1 1 512"}));
    EXPECT_EQ(wnd.SendMessage(WM_PROBE, 5, 6), 506);
}

TEST(MessageMap, FocusAndCaptureNameTheOtherWindow) {
    CProbeWnd first;
    CProbeWnd second;
    ASSERT_TRUE(first.CreateTop(WS_VISIBLE));
    ASSERT_TRUE(second.CreateTop(WS_VISIBLE));

    first.SetFocus();
    EXPECT_EQ(second.SetFocus(), &first);
    EXPECT_EQ(first.m_pOther, &second);
    EXPECT_EQ(second.m_pOther, &first);
    EXPECT_EQ(CWnd::GetFocus(), &second);

    first.SetCapture();
    first.m_pOther = nullptr;
    EXPECT_EQ(second.SetCapture(), &first);
    EXPECT_EQ(first.m_pOther, &second);
    EXPECT_EQ(CWnd::GetCapture(), &second);
    ::ReleaseCapture();
}

TEST(MessageMap, DerivedHandlerComesFirstAndTheBaseServesTheRest) {
    CDerivedWnd wnd;
    ASSERT_TRUE(wnd.CreateTop());
    wnd.m_log.clear();

    wnd.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 2));
    wnd.SendMessage(WM_TIMER, 3, 0);

    EXPECT_EQ(wnd.m_log, (Log{"derived", "move 0 1 2", "timer 3"}));
}

TEST(MessageMap, WindowMayEndInsideItsOwnHandler) {
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN}) {
        auto* const pWnd = new CSelfEndingWnd;
        ASSERT_TRUE(pWnd->CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
        const HWND hWnd = pWnd->m_hWnd;

        EXPECT_EQ(::SendMessageA(hWnd, message, 0, 0), 0);

        EXPECT_EQ(CSelfEndingWnd::s_nAlive, 0);
        EXPECT_FALSE(::IsWindow(hWnd));
        EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    }
}
