#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace {

/// Notes what it sees before dispatch, and deals with one message when told to.
class CWatchingWnd : public CWnd {
  public:
    CWatchingWnd(const char* pszName, std::string& log) : m_name(pszName), m_log(log) {}

    BOOL PreTranslateMessage(MSG* pMsg) override {
        m_log += m_name;
        if (m_bEndsHere) {
            DestroyWindow();
        }
        return pMsg->message == m_nOwn;
    }

    UINT m_nOwn = 0;
    bool m_bEndsHere = false;

  protected:
    void OnShowWindow(BOOL bShow, UINT nStatus) {
        m_log += bShow ? " shown" : " hidden";
        m_log += std::to_string(nStatus);
        CWnd::OnShowWindow(bShow, nStatus);
    }
    UINT OnGetDlgCode() { return CWnd::OnGetDlgCode() | DLGC_WANTALLKEYS; }

    DECLARE_MESSAGE_MAP()

  private:
    std::string m_name;
    std::string& m_log;
};

BEGIN_MESSAGE_MAP(CWatchingWnd, CWnd)
ON_WM_SHOWWINDOW()
ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

/// A top-level window, a child in it, and a child in that.
class PreTranslate : public testing::Test {
  public:
    PreTranslate() {
        m_top.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
        m_child.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &m_top, 1);
        m_grandchild.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &m_child, 1);
    }

    BOOL Offer(HWND hWnd, UINT message) {
        MSG msg = {hWnd, message, 0, 0, 0, {0, 0}};
        return AfxPreTranslateMessage(&msg);
    }

    std::string m_log;
    CWatchingWnd m_top{"top ", m_log};
    CWatchingWnd m_child{"child ", m_log};
    CWatchingWnd m_grandchild{"grandchild ", m_log};
};

} // namespace

TEST_F(PreTranslate, GoesUpUntilOneDealsWithIt) {
    EXPECT_FALSE(Offer(m_grandchild, WM_KEYDOWN));
    EXPECT_EQ(m_log, "grandchild child top ");

    m_log.clear();
    m_child.m_nOwn = WM_KEYDOWN;
    EXPECT_TRUE(Offer(m_grandchild, WM_KEYDOWN));
    EXPECT_EQ(m_log, "grandchild child ");
    EXPECT_FALSE(Offer(nullptr, WM_KEYDOWN));
    EXPECT_EQ(m_log, "grandchild child ");
}

TEST_F(PreTranslate, PassesWindowsWithoutAnObjectAndOwners) {
    const HWND hPopup = ::CreateWindowExA(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 5, 5, m_top, nullptr,
                                          AfxGetInstanceHandle(), nullptr);

    Offer(hPopup, WM_CHAR);

    EXPECT_EQ(m_log, "top ");
}

TEST_F(PreTranslate, EndsWithAWindowThatGoes) {
    m_grandchild.m_bEndsHere = true;

    EXPECT_FALSE(Offer(m_grandchild, WM_CHAR));

    EXPECT_EQ(m_log, "grandchild ");
}

TEST_F(PreTranslate, ShowingAndDialogCodesReachTheirHandlers) {
    m_top.ShowWindow(SW_SHOW);
    m_top.ShowWindow(SW_HIDE);

    EXPECT_EQ(m_log, " shown0 hidden0");
    EXPECT_EQ(m_top.SendMessage(WM_GETDLGCODE), 4);
}

TEST_F(PreTranslate, TitlesAreReadAndSet) {
    m_top.SetWindowText("a title");

    CString strTitle;
    m_top.GetWindowText(strTitle);
    EXPECT_EQ(strTitle, "a title");
    char buffer[4];
    EXPECT_EQ(m_top.GetWindowText(buffer, sizeof buffer), 3);
    EXPECT_STREQ(buffer, "a t");
    EXPECT_EQ(m_top.GetWindowTextLength(), 7);
}
