#include "timers.h"
#include "window_tree.h"

#include "platform/clock.h"

#include <algorithm>
#include <chrono>

namespace win32 {

struct Timer {
    HWND window;
    UINT_PTR id;
    UINT period;
    DWORD due;
    TIMERPROC procedure;
};

namespace {

platform::IClock* g_clock = nullptr;

// Windowless timers are numbered from here on, away from the small numbers that windows use.
UINT_PTR g_nextFreeId = 0x7000;

std::vector<Timer>& Timers() {
    static auto& timers = *new std::vector<Timer>;
    return timers;
}

// Milliseconds until `due`, negative once it is past; right across the wrap of the clock.
int Until(DWORD due) { return static_cast<int>(due - GetTickCount()); }

Timer* FindTimer(HWND window, UINT_PTR id) {
    auto& timers = Timers();
    const auto found = std::find_if(timers.begin(), timers.end(),
                                    [=](const Timer& t) { return t.window == window && t.id == id; });
    return found == timers.end() ? nullptr : &*found;
}

void StartNextPeriod(Timer& timer) {
    timer.due += timer.period;
    if (Until(timer.due) <= 0) {
        timer.due = GetTickCount() + timer.period;
    }
}

} // namespace

bool FindDueTimer(HWND filter, Take take, DueTimer* due) {
    Timer* found = nullptr;
    for (Timer& timer : Timers()) {
        const int until = Until(timer.due);
        if (until <= 0 && (!found || until < Until(found->due)) && PassesWindowFilter(filter, timer.window)) {
            found = &timer;
        }
    }
    if (!found) {
        return false;
    }
    *due = {found->window, found->id, found->procedure};
    if (take == Take::Yes) {
        StartNextPeriod(*found);
    }
    return true;
}

bool IsTimerProcedure(HWND window, UINT_PTR id, TIMERPROC procedure) {
    const Timer* timer = FindTimer(window, id);
    return timer && timer->procedure == procedure;
}

void ForgetTimers(HWND handle) {
    std::erase_if(Timers(), [handle](const Timer& t) { return t.window == handle; });
}

} // namespace win32

using namespace win32;

void platform::SetClock(IClock* clock) {
    g_clock = clock;
    for (Timer& timer : Timers()) {
        timer.due = GetTickCount() + timer.period;
    }
}

std::vector<platform::TimerInfo> platform::ListTimers() {
    std::vector<TimerInfo> list;
    for (const Timer& timer : Timers()) {
        list.push_back({timer.window, timer.id, timer.period, timer.due});
    }
    return list;
}

int platform::NextTimerDue() {
    int next = -1;
    for (const Timer& timer : Timers()) {
        const int until = std::max(Until(timer.due), 0);
        next = next < 0 ? until : std::min(next, until);
    }
    return next;
}

DWORD GetTickCount() {
    if (g_clock) {
        return g_clock->Now();
    }
    using namespace std::chrono;
    return static_cast<DWORD>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    if (window && !FindWindow(window)) {
        return 0;
    }
    const UINT period = std::clamp(milliseconds, USER_TIMER_MINIMUM, static_cast<UINT>(INT32_MAX));
    Timer* running = FindTimer(window, id);
    const UINT_PTR given = window || running ? id : g_nextFreeId++;
    const Timer timer = {window, given, period, GetTickCount() + period, procedure};
    if (running) {
        *running = timer;
    } else {
        Timers().push_back(timer);
    }
    return window && id == 0 ? 1 : given;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    const auto gone =
        std::erase_if(Timers(), [=](const Timer& t) { return t.window == window && t.id == id; });
    return gone > 0 ? TRUE : FailWith(ERROR_INVALID_PARAMETER);
}
