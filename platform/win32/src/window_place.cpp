#include "size_limits.h"
#include "window_tree.h"
#include "wrap.h"

#include <algorithm>

namespace win32 {

// A generous screen.
constexpr int FarthestPlace = 1 << 20;

RECT PlaceOf(int x, int y, int width, int height) {
    const LONG left = std::clamp(x, -FarthestPlace, FarthestPlace);
    const LONG top = std::clamp(y, -FarthestPlace, FarthestPlace);
    return {left, top, left + std::clamp(width, 0, LargestSize), top + std::clamp(height, 0, LargestSize)};
}

namespace {

// Top-level windows have nothing beneath them to repaint.
void InvalidateBeneath(Window& window, const RECT& place) {
    if (window.parent) {
        Invalidate(*window.parent, place, true);
    }
}

} // namespace

void SetShown(HWND handle, bool shown) {
    Window* window = g_windows.Find(handle);
    if (!window || window->IsShown() == shown) {
        return;
    }
    SendMessageA(handle, WM_SHOWWINDOW, shown, 0);
    window = g_windows.Find(handle);
    if (!window) {
        return;
    }
    if (shown) {
        window->style |= WS_VISIBLE;
        Invalidate(*window, window->Client(), true);
        return;
    }
    DropUpdates(*window);
    window->style &= ~WS_VISIBLE;
    InvalidateBeneath(*window, window->place);
    YieldFocus(handle);
}

namespace {

void Restack(Window& window, HWND insertAfter) {
    Unlink(window);
    Window* above =
        insertAfter == HWND_TOP || insertAfter == HWND_BOTTOM ? nullptr : g_windows.Find(insertAfter);
    if (!above || above->parent != window.parent || above == &window) {
        Link(window, insertAfter == HWND_BOTTOM ? ZPlace::Bottom : ZPlace::Top);
        return;
    }
    window.above = above;
    window.below = above->below;
    (above->below ? above->below->above : SiblingsOf(window).bottom) = &window;
    above->below = &window;
}

} // namespace

enum class Repaint { No, Yes };

namespace {

// False when a top-level window's surface could not be had; nothing has changed then.
bool Resize(Window& window, const RECT& place) {
    const RECT before = window.place;
    window.place = place;
    if (!window.parent && !SizeSurface(window, before.right - before.left, before.bottom - before.top)) {
        window.place = before;
        return false;
    }
    RECT left = window.update;
    const RECT client = window.Client();
    IntersectRect(&left, &window.update, &client);
    SetUpdate(window, left, window.eraseUpdate);
    return true;
}

void RepaintMoved(Window& window, const RECT& before) {
    if (window.IsShown()) {
        InvalidateBeneath(window, before);
        Invalidate(window, window.Client(), true);
    }
}

LPARAM PointParam(int x, int y) { return MAKELPARAM(static_cast<ULONG_PTR>(x), static_cast<ULONG_PTR>(y)); }

BOOL Place(HWND handle, const RECT& place, Repaint repaint) {
    Window* window = g_windows.Find(handle);
    const RECT before = window->place;
    if (EqualRect(&before, &place)) {
        return TRUE;
    }
    const bool sized =
        window->Width() != place.right - place.left || window->Height() != place.bottom - place.top;
    const bool moved = before.left != place.left || before.top != place.top;
    if (!Resize(*window, place)) {
        return FailWith(ERROR_NOT_ENOUGH_MEMORY);
    }
    // A top-level window's pixels go with it when it only moves.
    if (repaint == Repaint::Yes && (sized || window->parent)) {
        RepaintMoved(*window, before);
    }
    if (moved) {
        SendMessageA(handle, WM_MOVE, 0, PointParam(place.left, place.top));
    }
    if (sized) {
        SendMessageA(handle, WM_SIZE, SIZE_RESTORED,
                     PointParam(place.right - place.left, place.bottom - place.top));
    }
    return TRUE;
}

} // namespace

// Moves the point by the place of the window's client area on the screen.
namespace {

template <LONG (*Combine)(LONG, LONG)>
BOOL Shift(HWND handle, LPPOINT point) {
    const Window* window = FindWindow(handle);
    if (!window || !point) {
        return FALSE;
    }
    const POINT origin = OriginOnScreen(*window);
    *point = {Combine(point->x, origin.x), Combine(point->y, origin.y)};
    return TRUE;
}

} // namespace

} // namespace win32

using namespace win32;

BOOL MoveWindow(HWND handle, int x, int y, int width, int height, BOOL repaint) {
    if (!FindWindow(handle)) {
        return FALSE;
    }
    return Place(handle, PlaceOf(x, y, width, height), repaint ? Repaint::Yes : Repaint::No);
}

BOOL SetWindowPos(HWND handle, HWND insertAfter, int x, int y, int width, int height, UINT flags) {
    Window* window = FindWindow(handle);
    if (!window) {
        return FALSE;
    }
    if (!(flags & SWP_NOZORDER)) {
        Restack(*window, insertAfter);
    }
    const POINT corner = flags & SWP_NOMOVE ? POINT{window->place.left, window->place.top} : POINT{x, y};
    const SIZE size = flags & SWP_NOSIZE ? SIZE{window->Width(), window->Height()} : SIZE{width, height};
    const BOOL placed = Place(handle, PlaceOf(corner.x, corner.y, size.cx, size.cy),
                              flags & SWP_NOREDRAW ? Repaint::No : Repaint::Yes);
    if (flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) {
        SetShown(handle, (flags & SWP_SHOWWINDOW) != 0);
    }
    return placed;
}

BOOL GetWindowRect(HWND handle, LPRECT rect) {
    const Window* window = FindWindow(handle);
    if (!window || !rect) {
        return FALSE;
    }
    const POINT origin = OriginOnScreen(*window);
    return SetRect(rect, origin.x, origin.y, origin.x + window->Width(), origin.y + window->Height());
}

BOOL GetClientRect(HWND handle, LPRECT rect) {
    const Window* window = FindWindow(handle);
    if (!window || !rect) {
        return FALSE;
    }
    *rect = window->Client();
    return TRUE;
}

BOOL ShowWindow(HWND handle, int command) {
    const Window* window = FindWindow(handle);
    if (!window) {
        return FALSE;
    }
    const bool before = window->IsShown();
    SetShown(handle, command != SW_HIDE);
    return before;
}

BOOL IsWindowVisible(HWND handle) {
    const Window* window = FindWindow(handle);
    return window && IsSeen(*window);
}

BOOL ClientToScreen(HWND handle, LPPOINT point) { return Shift<WrapSum>(handle, point); }

BOOL ScreenToClient(HWND handle, LPPOINT point) { return Shift<WrapDifference>(handle, point); }

HWND ChildWindowFromPoint(HWND handle, POINT point) {
    const Window* parent = FindWindow(handle);
    const RECT client = parent ? parent->Client() : RECT{};
    if (!PtInRect(&client, point)) {
        return nullptr;
    }
    for (const Window* child = parent->children.top; child; child = child->below) {
        if (child->IsShown() && PtInRect(&child->place, point)) {
            return child->handle;
        }
    }
    return handle;
}
