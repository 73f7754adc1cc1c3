#include "platform/input.h"
#include "platform/observer.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr unsigned Arrow = 32512;
constexpr unsigned Wait = 32514;

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

TEST_F(WaitCursor, RestoringShowsItAgainAndOneEndTooManyDoesNotUnbalanceTheNext) {
    CWinApp app;
    for (int n = 0; n < 2; ++n) {
        app.BeginWaitCursor();
        ::SetCursor(::LoadCursorA(nullptr, IDC_SIZEALL));
        app.RestoreWaitCursor();
        EXPECT_EQ(Shown(), Wait);
        app.EndWaitCursor();
        EXPECT_EQ(Shown(), Arrow);
        app.EndWaitCursor();
    }
    EXPECT_EQ(m_changes, (std::vector<int>{1, -1, -1, 1, -1, -1}));
}

TEST_F(WaitCursor, NothingHappensWithoutAnApplicationAndTheFirstIsCurrent) {
    {
        const CWinApp first;
        const CWinApp second;
        EXPECT_EQ(AfxGetApp(), &first);
    }
    ASSERT_EQ(AfxGetApp(), nullptr);
    const CWaitCursor wait;

    EXPECT_EQ(Shown(), Arrow);
    EXPECT_TRUE(m_changes.empty());
}
