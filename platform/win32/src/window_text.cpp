#include "window_tree.h"

#include <algorithm>
#include <new>

namespace win32 {

LRESULT SetTitle(HWND handle, LPCSTR text) {
    Window* window = FindWindow(handle);
    if (!window) {
        return FALSE;
    }
    try {
        window->title = text ? text : "";
    } catch (const std::bad_alloc&) {
        return FailWith(ERROR_NOT_ENOUGH_MEMORY);
    }
    return TRUE;
}

LRESULT CopyText(const std::string& text, SIZE_T room, LPSTR out) {
    if (!out || room == 0) {
        return 0;
    }
    const SIZE_T length = std::min(text.size(), room - 1);
    std::copy_n(text.data(), length, out);
    out[length] = '\0';
    return static_cast<LRESULT>(length);
}

LRESULT CopyTitle(HWND handle, SIZE_T room, LPSTR out) {
    const Window* window = FindWindow(handle);
    return window ? CopyText(window->title, room, out) : 0;
}

LRESULT TitleLength(HWND handle) {
    const Window* window = FindWindow(handle);
    return window ? static_cast<LRESULT>(window->title.size()) : 0;
}

} // namespace win32

BOOL SetWindowTextA(HWND window, LPCSTR text) {
    return static_cast<BOOL>(SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextA(HWND window, LPSTR buffer, int size) {
    const WPARAM room = static_cast<WPARAM>(std::max(size, 0));
    return static_cast<int>(SendMessageA(window, WM_GETTEXT, room, reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthA(HWND window) {
    return static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
}
