#include "input_state.h"
#include "timers.h"
#include "window_tree.h"

#include "platform/input.h"

#include <algorithm>
#include <deque>

namespace win32 {

struct Filter {
    HWND window;
    UINT first;
    UINT last;

    bool PassesMessage(UINT message) const {
        return (first == 0 && last == 0) || (message >= first && message <= last);
    }
    bool Passes(const MSG& message) const {
        return PassesMessage(message.message) && PassesWindowFilter(window, message.hwnd);
    }
};

// A quitting thread drains its queue first; the message is made on demand as those of paint and timers are.
struct Quit {
    bool posted = false;
    int exitCode = 0;
};

namespace {

Quit g_quit;
MSG g_lastTaken = {};

std::deque<MSG>& Posted() {
    static auto& posted = *new std::deque<MSG>;
    return posted;
}

} // namespace

bool PassesWindowFilter(HWND filter, HWND handle) {
    if (!filter || filter == handle) {
        return true;
    }
    const Window* ancestor = g_windows.Find(filter);
    const Window* window = g_windows.Find(handle);
    return ancestor && window && IsInside(*window, *ancestor);
}

namespace {

MSG MakeMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG made = {handle, message, wParam, lParam, GetTickCount(), {}};
    GetCursorPos(&made.pt);
    return made;
}

} // namespace

void ForgetMessages(HWND handle) {
    std::erase_if(Posted(), [handle](const MSG& m) { return m.hwnd == handle; });
}

namespace {

bool TakePosted(const Filter& filter, Take take, MSG* message) {
    auto& posted = Posted();
    const auto found =
        std::find_if(posted.begin(), posted.end(), [&filter](const MSG& m) { return filter.Passes(m); });
    if (found == posted.end()) {
        return false;
    }
    *message = *found;
    if (take == Take::Yes) {
        posted.erase(found);
        NoteKeyMessage(message->message, message->wParam);
    }
    return true;
}

// A filter by range does not hold the end of the thread back.
bool TakeQuit(Take take, MSG* message) {
    if (!g_quit.posted) {
        return false;
    }
    *message = MakeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(g_quit.exitCode), 0);
    g_quit.posted = take == Take::No;
    return true;
}

// Painting takes it: a paint message stands until the window's update area is empty.
bool FindPaint(const Filter& filter, MSG* message) {
    if (!filter.PassesMessage(WM_PAINT)) {
        return false;
    }
    const Window* window = NextToPaint(g_windows.Find(filter.window));
    if (!window) {
        return false;
    }
    *message = MakeMessage(window->handle, WM_PAINT, 0, 0);
    return true;
}

bool TakeTimer(const Filter& filter, Take take, MSG* message) {
    DueTimer due;
    if (!filter.PassesMessage(WM_TIMER) || !FindDueTimer(filter.window, take, &due)) {
        return false;
    }
    *message = MakeMessage(due.window, WM_TIMER, due.id, reinterpret_cast<LPARAM>(due.procedure));
    return true;
}

bool Next(const Filter& filter, Take take, MSG* message) {
    const bool found = TakePosted(filter, take, message) || TakeQuit(take, message) ||
                       FindPaint(filter, message) || TakeTimer(filter, take, message);
    if (found && take == Take::Yes) {
        g_lastTaken = *message;
    }
    return found;
}

// The character that a key gives with the keys that are held, 0 for none.
char CharacterOf(WPARAM key) {
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    const bool control = GetKeyState(VK_CONTROL) < 0;
    if (key >= 'A' && key <= 'Z') {
        const char letter = static_cast<char>(key);
        return static_cast<char>(control ? letter - 'A' + 1 : shift ? letter : letter - 'A' + 'a');
    }
    if (key == VK_RETURN || key == VK_ESCAPE || key == VK_TAB || key == VK_BACK || key == VK_SPACE) {
        return static_cast<char>(key);
    }
    return key >= '0' && key <= '9' && !shift && !control ? static_cast<char>(key) : '\0';
}

} // namespace

} // namespace win32

using namespace win32;

bool platform::PostKey(HWND window, UINT message, WPARAM vk, LPARAM lParam) {
    if (!PostMessageA(window, message, vk, lParam)) {
        return false;
    }
    SetAsyncKey(static_cast<int>(vk), message == WM_KEYDOWN);
    return true;
}

size_t platform::QueuedMessages() { return Posted().size(); }

void platform::ResetInput() {
    Posted().clear();
    g_quit = {};
    ResetKeys();
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (window && !FindWindow(window)) {
        return FALSE;
    }
    Posted().push_back(MakeMessage(window, message, wParam, lParam));
    return TRUE;
}

BOOL PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove) {
    if (!message || (window && !FindWindow(window))) {
        return FALSE;
    }
    return Next({window, first, last}, remove & PM_REMOVE ? Take::Yes : Take::No, message);
}

BOOL GetMessageA(LPMSG message, HWND window, UINT first, UINT last) {
    if (!message || (window && !FindWindow(window))) {
        return -1;
    }
    if (!Next({window, first, last}, Take::Yes, message)) {
        *message = MakeMessage(nullptr, WM_NULL, 0, 0);
        return FALSE;
    }
    return message->message != WM_QUIT;
}

BOOL TranslateMessage(const MSG* message) {
    if (!message || message->message < WM_KEYFIRST || message->message > WM_KEYLAST) {
        return FALSE;
    }
    const char character = message->message == WM_KEYDOWN ? CharacterOf(message->wParam) : '\0';
    if (character != '\0') {
        // At the head: nothing typed later may overtake it.
        Posted().push_front(
            MakeMessage(message->hwnd, WM_CHAR, static_cast<BYTE>(character), message->lParam));
    }
    return TRUE;
}

void PostQuitMessage(int exitCode) { g_quit = {true, exitCode}; }

LONG GetMessageTime() { return static_cast<LONG>(g_lastTaken.time); }

DWORD GetMessagePos() {
    return static_cast<DWORD>(
        MAKELONG(static_cast<ULONG_PTR>(g_lastTaken.pt.x), static_cast<ULONG_PTR>(g_lastTaken.pt.y)));
}
