#include "richedit/control.h"
#include "window_tree.h"

#include <strings.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace win32 {

// Atoms of registered names start here; smaller ones are integers.
constexpr ATOM FirstAtom = 0xC000;

using ClassList = std::vector<std::unique_ptr<WindowClass>>;

namespace {

ATOM TakeAtom() {
    static ATOM next = FirstAtom;
    return next++;
}

ClassList* SystemClasses() {
    auto* classes = new ClassList;
    classes->push_back(MakeRichEditClass());
    classes->back()->atom = TakeAtom();
    // Counted as a window that lives for ever, so that nobody takes the class away.
    classes->back()->windows = 1;
    return classes;
}

ClassList& Classes() {
    static auto& classes = *SystemClasses();
    return classes;
}

bool IsNamed(const WindowClass& windowClass, LPCSTR name) {
    if (IS_INTRESOURCE(name)) {
        return windowClass.atom == LOWORD(reinterpret_cast<UINT_PTR>(name));
    }
    return strcasecmp(windowClass.name.c_str(), name) == 0;
}

WindowClass* Lookup(LPCSTR name) {
    const auto& classes = Classes();
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [name](const auto& known) { return IsNamed(*known, name); });
    return found == classes.end() ? nullptr : found->get();
}

} // namespace

WindowClass* FindClass(LPCSTR name) {
    WindowClass* found = Lookup(name);
    if (!found) {
        FailWith(ERROR_CANNOT_FIND_WND_CLASS);
    }
    return found;
}

template <typename Field>
ULONG_PTR ExchangeHandle(Field& field, LONG_PTR value) {
    return reinterpret_cast<ULONG_PTR>(std::exchange(field, reinterpret_cast<Field>(value)));
}

} // namespace win32

using namespace win32;

ATOM RegisterClassA(const WNDCLASSA* windowClass) {
    if (!windowClass || IS_INTRESOURCE(windowClass->lpszClassName) || !windowClass->lpfnWndProc) {
        return static_cast<ATOM>(FailWith(ERROR_INVALID_PARAMETER));
    }
    if (Lookup(windowClass->lpszClassName)) {
        return static_cast<ATOM>(FailWith(ERROR_CLASS_ALREADY_EXISTS));
    }
    auto added = std::make_unique<WindowClass>();
    added->record = *windowClass;
    added->name = windowClass->lpszClassName;
    added->record.lpszClassName = added->name.c_str();
    if (!IS_INTRESOURCE(windowClass->lpszMenuName)) {
        added->menuName = windowClass->lpszMenuName;
        added->record.lpszMenuName = added->menuName.c_str();
    }
    added->atom = TakeAtom();
    Classes().push_back(std::move(added));
    return Classes().back()->atom;
}

BOOL GetClassInfoA(HINSTANCE, LPCSTR name, LPWNDCLASSA windowClass) {
    const WindowClass* found = Lookup(name);
    if (!found || !windowClass) {
        return FailWith(found ? ERROR_INVALID_PARAMETER : ERROR_CLASS_DOES_NOT_EXIST);
    }
    *windowClass = found->record;
    return TRUE;
}

BOOL UnregisterClassA(LPCSTR name, HINSTANCE) {
    const WindowClass* found = Lookup(name);
    if (!found) {
        return FailWith(ERROR_CLASS_DOES_NOT_EXIST);
    }
    if (found->windows > 0) {
        return FailWith(ERROR_CLASS_HAS_WINDOWS);
    }
    std::erase_if(Classes(), [found](const auto& known) { return known.get() == found; });
    return TRUE;
}

ULONG_PTR GetClassLongPtrA(HWND handle, int index) {
    const Window* window = FindWindow(handle);
    if (!window) {
        return 0;
    }
    const WNDCLASSA& record = window->windowClass->record;
    switch (index) {
    case GCL_STYLE: return record.style;
    case GCL_HCURSOR: return reinterpret_cast<ULONG_PTR>(record.hCursor);
    case GCL_HICON: return reinterpret_cast<ULONG_PTR>(record.hIcon);
    case GCL_HBRBACKGROUND: return reinterpret_cast<ULONG_PTR>(record.hbrBackground);
    case GCL_HMODULE: return reinterpret_cast<ULONG_PTR>(record.hInstance);
    case GCL_WNDPROC: return reinterpret_cast<ULONG_PTR>(record.lpfnWndProc);
    default: return static_cast<ULONG_PTR>(FailWith(ERROR_INVALID_INDEX));
    }
}

ULONG_PTR SetClassLongPtrA(HWND handle, int index, LONG_PTR value) {
    const Window* window = FindWindow(handle);
    if (!window) {
        return 0;
    }
    WNDCLASSA& record = window->windowClass->record;
    switch (index) {
    case GCL_STYLE: return std::exchange(record.style, static_cast<UINT>(value));
    case GCL_HCURSOR: return ExchangeHandle(record.hCursor, value);
    case GCL_HICON: return ExchangeHandle(record.hIcon, value);
    case GCL_HBRBACKGROUND: return ExchangeHandle(record.hbrBackground, value);
    case GCL_HMODULE: return ExchangeHandle(record.hInstance, value);
    case GCL_WNDPROC: return ExchangeHandle(record.lpfnWndProc, value);
    default: return static_cast<ULONG_PTR>(FailWith(ERROR_INVALID_INDEX));
    }
}

DWORD GetClassLongA(HWND handle, int index) {
    if (index == GCL_WNDPROC || index == GCL_HMODULE) {
        return static_cast<DWORD>(FailWith(ERROR_INVALID_INDEX));
    }
    return static_cast<DWORD>(GetClassLongPtrA(handle, index));
}

DWORD SetClassLongA(HWND handle, int index, LONG value) {
    if (index == GCL_WNDPROC || index == GCL_HMODULE) {
        return static_cast<DWORD>(FailWith(ERROR_INVALID_INDEX));
    }
    return static_cast<DWORD>(SetClassLongPtrA(handle, index, value));
}
