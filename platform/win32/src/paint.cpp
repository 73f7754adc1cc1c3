#include "gdi/dc.h"
#include "window_tree.h"

#include "platform/observer.h"

namespace win32 {

namespace {

platform::IObserver* g_observer = nullptr;

// How many windows have something to be painted, so that an idle queue need not walk the tree.
unsigned g_windowsToPaint = 0;

} // namespace

void SetUpdate(Window& window, const RECT& area, bool erase) {
    const bool before = !IsRectEmpty(&window.update);
    const bool after = !IsRectEmpty(&area);
    g_windowsToPaint += static_cast<unsigned>(after) - static_cast<unsigned>(before);
    window.update = after ? area : RECT{};
    window.eraseUpdate = after && erase;
}

void DropUpdates(Window& window) {
    SetUpdate(window, {}, false);
    for (Window* child = window.children.top; child; child = child->below) {
        DropUpdates(*child);
    }
}

namespace {

void AddToUpdates(Window& window, const RECT& area, bool erase) {
    const RECT client = window.Client();
    RECT part;
    if (!window.IsShown() || !IntersectRect(&part, &area, &client)) {
        return;
    }
    RECT whole;
    UnionRect(&whole, &window.update, &part);
    SetUpdate(window, whole, window.eraseUpdate || erase);
    for (Window* child = window.children.top; child; child = child->below) {
        RECT inChild = part;
        OffsetRect(&inChild, -child->place.left, -child->place.top);
        AddToUpdates(*child, inChild, erase);
    }
}

} // namespace

void Invalidate(Window& window, const RECT& area, bool erase) {
    const RECT visible = VisibleArea(window);
    RECT part;
    if (IntersectRect(&part, &area, &visible)) {
        AddToUpdates(window, part, erase);
    }
}

namespace {

Window* NextInSubtree(Window& window) {
    if (!window.IsShown()) {
        return nullptr;
    }
    if (!IsRectEmpty(&window.update)) {
        return &window;
    }
    for (Window* child = window.children.bottom; child; child = child->above) {
        if (Window* next = NextInSubtree(*child)) {
            return next;
        }
    }
    return nullptr;
}

} // namespace

Window* NextToPaint(Window* root) {
    if (g_windowsToPaint == 0) {
        return nullptr;
    }
    if (root) {
        return IsSeen(*root) ? NextInSubtree(*root) : nullptr;
    }
    for (Window* top = TopLevels().bottom; top; top = top->above) {
        if (Window* next = NextInSubtree(*top)) {
            return next;
        }
    }
    return nullptr;
}

namespace {

void PaintSubtree(HWND handle) {
    const Window* window = g_windows.Find(handle);
    if (!window || !window->IsShown()) {
        return;
    }
    if (!IsRectEmpty(&window->update)) {
        SendMessageA(handle, WM_PAINT, 0, 0);
        window = g_windows.Find(handle);
    }
    HWND child = window && window->children.bottom ? window->children.bottom->handle : nullptr;
    while (const Window* painted = g_windows.Find(child)) {
        // A handler may take its own window away, but not the way to the next one.
        const HWND next = painted->above ? painted->above->handle : nullptr;
        PaintSubtree(child);
        child = next;
    }
}

// What the difference leaves as a rectangle; where it is none, all of `from` stays.
RECT Without(const RECT& from, const RECT& taken) {
    RECT common;
    RECT left = from;
    if (!IntersectRect(&common, &from, &taken)) {
        return left;
    }
    const bool wide = common.left == from.left && common.right == from.right;
    const bool tall = common.top == from.top && common.bottom == from.bottom;
    if (wide && common.top == from.top) {
        left.top = common.bottom;
    } else if (wide && common.bottom == from.bottom) {
        left.bottom = common.top;
    } else if (tall && common.left == from.left) {
        left.left = common.right;
    } else if (tall && common.right == from.right) {
        left.right = common.left;
    }
    return left;
}

bool EraseUpdate(HWND handle, HDC dc) {
    return SendMessageA(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) != 0;
}

} // namespace

} // namespace win32

using namespace win32;

void platform::SetObserver(IObserver* observer) { g_observer = observer; }

platform::IObserver* platform::GetObserver() { return g_observer; }

BOOL InvalidateRect(HWND handle, LPCRECT rect, BOOL erase) {
    Window* window = FindWindow(handle);
    if (!window) {
        return FALSE;
    }
    if (g_observer) {
        g_observer->OnInvalidate(handle, rect, erase);
    }
    Invalidate(*window, rect ? *rect : window->Client(), erase != FALSE);
    return TRUE;
}

BOOL ValidateRect(HWND handle, LPCRECT rect) {
    Window* window = FindWindow(handle);
    if (!window) {
        return FALSE;
    }
    SetUpdate(*window, rect ? Without(window->update, *rect) : RECT{}, window->eraseUpdate);
    return TRUE;
}

BOOL GetUpdateRect(HWND handle, LPRECT rect, BOOL erase) {
    Window* window = FindWindow(handle);
    if (!window) {
        return FALSE;
    }
    const RECT area = window->update;
    if (rect) {
        *rect = area;
    }
    if (erase && window->eraseUpdate) {
        window->eraseUpdate = false;
        if (const HDC dc = OpenWindowDc(handle, &area)) {
            EraseUpdate(handle, dc);
            CloseDc(dc);
        }
    }
    return !IsRectEmpty(&area);
}

BOOL UpdateWindow(HWND handle) {
    const Window* window = FindWindow(handle);
    if (!window) {
        return FALSE;
    }
    if (g_windowsToPaint > 0 && IsSeen(*window)) {
        PaintSubtree(handle);
    }
    return TRUE;
}

BOOL RedrawWindow(HWND handle, LPCRECT rect, HRGN region, UINT flags) {
    if (region) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    if ((flags & RDW_INVALIDATE) && !InvalidateRect(handle, rect, (flags & RDW_ERASE) != 0)) {
        return FALSE;
    }
    return flags & RDW_UPDATENOW ? UpdateWindow(handle) : IsWindow(handle);
}

HDC BeginPaint(HWND handle, LPPAINTSTRUCT paint) {
    Window* window = FindWindow(handle);
    if (!window || !paint) {
        return nullptr;
    }
    *paint = {};
    paint->rcPaint = window->update;
    const bool erase = window->eraseUpdate;
    SetUpdate(*window, {}, false);
    paint->hdc = OpenWindowDc(handle, &paint->rcPaint);
    if (paint->hdc && erase) {
        paint->fErase = !EraseUpdate(handle, paint->hdc);
    }
    return paint->hdc;
}

BOOL EndPaint(HWND, const PAINTSTRUCT* paint) { return paint && CloseDc(paint->hdc); }

HDC GetDC(HWND handle) { return handle && !FindWindow(handle) ? nullptr : OpenWindowDc(handle, nullptr); }

int ReleaseDC(HWND handle, HDC dc) {
    const DeviceContext* context = FindDc(dc);
    return context && context->window == handle ? CloseDc(dc) : 0;
}
