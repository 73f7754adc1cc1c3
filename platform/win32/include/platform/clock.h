#pragma once

#include <windows.h>

#include <vector>

namespace platform {

struct IClock {
    /// Milliseconds since some start; wraps around.
    virtual DWORD Now() = 0;

  protected:
    ~IClock() = default;
};

/// A clock that moves only when told.
class CVirtualClock final : public IClock {
  public:
    DWORD Now() override { return m_dwNow; }
    void Advance(DWORD milliseconds) { m_dwNow += milliseconds; }

  private:
    DWORD m_dwNow = 0;
};

/// The clock is not owned; null sets the system's monotonic clock back, which is in force at the start.
/// Running timers count their next period from now on the new clock.
void SetClock(IClock* clock);

struct TimerInfo {
    HWND window;
    UINT_PTR id;
    UINT period;   ///< Milliseconds.
    DWORD nextDue; ///< On the clock in force.
};

/// The running timers in the order in which they were set.
std::vector<TimerInfo> ListTimers();
/// The milliseconds until the first timer is due: 0 when one is due already, -1 when none runs.
int NextTimerDue();

} // namespace platform
