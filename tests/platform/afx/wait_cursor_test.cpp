#include "platform/input.h"
#include "platform/observer.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr unsigned Arrow = 32512;
constexpr unsigned Wait = 32514;
constexpr unsigned SizeAll = 32646;

class WaitCursor : public testing::Test, protected platform::IObserver {
  protected:
    void SetUp() override {
        platform::SetObserver(this);
        ::SetCursor(::LoadCursorA(nullptr, IDC_ARROW));
    }
    void TearDown() override { platform::SetObserver(nullptr); }

    void OnInvalidate(HWND, const RECT*, BOOL) override {}
    void OnWaitCursor(int change) override { m_changes.push_back(change); }

    static unsigned Shown() { return platform::CursorId(::GetCursor()); }

    std::vector<int> m_changes;
};

} // namespace

TEST_F(WaitCursor, FormerCursorComesBackAfterTheOutermost) {
    CWinApp app;
    {
        const CWaitCursor outer;
        EXPECT_EQ(Shown(), Wait);
        {
            const CWaitCursor inner;
            EXPECT_EQ(Shown(), Wait);
        }
        EXPECT_EQ(Shown(), Wait);
    }
    EXPECT_EQ(Shown(), Arrow);
    EXPECT_EQ(m_changes, (std::vector<int>{1, 1, -1, -1}));
}

TEST_F(WaitCursor, RestoringShowsItAgainOnlyWhileOneIsOn) {
    CWinApp app;
    app.BeginWaitCursor();
    ::SetCursor(::LoadCursorA(nullptr, IDC_SIZEALL));
    EXPECT_EQ(Shown(), SizeAll);
    app.RestoreWaitCursor();
    EXPECT_EQ(Shown(), Wait);
    app.EndWaitCursor();
    EXPECT_EQ(Shown(), Arrow);
    EXPECT_EQ(m_changes, (std::vector<int>{1, -1}));
}

TEST_F(WaitCursor, OneEndTooManyDoesNotUnbalanceTheNext) {
    CWinApp app;
    app.BeginWaitCursor();
    app.EndWaitCursor();
    app.EndWaitCursor();

    app.BeginWaitCursor();
    EXPECT_EQ(Shown(), Wait);
    app.EndWaitCursor();
    EXPECT_EQ(Shown(), Arrow);
}

TEST_F(WaitCursor, NothingHappensWithoutAnApplication) {
    ASSERT_EQ(AfxGetApp(), nullptr);
    const CWaitCursor wait;

    EXPECT_EQ(Shown(), Arrow);
    EXPECT_TRUE(m_changes.empty());
}

TEST(Application, FirstOneIsCurrentWhileItLives) {
    {
        CWinApp first("first");
        CWinApp second("second");
        EXPECT_EQ(AfxGetApp(), &first);
        EXPECT_STREQ(AfxGetApp()->m_pszAppName, "first");
    }
    EXPECT_EQ(AfxGetApp(), nullptr);
}

TEST(Application, HandlesAreTheExecutablesUnlessSet) {
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandleA(nullptr));
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());

    const HINSTANCE hOther = reinterpret_cast<HINSTANCE>(static_cast<UINT_PTR>(4));
    AfxSetResourceHandle(hOther);
    EXPECT_EQ(AfxGetResourceHandle(), hOther);
    AfxSetResourceHandle(nullptr);
}
