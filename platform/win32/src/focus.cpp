#include "window_tree.h"

#include <utility>

namespace win32 {

namespace {

HWND g_focus = nullptr;
HWND g_capture = nullptr;

bool HoldsOrContains(HWND handle, HWND holder) {
    const Window* window = g_windows.Find(handle);
    const Window* held = g_windows.Find(holder);
    return window && held && (held == window || IsInside(*held, *window));
}

} // namespace

void YieldFocus(HWND handle) {
    if (HoldsOrContains(handle, g_focus)) {
        const Window* parent = g_windows.Find(handle)->parent;
        SetFocus(parent ? parent->handle : nullptr);
    }
}

void YieldCapture(HWND handle) {
    if (HoldsOrContains(handle, g_capture)) {
        ReleaseCapture();
    }
}

void ForgetFocus(HWND handle) {
    g_focus = g_focus == handle ? nullptr : g_focus;
    g_capture = g_capture == handle ? nullptr : g_capture;
}

} // namespace win32

using namespace win32;

HWND SetFocus(HWND handle) {
    if (handle && !FindWindow(handle)) {
        return nullptr;
    }
    const HWND before = std::exchange(g_focus, handle);
    if (before == handle) {
        return before;
    }
    if (before) {
        SendMessageA(before, WM_KILLFOCUS, reinterpret_cast<WPARAM>(handle), 0);
    }
    // The loser's handler may have passed the focus on.
    if (handle && g_focus == handle) {
        SendMessageA(handle, WM_SETFOCUS, reinterpret_cast<WPARAM>(before), 0);
    }
    return before;
}

HWND GetFocus() { return g_focus; }

HWND SetCapture(HWND handle) {
    if (!FindWindow(handle)) {
        return nullptr;
    }
    const HWND before = std::exchange(g_capture, handle);
    if (before && before != handle) {
        SendMessageA(before, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(handle));
    }
    return before;
}

BOOL ReleaseCapture() {
    const HWND before = std::exchange(g_capture, nullptr);
    if (before) {
        SendMessageA(before, WM_CAPTURECHANGED, 0, 0);
    }
    return TRUE;
}

HWND GetCapture() { return g_capture; }
