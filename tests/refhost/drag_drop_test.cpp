#include <functional>
#include <map>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "host/drag_drop.h"
#include "platform/clipboard.h"
#include "platform/input.h"
#include "refhost_help.h"
#include "services/drag_host.h"

using refhost_help::CFaultScope;

namespace {

/// A window that drags and takes drops and writes down what it is told. `hooks` run inside the callback of
/// their name, which may delete the window.
class CDragWnd : public CWnd, public CDragDropTarget, public CDragDropSource {
  public:
    CDragWnd(std::string& log, const char* pszName, CWnd* pParent, const CRect& rect)
        : m_log(log), m_name(pszName) {
        CreateEx(0, AfxRegisterWndClass(0), "", (pParent ? WS_CHILD : WS_POPUP) | WS_VISIBLE, rect, pParent,
                 0);
        m_fnSetAllowedDragOperation(drop_effect::Copy | drop_effect::Move);
    }
    CDragWnd& Drags() {
        m_fnSetDragWindow(this);
        m_fnEnableDragOperation(1);
        return *this;
    }
    CDragWnd& TakesDrops() {
        m_fnSetDropWindow(this);
        m_fnEnableDropOperation(1);
        return *this;
    }

    int m_fnOnPrepareDrag(CPoint& point) override {
        const int nAnswer = point.x < 50;
        Hook("prepare");
        return nAnswer;
    }
    int m_fnOnPrepareDragData_CF_TEXT(CPoint&, CString& strData) override {
        strData = strText;
        Hook("data");
        return 1;
    }
    int m_fnOnDataArrive(int, int nPhase, UINT nFormat, CString& strData, DWORD dwKeyState, CPoint point,
                         DWORD dwSource, DWORD* pdwEffect) override {
        Note((nPhase == drop_phase::Drop ? "ask " : "over ") + Text(point) + " " + std::to_string(nFormat) +
             " " + static_cast<LPCSTR>(strData) + " k" + std::to_string(dwKeyState) + " s" +
             std::to_string(dwSource));
        *pdwEffect = dwWants;
        Hook(nPhase == drop_phase::Drop ? "ask" : "over");
        return nPhase == drop_phase::Drop;
    }
    void m_fnOnDataArrive_CF_TEXT(int, CString& strData, DWORD, DWORD* pdwEffect) override {
        Note(std::string("text ") + static_cast<LPCSTR>(strData));
        *pdwEffect = dwWants;
        Hook("text");
    }
    void m_fnOnDragLeave() override {
        Note("leave");
        Hook("leave");
    }

    std::map<std::string, std::function<void()>> hooks;
    DWORD dwWants = drop_effect::Move;
    CString strText = "hello";

  protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        switch (nMessage) {
        case WM_LBUTTONDOWN: Note("down " + Text(point)); return Hook("down"), 0;
        case WM_LBUTTONUP: Note("up " + Text(point)); return 0;
        case WM_MOUSEMOVE: Note("move " + Text(point)); return 0;
        case WM_KEYDOWN: Note("key"); return 0;
        case WM_CAPTURECHANGED: Note("capture"); return 0;
        default: return CWnd::WindowProc(nMessage, wParam, lParam);
        }
    }

  private:
    static std::string Text(CPoint point) { return std::to_string(point.x) + "," + std::to_string(point.y); }
    void Note(const std::string& word) { m_log += "[" + m_name + " " + word + "]"; }
    void Hook(const char* pszName) {
        if (const auto hook = hooks.find(pszName); hook != hooks.end()) {
            const auto action = hook->second;
            action();
        }
    }

    std::string& m_log;
    std::string m_name;
};

/// Two windows side by side in a third: the left one drags, both take drops.
struct Windows {
    Windows() {
        pFrom->Drags().TakesDrops();
        pTo->TakesDrops();
    }
    void DeleteAll() {
        pFrom.reset();
        pTo.reset();
        pTop.reset();
    }
    // All in client pixels of `from`, where the pointer is captured.
    void Send(UINT nMessage, CPoint point, WPARAM keys) const {
        ::SendMessageA(hFrom, nMessage, keys,
                       MAKELPARAM(static_cast<ULONG_PTR>(point.x), static_cast<ULONG_PTR>(point.y)));
    }
    void Press(CPoint point) const { Send(WM_LBUTTONDOWN, point, MK_LBUTTON); }
    void Move(CPoint point) const { Send(WM_MOUSEMOVE, point, MK_LBUTTON); }
    void Release(CPoint point) const { Send(WM_LBUTTONUP, point, 0); }
    std::string TakeLog() { return std::exchange(log, ""); }

    std::string log;
    std::unique_ptr<CDragWnd> pTop{new CDragWnd(log, "top", nullptr, CRect(100, 50, 500, 250))};
    std::unique_ptr<CDragWnd> pFrom{new CDragWnd(log, "from", pTop.get(), CRect(10, 20, 110, 120))};
    std::unique_ptr<CDragWnd> pTo{new CDragWnd(log, "to", pTop.get(), CRect(200, 20, 300, 120))};
    const HWND hFrom = pFrom->m_hWnd;
};

class Dragging : public testing::Test, protected Windows {
  protected:
    ~Dragging() override { platform::ResetInput(); }
};

} // namespace

TEST_F(Dragging, APressReleasedInItsPlaceIsAPlainClick) {
    const unsigned nDrags = DragCount();

    Press({10, 10});
    Move({13, 7});
    EXPECT_EQ("", TakeLog());
    EXPECT_EQ(hFrom, ::GetCapture());
    Release({12, 11});

    EXPECT_EQ("[from down 10,10][from up 12,11]", TakeLog());
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(nDrags, DragCount());
}

TEST_F(Dragging, APressOutsideTheTextOrWithDraggingOffIsTheWindows) {
    Press({50, 10});
    EXPECT_EQ("[from down 50,10]", TakeLog());

    pFrom->m_fnEnableDragOperation(0);
    Press({10, 10});
    EXPECT_EQ("[from down 10,10]", TakeLog());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(Dragging, FourPixelsInOneDirectionBegin) {
    struct Row {
        CPoint to;
        bool bBegins;
    };
    for (const Row& row : {Row{{13, 13}, false}, {{14, 10}, true}, {{10, 6}, true}, {{7, 7}, false}}) {
        Press({10, 10});
        Move(row.to);
        EXPECT_EQ(row.bBegins, !TakeLog().empty()) << row.to.x << "," << row.to.y;
        Release({10, 10});
        TakeLog();
    }
}

TEST_F(Dragging, TheTextGoesFromOneWindowToAnother) {
    const unsigned nDrags = DragCount();

    Press({10, 10});
    Move({20, 10});
    EXPECT_EQ("[from over 20,10 1 hello k1 s0]", TakeLog());
    // The windows stand 190 pixels apart.
    platform::SetSyncKey(VK_CONTROL, true);
    Move({200, 15});
    EXPECT_EQ("[from leave][to over 10,15 1 hello k9 s1]", TakeLog());
    platform::SetSyncKey(VK_CONTROL, false);
    Release({201, 15});

    EXPECT_EQ("[to ask 11,15 1 hello k0 s1][to text hello]", TakeLog());
    EXPECT_EQ(drop_effect::Move, LastDragEffect());
    EXPECT_EQ(nDrags + 1, DragCount());
    EXPECT_EQ(nullptr, ::GetCapture());
    Move({200, 15});
    EXPECT_EQ("[from move 200,15]", TakeLog());
}

TEST_F(Dragging, OutsideEveryTargetTheTextGoesNowhere) {
    Press({10, 10});
    Move({20, 10});
    Move({150, 10});
    TakeLog();
    Release({150, 10});

    EXPECT_EQ("", TakeLog());
    EXPECT_EQ(drop_effect::None, LastDragEffect());
}

TEST_F(Dragging, AParentTakesWhatItsChildHasNoEnabledTargetFor) {
    pTop->TakesDrops();
    pTo->m_fnEnableDropOperation(0);

    Press({10, 10});
    Move({200, 15});

    EXPECT_EQ("[top over 210,35 1 hello k1 s1]", TakeLog());
}

TEST_F(Dragging, EscapeAndALostCaptureGiveUp) {
    const auto escape = [this] { ::SendMessageA(hFrom, WM_KEYDOWN, VK_ESCAPE, 1); };
    for (const std::function<void()>& giveUp :
         {std::function<void()>(escape), {[] { ::ReleaseCapture(); }}}) {
        Press({10, 10});
        Move({20, 10});
        TakeLog();

        giveUp();

        EXPECT_EQ("[from leave]", TakeLog());
        EXPECT_EQ(nullptr, ::GetCapture());
        EXPECT_EQ(drop_effect::None, LastDragEffect());
        Release({20, 10});
        EXPECT_EQ("[from up 20,10]", TakeLog());
    }
    escape();
    EXPECT_EQ("[from key]", TakeLog());
}

TEST_F(Dragging, AnEffectThatIsNotAllowedDeliversNothing) {
    pFrom->m_fnSetAllowedDragOperation(drop_effect::Copy);

    Press({10, 10});
    Move({200, 15});
    Release({200, 15});
    EXPECT_EQ("[to over 10,15 1 hello k1 s1][to ask 10,15 1 hello k0 s1]", TakeLog());
    EXPECT_EQ(drop_effect::None, LastDragEffect());

    pTo->dwWants = drop_effect::Copy;
    Press({10, 10});
    Move({200, 15});
    Release({200, 15});
    EXPECT_EQ(drop_effect::Copy, LastDragEffect());
}

TEST(DragCallbacks, EverythingMayBeDeletedInsideEveryCallback) {
    struct Row {
        std::unique_ptr<CDragWnd> Windows::*pWindow;
        const char* pszCallback;
        CPoint to; ///< where the pointer goes before the release
    };
    const auto pFrom = &Windows::pFrom;
    const auto pTo = &Windows::pTo;
    for (const Row& row : {Row{pFrom, "prepare", {200, 10}},
                           {pFrom, "data", {200, 10}},
                           {pFrom, "over", {20, 10}},
                           {pFrom, "leave", {200, 10}},
                           {pTo, "over", {200, 10}},
                           {pTo, "ask", {200, 10}},
                           {pTo, "text", {200, 10}},
                           {pFrom, "down", {11, 10}}}) {
        Windows windows;
        (windows.*row.pWindow)->hooks[row.pszCallback] = [&windows] { windows.DeleteAll(); };

        windows.Press({10, 10});
        windows.Move({10 + (row.to.x - 10) / 16, 10});
        windows.Move(row.to);
        windows.Release(row.to);

        EXPECT_EQ(nullptr, windows.pFrom) << row.pszCallback;
        EXPECT_EQ(nullptr, ::GetCapture()) << row.pszCallback;
    }
}

TEST_F(Dragging, TheWindowGetsItsProcedureBack) {
    const LONG_PTR before = ::GetWindowLongPtrA(pTo->m_hWnd, GWLP_WNDPROC);
    pTo->m_fnSetDragWindow(pTo.get());
    EXPECT_NE(before, ::GetWindowLongPtrA(pTo->m_hWnd, GWLP_WNDPROC));
    pTo->m_fnSetDragWindow(nullptr);
    EXPECT_EQ(before, ::GetWindowLongPtrA(pTo->m_hWnd, GWLP_WNDPROC));

    Press({10, 10});
    Move({20, 10});
    pFrom->m_fnSetDragWindow(nullptr);
    EXPECT_EQ(before, ::GetWindowLongPtrA(hFrom, GWLP_WNDPROC));
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(Dragging, ALaterTargetReplacesTheFormer) {
    CPoint point(3, 4);
    pFrom->m_fnSetDropWindow(pTo.get());

    DWORD dwEffect = 7;
    EXPECT_EQ(1, DropText(pTo->m_hWnd, point, "x", DropFormatText, MK_CONTROL, drop_source::Own,
                          drop_phase::Drop, &dwEffect));

    EXPECT_EQ("[from ask 3,4 1 x k8 s0][from text x]", TakeLog());
    EXPECT_EQ(drop_effect::Move, dwEffect);
    // The former has no window any more, the later one left its own.
    EXPECT_EQ(0, pTo->m_fnPasteClipboardData(point));
    EXPECT_EQ(-1, DropText(hFrom, point, "x", DropFormatText, 0, 0, drop_phase::Over, &dwEffect));
    EXPECT_EQ(drop_effect::None, dwEffect);
}

TEST_F(Dragging, ATextFromOutsideHoversAndLeaves) {
    DWORD dwEffect = 0;

    EXPECT_EQ(0, DropText(hFrom, {3, 4}, "x", 15, 0, drop_source::Foreign, drop_phase::Over, &dwEffect));
    LeaveDrop(hFrom);

    EXPECT_EQ("[from over 3,4 15 x k0 s1][from leave]", TakeLog());
    EXPECT_EQ(drop_effect::Move, dwEffect);
}

TEST_F(Dragging, TheClipboardCarriesATextToItsFirstZero) {
    CPoint point(5, 6);
    pFrom->strText = CString("ab\r\nc\0d", 7);

    EXPECT_EQ(1, pFrom->m_fnIsCopyToClipboardEnabled(point));
    EXPECT_EQ(1, pFrom->m_fnCopyDataToClipboard(point));
    EXPECT_EQ(1, pTo->m_fnIsPasteFromClipboardEnabled(point));
    EXPECT_EQ(1, pTo->m_fnPasteClipboardData(point));

    EXPECT_EQ("ab\r\nc", platform::ClipboardText());
    EXPECT_EQ("[to ask 5,6 1 ab\r\nc k0 s1][to text ab\r\nc]", TakeLog());
    pTo->m_fnEnableDropOperation(0);
    EXPECT_EQ(0, pTo->m_fnIsPasteFromClipboardEnabled(point));
    EXPECT_EQ(0, pTo->m_fnPasteClipboardData(point));
}

TEST_F(Dragging, AFailedCopyLeavesTheClipboard) {
    CPoint point(5, 6);
    platform::SetClipboardText("kept");

    pFrom->strText = "";
    EXPECT_EQ(0, pFrom->m_fnCopyDataToClipboard(point));
    pFrom->strText = "new";
    pFrom->m_fnEnableDragOperation(0);
    EXPECT_EQ(0, pFrom->m_fnCopyDataToClipboard(point));
    EXPECT_EQ(0, pFrom->m_fnIsCopyToClipboardEnabled(point));
    pFrom->m_fnEnableDragOperation(1);
    {
        const CFaultScope fault("record");
        EXPECT_EQ(0, pFrom->m_fnCopyDataToClipboard(point));
    }
    EXPECT_EQ("kept", platform::ClipboardText());
}
