#pragma once

#include <windows.h>

namespace win32 {

struct DueTimer {
    HWND window;
    UINT_PTR id;
    TIMERPROC procedure;
};

enum class Take { No, Yes };

/// The timer that has been due longest and passes the filter (null window: any); Take::Yes starts its next
/// period.
bool FindDueTimer(HWND filter, Take take, DueTimer* due);
/// Whether such a timer runs, so that a message may have its procedure called.
bool IsTimerProcedure(HWND window, UINT_PTR id, TIMERPROC procedure);
/// The window filter of the queue: `window` itself or one inside it; null lets any pass.
bool PassesWindowFilter(HWND filter, HWND window);

} // namespace win32
