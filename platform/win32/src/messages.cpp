#include "input_state.h"
#include "timers.h"
#include "window_tree.h"

namespace win32 {

namespace {

LRESULT EraseBackground(HWND handle, HDC dc) {
    const Window* window = g_windows.Find(handle);
    const HBRUSH brush = window ? window->windowClass->record.hbrBackground : nullptr;
    RECT area;
    if (!brush || GetClipBox(dc, &area) == ERROR_REGION) {
        return FALSE;
    }
    FillRect(dc, &area, brush);
    return TRUE;
}

// Children decide before their parents; where none sets a cursor the class of the window under the pointer
// does.
LRESULT SetClassCursor(HWND handle, WPARAM wParam, LPARAM lParam) {
    const Window* window = g_windows.Find(handle);
    if (!window) {
        return FALSE;
    }
    if (window->parent && SendMessageA(window->parent->handle, WM_SETCURSOR, wParam, lParam)) {
        return TRUE;
    }
    window = g_windows.Find(handle);
    if (!window || handle != reinterpret_cast<HWND>(wParam) ||
        LOWORD(static_cast<ULONG_PTR>(lParam)) != HTCLIENT) {
        return FALSE;
    }
    if (window->windowClass->record.hCursor) {
        SetCursor(window->windowClass->record.hCursor);
    }
    return FALSE;
}

} // namespace

} // namespace win32

using namespace win32;

LRESULT SendMessageA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    const Window* window = FindWindow(handle);
    // Nothing of the window may be touched after the call: its handler may have destroyed it.
    return window ? window->procedure(handle, message, wParam, lParam) : 0;
}

LRESULT CallWindowProcA(WNDPROC procedure, HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    return procedure ? procedure(handle, message, wParam, lParam) : 0;
}

LRESULT DispatchMessageA(const MSG* message) {
    if (!message) {
        return 0;
    }
    NoteKeyMessage(message->message, message->wParam);
    if (message->message == WM_TIMER && message->lParam) {
        const TIMERPROC procedure = reinterpret_cast<TIMERPROC>(message->lParam);
        if (IsTimerProcedure(message->hwnd, message->wParam, procedure)) {
            procedure(message->hwnd, WM_TIMER, message->wParam, GetTickCount());
        }
        return 0;
    }
    return message->hwnd ? SendMessageA(message->hwnd, message->message, message->wParam, message->lParam)
                         : 0;
}

LRESULT DefWindowProcA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        if (lParam) {
            SetTitle(handle, reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName);
        }
        return TRUE;
    case WM_SETTEXT: return SetTitle(handle, reinterpret_cast<LPCSTR>(lParam));
    case WM_GETTEXT: return CopyTitle(handle, wParam, reinterpret_cast<LPSTR>(lParam));
    case WM_GETTEXTLENGTH: return TitleLength(handle);
    case WM_ERASEBKGND: return EraseBackground(handle, reinterpret_cast<HDC>(wParam));
    case WM_PAINT: {
        PAINTSTRUCT paint;
        if (BeginPaint(handle, &paint)) {
            EndPaint(handle, &paint);
        }
        return 0;
    }
    case WM_SETCURSOR: return SetClassCursor(handle, wParam, lParam);
    case WM_NCHITTEST: return HTCLIENT;
    case WM_CLOSE: DestroyWindow(handle); return 0;
    default: return 0;
    }
}
