#pragma once

// The window tree. Windows are linked top to bottom among their siblings; the tree owns nothing, the handle
// table does. Any message sent may destroy any window: after one, a window is looked up again by its handle.

#include "handles.h"

#include "platform/pixels.h"

#include <string>

namespace win32 {

struct WindowClass {
    WNDCLASSA record;
    std::string name;
    std::string menuName;
    ATOM atom;
    unsigned windows = 0;
};

struct Window;

/// What a class of the system keeps with a window.
struct ControlData {
    virtual ~ControlData() = default;
};

struct Siblings {
    Window* top = nullptr;
    Window* bottom = nullptr;
};

struct Window {
    HWND handle = nullptr;
    WindowClass* windowClass = nullptr;
    WNDPROC procedure = nullptr;
    HINSTANCE instance = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
    LONG_PTR id = 0;
    LONG_PTR userData = 0;
    bool destroying = false;
    std::string title;
    std::unique_ptr<ControlData> control;

    Window* parent = nullptr; // Null for a top-level window.
    HWND owner = nullptr;     // The window that a pop-up belongs to and goes with.
    Window* above = nullptr;
    Window* below = nullptr;
    Siblings children;

    RECT place{};  // A child's in its parent's client pixels, any other's on the screen.
    RECT update{}; // Client pixels; the bounding rectangle of what is to be painted.
    bool eraseUpdate = false;
    platform::PixelArray pixels; // A top-level window's alone, as many as its place has.

    int Width() const { return place.right - place.left; }
    int Height() const { return place.bottom - place.top; }
    RECT Client() const { return {0, 0, Width(), Height()}; }
    bool IsShown() const { return (style & WS_VISIBLE) != 0; }
    bool IsChild() const { return (style & WS_CHILD) != 0; }
};

extern CHandleTable<Window, HandleKind::Window> g_windows;

/// Null, and error 1400, when there is no such window.
Window* FindWindow(HWND handle);
/// The windows beside this one, itself included.
Siblings& SiblingsOf(const Window& window);
Siblings& TopLevels();

enum class ZPlace { Top, Bottom };
void Link(Window& window, ZPlace place);
void Unlink(Window& window);

/// Its own and all its parents' visible flags.
bool IsSeen(const Window& window);
bool IsInside(const Window& window, const Window& ancestor);
Window& TopLevelOf(Window& window);
/// Where the client area starts, in the top-level window's client pixels and on the screen.
POINT OriginInTop(const Window& window);
POINT OriginOnScreen(const Window& window);

/// The rectangle, brought within the limits of windows: no negative size, none over 32767.
RECT PlaceOf(int x, int y, int width, int height);

/// Null, and error 1407, when there is no such class. The name may be an atom.
WindowClass* FindClass(LPCSTR name);

/// The default treatment of WM_SETTEXT, WM_GETTEXT (`room` counts the closing zero) and WM_GETTEXTLENGTH.
LRESULT SetTitle(HWND handle, LPCSTR text);
LRESULT CopyTitle(HWND handle, SIZE_T room, LPSTR out);
LRESULT TitleLength(HWND handle);
/// Copies what fits with its zero; the length copied.
LRESULT CopyText(const std::string& text, SIZE_T room, LPSTR out);

/// Gives the window's surface the size of its place, keeping what both have. False when memory is short.
bool SizeSurface(Window& window, int oldWidth, int oldHeight);

/// The part of the client area that lies inside all parents', in client pixels; empty while the window is not
/// seen.
RECT VisibleArea(const Window& window);
/// Adds the visible part of `area` (client pixels) to the update areas of the window and of its visible
/// children there.
void Invalidate(Window& window, const RECT& area, bool erase);
void SetUpdate(Window& window, const RECT& area, bool erase);
/// Forgets what was to be painted in the window and the windows inside it.
void DropUpdates(Window& window);
/// The first window, parents first and then from the bottom up, that is to be painted: `root` or one inside
/// it (null: any).
Window* NextToPaint(Window* root);

/// Shows or hides, with the messages and the repainting that go with it.
void SetShown(HWND handle, bool shown);
/// Where the focus or capture is in the window or inside it, the parent gets the focus and nobody the
/// capture.
void YieldFocus(HWND handle);
void YieldCapture(HWND handle);
void ForgetFocus(HWND handle);
/// Drops the window's messages and timers.
void ForgetMessages(HWND handle);
void ForgetTimers(HWND handle);

} // namespace win32
