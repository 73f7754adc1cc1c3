#pragma once

#include <windows.h>

namespace platform {

/// Is told of calls made on windows and of wait cursors. Called in the middle of the call, before its effect.
struct IObserver {
    /// InvalidateRect was called; `rect` is in client pixels, null for the whole client area.
    virtual void OnInvalidate(HWND window, const RECT* rect, BOOL erase) = 0;
    /// +1: a wait cursor was shown; -1: it was taken back.
    virtual void OnWaitCursor(int change) = 0;

  protected:
    ~IObserver() = default;
};

/// The observer is not owned; null, the start value, means none.
void SetObserver(IObserver* observer);
IObserver* GetObserver();

} // namespace platform
