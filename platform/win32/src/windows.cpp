#include "window_tree.h"

#include "platform/faults.h"

#include <new>

namespace win32 {

namespace {

// Frees the window and takes it out of everything that could still name it. Children that are themselves
// being destroyed (one of them destroyed this parent) finish outside the tree.
void FreeWindow(HWND handle) {
    YieldCapture(handle);
    ForgetMessages(handle);
    ForgetTimers(handle);
    ForgetFocus(handle);
    Window* window = g_windows.Find(handle);
    while (Window* child = window->children.top) {
        Unlink(*child);
        child->parent = nullptr;
        Link(*child, ZPlace::Bottom);
    }
    DropUpdates(*window);
    Unlink(*window);
    --window->windowClass->windows;
    g_windows.Remove(handle);
}

Window* FirstDoomed(const Window* among, HWND owner) {
    for (Window* w = const_cast<Window*>(among); w; w = w->below) {
        if (!w->destroying && (!owner || w->owner == owner)) {
            return w;
        }
    }
    return nullptr;
}

void DestroyOwned(HWND handle) {
    while (const Window* owned = FirstDoomed(TopLevels().top, handle)) {
        DestroyWindow(owned->handle);
    }
}

void DestroyChildren(HWND handle) {
    while (const Window* child = FirstDoomed(g_windows.Find(handle)->children.top, nullptr)) {
        DestroyWindow(child->handle);
    }
}

std::unique_ptr<Window> MakeWindow(const CREATESTRUCTA& create, WindowClass& windowClass, Window* parent) {
    std::unique_ptr<Window> window(new (std::nothrow) Window);
    if (!window) {
        return nullptr;
    }
    window->windowClass = &windowClass;
    window->procedure = windowClass.record.lpfnWndProc;
    window->instance = create.hInstance;
    // It shows itself only when it is complete.
    window->style = static_cast<DWORD>(create.style) & ~WS_VISIBLE;
    window->exStyle = create.dwExStyle;
    window->id = reinterpret_cast<LONG_PTR>(create.hMenu);
    window->place = {create.x, create.y, create.x + create.cx, create.y + create.cy};
    if (window->IsChild()) {
        window->parent = parent;
    } else {
        window->owner = parent ? parent->handle : nullptr;
    }
    return window;
}

HWND EnterWindow(std::unique_ptr<Window> window) {
    if (!window || (!window->parent && !SizeSurface(*window, 0, 0))) {
        return nullptr;
    }
    const HWND handle = reinterpret_cast<HWND>(g_windows.Add(std::move(window)));
    if (Window* entered = g_windows.Find(handle)) {
        entered->handle = handle;
        ++entered->windowClass->windows;
        // A new child lies below its elder siblings, any other window above.
        Link(*entered, entered->parent ? ZPlace::Bottom : ZPlace::Top);
    }
    return handle;
}

// The creation messages; false when the window refused or did not live through them.
bool Introduce(HWND handle, CREATESTRUCTA& create) {
    const LPARAM argument = reinterpret_cast<LPARAM>(&create);
    if (!SendMessageA(handle, WM_NCCREATE, 0, argument)) {
        if (Window* window = g_windows.Find(handle)) {
            window->destroying = true;
            DestroyChildren(handle);
            SendMessageA(handle, WM_NCDESTROY, 0, 0);
            FreeWindow(handle);
        }
        return false;
    }
    if (SendMessageA(handle, WM_CREATE, 0, argument) == -1) {
        DestroyWindow(handle);
        return false;
    }
    SendMessageA(handle, WM_SIZE, SIZE_RESTORED,
                 MAKELPARAM(static_cast<ULONG_PTR>(create.cx), static_cast<ULONG_PTR>(create.cy)));
    SendMessageA(handle, WM_MOVE, 0,
                 MAKELPARAM(static_cast<ULONG_PTR>(create.x), static_cast<ULONG_PTR>(create.y)));
    return IsWindow(handle) != FALSE;
}

int OrZero(int value) { return value == CW_USEDEFAULT ? 0 : value; }

} // namespace

} // namespace win32

using namespace win32;

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR name, DWORD style, int x, int y, int width,
                     int height, HWND parentHandle, HMENU menu, HINSTANCE instance, LPVOID param) {
    WindowClass* windowClass = FindClass(className);
    Window* parent = parentHandle ? FindWindow(parentHandle) : nullptr;
    if (!windowClass || (parentHandle && !parent)) {
        return nullptr;
    }
    if (parent ? parent->destroying : (style & WS_CHILD) != 0) {
        FailWith(ERROR_INVALID_WINDOW_HANDLE);
        return nullptr;
    }
    const RECT place = PlaceOf(OrZero(x), OrZero(y), OrZero(width), OrZero(height));
    CREATESTRUCTA create = {param,
                            instance,
                            menu,
                            parentHandle,
                            place.bottom - place.top,
                            place.right - place.left,
                            place.top,
                            place.left,
                            static_cast<LONG>(style),
                            name,
                            className,
                            exStyle};
    const HWND handle =
        platform::FaultTrips("window") ? nullptr : EnterWindow(MakeWindow(create, *windowClass, parent));
    if (!handle) {
        FailWith(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    if (!Introduce(handle, create)) {
        return nullptr;
    }
    if (style & WS_VISIBLE) {
        SetShown(handle, true);
    }
    return IsWindow(handle) ? handle : nullptr;
}

BOOL DestroyWindow(HWND handle) {
    Window* window = FindWindow(handle);
    if (!window || window->destroying) {
        return FALSE;
    }
    // From here on nobody else frees it: the handle stays good until this call does.
    window->destroying = true;
    YieldFocus(handle);
    SetShown(handle, false);
    DestroyOwned(handle);
    SendMessageA(handle, WM_DESTROY, 0, 0);
    DestroyChildren(handle);
    YieldCapture(handle);
    SendMessageA(handle, WM_NCDESTROY, 0, 0);
    FreeWindow(handle);
    return TRUE;
}

BOOL IsWindow(HWND handle) { return g_windows.Find(handle) != nullptr; }

BOOL IsChild(HWND parentHandle, HWND handle) {
    const Window* parent = FindWindow(parentHandle);
    const Window* window = FindWindow(handle);
    return parent && window && IsInside(*window, *parent);
}

HWND GetParent(HWND handle) {
    const Window* window = FindWindow(handle);
    if (!window) {
        return nullptr;
    }
    return window->parent ? window->parent->handle : window->owner;
}

int GetDlgCtrlID(HWND handle) {
    const Window* window = FindWindow(handle);
    return window ? static_cast<int>(window->id) : 0;
}

LONG_PTR GetWindowLongPtrA(HWND handle, int index) {
    const Window* window = FindWindow(handle);
    if (!window) {
        return 0;
    }
    switch (index) {
    case GWL_WNDPROC: return reinterpret_cast<LONG_PTR>(window->procedure);
    case GWL_HINSTANCE: return reinterpret_cast<LONG_PTR>(window->instance);
    case GWL_HWNDPARENT: return reinterpret_cast<LONG_PTR>(GetParent(handle));
    case GWL_ID: return window->id;
    case GWL_STYLE: return static_cast<LONG>(window->style);
    case GWL_EXSTYLE: return static_cast<LONG>(window->exStyle);
    case GWL_USERDATA: return window->userData;
    default: return FailWith(ERROR_INVALID_INDEX);
    }
}

LONG_PTR SetWindowLongPtrA(HWND handle, int index, LONG_PTR value) {
    const LONG_PTR before = GetWindowLongPtrA(handle, index);
    Window* window = g_windows.Find(handle);
    if (!window) {
        return 0;
    }
    switch (index) {
    case GWL_WNDPROC: window->procedure = reinterpret_cast<WNDPROC>(value); return before;
    case GWL_HINSTANCE: window->instance = reinterpret_cast<HINSTANCE>(value); return before;
    case GWL_ID: window->id = value; return before;
    case GWL_STYLE:
        // What a window is in the tree is settled at its creation.
        window->style = (static_cast<DWORD>(value) & ~WS_CHILD) | (window->style & WS_CHILD);
        return before;
    case GWL_EXSTYLE: window->exStyle = static_cast<DWORD>(value); return before;
    case GWL_USERDATA: window->userData = value; return before;
    default: return FailWith(ERROR_INVALID_INDEX);
    }
}

LONG GetWindowLongA(HWND handle, int index) {
    return index == GWL_WNDPROC ? FailWith(ERROR_INVALID_INDEX)
                                : static_cast<LONG>(GetWindowLongPtrA(handle, index));
}

LONG SetWindowLongA(HWND handle, int index, LONG value) {
    return index == GWL_WNDPROC ? FailWith(ERROR_INVALID_INDEX)
                                : static_cast<LONG>(SetWindowLongPtrA(handle, index, value));
}
