#include "platform/clock.h"

#include "stage.h"

class Timers : public WindowStage {
  protected:
    Timers() { Log(WM_TIMER, "tick"); }

    std::string TicksAfter(DWORD milliseconds) {
        m_clock.Advance(milliseconds);
        Pump();
        return TakeLog();
    }
};

TEST_F(Timers, TickWhenThePeriodIsOverAndOnceForAllThatWereMissed) {
    SetTimer(Top("A"), 1, 100, nullptr);

    EXPECT_EQ(TicksAfter(99), "");
    EXPECT_EQ(TicksAfter(1), "A:tick");
    EXPECT_EQ(TicksAfter(1050), "A:tick");
    EXPECT_EQ(platform::NextTimerDue(), 100);
}

TEST_F(Timers, LongestDueComesFirst) {
    SetTimer(Top("A"), 1, 80, nullptr);
    SetTimer(Top("B"), 1, 50, nullptr);

    EXPECT_EQ(TicksAfter(90), "B:tick A:tick");
}

TEST_F(Timers, SettingAgainStartsThePeriodAnew) {
    const HWND top = Top("A");
    SetTimer(top, 1, 100, nullptr);
    TicksAfter(60);

    SetTimer(top, 1, 100, nullptr);

    EXPECT_EQ(platform::ListTimers().size(), 1U);
    EXPECT_EQ(TicksAfter(60), "");
    EXPECT_EQ(TicksAfter(40), "A:tick");
}

TEST_F(Timers, KilledOneThatIsDueNeverComes) {
    const HWND top = Top("A");
    SetTimer(top, 1, 100, nullptr);
    m_clock.Advance(100);

    EXPECT_TRUE(KillTimer(top, 1));
    EXPECT_FALSE(KillTimer(top, 1));

    EXPECT_EQ(TicksAfter(0), "");
    EXPECT_EQ(platform::NextTimerDue(), -1);
}

TEST_F(Timers, GoWithTheirWindowAndTakeTenMillisecondsAtLeast) {
    const HWND top = Top("A");
    SetTimer(top, 1, 100, nullptr);

    DestroyWindow(top);

    EXPECT_TRUE(platform::ListTimers().empty());
    EXPECT_EQ(SetTimer(top, 1, 100, nullptr), 0U);
    SetTimer(Top("B"), 1, 0, nullptr);
    EXPECT_EQ(platform::NextTimerDue(), 10);
}

namespace {

DWORD g_tickTime;

} // namespace

TEST_F(Timers, ProcedureIsCalledInsteadOfTheWindow) {
    const TIMERPROC procedure = [](HWND, UINT, UINT_PTR, DWORD time) { g_tickTime = time; };
    const UINT_PTR id = SetTimer(nullptr, 0, 100, procedure);
    ASSERT_NE(id, 0U);
    g_tickTime = 0;

    TicksAfter(100);

    EXPECT_EQ(g_tickTime, 100U);
    EXPECT_TRUE(KillTimer(nullptr, id));
}
