#include "window_tree.h"

namespace win32 {

constinit CHandleTable<Window, HandleKind::Window> g_windows;

namespace {

constinit Siblings g_topLevels;

} // namespace

Window* FindWindow(HWND handle) {
    Window* window = g_windows.Find(handle);
    if (!window) {
        FailWith(ERROR_INVALID_WINDOW_HANDLE);
    }
    return window;
}

Siblings& TopLevels() { return g_topLevels; }

Siblings& SiblingsOf(const Window& window) { return window.parent ? window.parent->children : g_topLevels; }

void Link(Window& window, ZPlace place) {
    Siblings& siblings = SiblingsOf(window);
    window.above = place == ZPlace::Top ? nullptr : siblings.bottom;
    window.below = place == ZPlace::Top ? siblings.top : nullptr;
    (window.above ? window.above->below : siblings.top) = &window;
    (window.below ? window.below->above : siblings.bottom) = &window;
}

void Unlink(Window& window) {
    Siblings& siblings = SiblingsOf(window);
    (window.above ? window.above->below : siblings.top) = window.below;
    (window.below ? window.below->above : siblings.bottom) = window.above;
    window.above = window.below = nullptr;
}

bool IsSeen(const Window& window) {
    for (const Window* w = &window; w; w = w->parent) {
        if (!w->IsShown()) {
            return false;
        }
    }
    return true;
}

bool IsInside(const Window& window, const Window& ancestor) {
    const Window* w = window.parent;
    while (w && w != &ancestor) {
        w = w->parent;
    }
    return w != nullptr;
}

Window& TopLevelOf(Window& window) {
    Window* top = &window;
    while (top->parent) {
        top = top->parent;
    }
    return *top;
}

POINT OriginInTop(const Window& window) {
    POINT origin = {0, 0};
    for (const Window* w = &window; w->parent; w = w->parent) {
        origin = {origin.x + w->place.left, origin.y + w->place.top};
    }
    return origin;
}

RECT VisibleArea(const Window& window) {
    RECT area = window.Client();
    POINT origin = {0, 0};
    for (const Window* w = &window; w; w = w->parent) {
        RECT client = w->Client();
        OffsetRect(&client, origin.x, origin.y);
        if (!w->IsShown() || !IntersectRect(&area, &area, &client)) {
            return {};
        }
        origin = {origin.x - w->place.left, origin.y - w->place.top};
    }
    return area;
}

POINT OriginOnScreen(const Window& window) {
    POINT origin = {0, 0};
    for (const Window* w = &window; w; w = w->parent) {
        origin = {origin.x + w->place.left, origin.y + w->place.top};
    }
    return origin;
}

} // namespace win32
