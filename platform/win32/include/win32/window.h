#pragma once

// Windows, messages, input, cursors and timers. One thread owns them all.

#include "win32/types.h"

typedef LRESULT(CALLBACK* WNDPROC)(HWND, UINT, WPARAM, LPARAM);
typedef void(CALLBACK* TIMERPROC)(HWND, UINT, UINT_PTR, DWORD);

constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_MOVE = 0x0003;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_ACTIVATE = 0x0006;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_ENABLE = 0x000A;
constexpr UINT WM_SETREDRAW = 0x000B;
constexpr UINT WM_SETTEXT = 0x000C;
constexpr UINT WM_GETTEXT = 0x000D;
constexpr UINT WM_GETTEXTLENGTH = 0x000E;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SHOWWINDOW = 0x0018;
constexpr UINT WM_CANCELMODE = 0x001F;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_MOUSEACTIVATE = 0x0021;
constexpr UINT WM_SETFONT = 0x0030;
constexpr UINT WM_GETFONT = 0x0031;
constexpr UINT WM_WINDOWPOSCHANGING = 0x0046;
constexpr UINT WM_WINDOWPOSCHANGED = 0x0047;
constexpr UINT WM_CONTEXTMENU = 0x007B;
constexpr UINT WM_NCCREATE = 0x0081;
constexpr UINT WM_NCDESTROY = 0x0082;
constexpr UINT WM_NCHITTEST = 0x0084;
constexpr UINT WM_NCPAINT = 0x0085;
constexpr UINT WM_GETDLGCODE = 0x0087;
constexpr UINT WM_KEYFIRST = 0x0100;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_DEADCHAR = 0x0103;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_SYSCHAR = 0x0106;
constexpr UINT WM_KEYLAST = 0x0108;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_HSCROLL = 0x0114;
constexpr UINT WM_VSCROLL = 0x0115;
constexpr UINT WM_INITMENUPOPUP = 0x0117;
constexpr UINT WM_MOUSEFIRST = 0x0200;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
constexpr UINT WM_MBUTTONDOWN = 0x0207;
constexpr UINT WM_MBUTTONUP = 0x0208;
constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
constexpr UINT WM_MOUSEWHEEL = 0x020A;
constexpr UINT WM_MOUSELAST = 0x020A;
constexpr UINT WM_PARENTNOTIFY = 0x0210;
constexpr UINT WM_CAPTURECHANGED = 0x0215;
constexpr UINT WM_CUT = 0x0300;
constexpr UINT WM_COPY = 0x0301;
constexpr UINT WM_PASTE = 0x0302;
constexpr UINT WM_CLEAR = 0x0303;
constexpr UINT WM_UNDO = 0x0304;
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;

constexpr UINT MK_LBUTTON = 0x0001;
constexpr UINT MK_RBUTTON = 0x0002;
constexpr UINT MK_SHIFT = 0x0004;
constexpr UINT MK_CONTROL = 0x0008;
constexpr UINT MK_MBUTTON = 0x0010;

constexpr int VK_LBUTTON = 0x01;
constexpr int VK_RBUTTON = 0x02;
constexpr int VK_MBUTTON = 0x04;
constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_MENU = 0x12;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_SPACE = 0x20;
constexpr int VK_PRIOR = 0x21;
constexpr int VK_NEXT = 0x22;
constexpr int VK_END = 0x23;
constexpr int VK_HOME = 0x24;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_INSERT = 0x2D;
constexpr int VK_DELETE = 0x2E;

constexpr UINT CS_VREDRAW = 0x0001;
constexpr UINT CS_HREDRAW = 0x0002;
constexpr UINT CS_DBLCLKS = 0x0008;
constexpr UINT CS_OWNDC = 0x0020;
constexpr UINT CS_SAVEBITS = 0x0800;

constexpr DWORD WS_OVERLAPPED = 0x00000000;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
constexpr DWORD WS_BORDER = 0x00800000;
constexpr DWORD WS_VSCROLL = 0x00200000;
constexpr DWORD WS_HSCROLL = 0x00100000;
constexpr DWORD WS_GROUP = 0x00020000;
constexpr DWORD WS_TABSTOP = 0x00010000;
constexpr DWORD WS_EX_TOPMOST = 0x00000008;
constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000U);

constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOWNOACTIVATE = 4;
constexpr int SW_SHOW = 5;
constexpr int SW_SHOWNA = 8;

constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOREDRAW = 0x0008;
constexpr UINT SWP_NOACTIVATE = 0x0010;
constexpr UINT SWP_SHOWWINDOW = 0x0040;
constexpr UINT SWP_HIDEWINDOW = 0x0080;
inline const HWND HWND_TOP = nullptr;
inline const HWND HWND_BOTTOM = reinterpret_cast<HWND>(static_cast<UINT_PTR>(1));

constexpr int GWL_WNDPROC = -4;
constexpr int GWL_HINSTANCE = -6;
constexpr int GWL_HWNDPARENT = -8;
constexpr int GWL_ID = -12;
constexpr int GWL_STYLE = -16;
constexpr int GWL_EXSTYLE = -20;
constexpr int GWL_USERDATA = -21;
constexpr int GWLP_WNDPROC = GWL_WNDPROC;
constexpr int GWLP_HINSTANCE = GWL_HINSTANCE;
constexpr int GWLP_ID = GWL_ID;
constexpr int GWLP_USERDATA = GWL_USERDATA;

constexpr int GCL_HBRBACKGROUND = -10;
constexpr int GCL_HCURSOR = -12;
constexpr int GCL_HICON = -14;
constexpr int GCL_HMODULE = -16;
constexpr int GCL_WNDPROC = -24;
constexpr int GCL_STYLE = -26;
constexpr int GCLP_HBRBACKGROUND = GCL_HBRBACKGROUND;
constexpr int GCLP_HCURSOR = GCL_HCURSOR;
constexpr int GCLP_WNDPROC = GCL_WNDPROC;

// What a window answers WM_GETDLGCODE with: the keys that it wants for itself.
constexpr UINT DLGC_WANTARROWS = 0x0001;
constexpr UINT DLGC_WANTTAB = 0x0002;
constexpr UINT DLGC_WANTALLKEYS = 0x0004;
constexpr UINT DLGC_HASSETSEL = 0x0008;
constexpr UINT DLGC_WANTCHARS = 0x0080;

constexpr UINT PM_NOREMOVE = 0x0000;
constexpr UINT PM_REMOVE = 0x0001;
constexpr UINT PM_NOYIELD = 0x0002;

constexpr int SIZE_RESTORED = 0;
constexpr int HTCLIENT = 1;

inline const LPCSTR IDC_ARROW = MAKEINTRESOURCEA(32512);
inline const LPCSTR IDC_IBEAM = MAKEINTRESOURCEA(32513);
inline const LPCSTR IDC_WAIT = MAKEINTRESOURCEA(32514);
inline const LPCSTR IDC_CROSS = MAKEINTRESOURCEA(32515);
inline const LPCSTR IDC_SIZENWSE = MAKEINTRESOURCEA(32642);
inline const LPCSTR IDC_SIZENESW = MAKEINTRESOURCEA(32643);
inline const LPCSTR IDC_SIZEWE = MAKEINTRESOURCEA(32644);
inline const LPCSTR IDC_SIZENS = MAKEINTRESOURCEA(32645);
inline const LPCSTR IDC_SIZEALL = MAKEINTRESOURCEA(32646);
inline const LPCSTR IDC_NO = MAKEINTRESOURCEA(32648);

typedef struct tagWNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
} WNDCLASSA, WNDCLASS, *LPWNDCLASSA, *LPWNDCLASS;

typedef struct tagCREATESTRUCTA {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
} CREATESTRUCTA, CREATESTRUCT, *LPCREATESTRUCTA, *LPCREATESTRUCT;

/// The class's atom, from 0xC000 on; 0 and error 1410 when the name is taken, 87 without a name or procedure.
/// A background of (HBRUSH)(COLOR_x + 1) names a system colour. Names compare without regard to case.
ATOM RegisterClassA(const WNDCLASSA* windowClass);
/// The name may be an atom in the way of MAKEINTRESOURCE. FALSE and error 1411 when there is none.
BOOL GetClassInfoA(HINSTANCE instance, LPCSTR name, LPWNDCLASSA windowClass);
/// FALSE and error 1411 (no such class) or 1412 (a window of it lives).
BOOL UnregisterClassA(LPCSTR name, HINSTANCE instance);

/// A window without borders or bars: its client area is the whole of it. A child's place is in its parent's
/// client pixels, any other's on the screen; `menu` is a child's id. WM_NCCREATE answering 0 or WM_CREATE
/// answering -1 undoes it. Null on failure.
HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR name, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID param);
/// Takes the focus and the picture away, then WM_DESTROY, then the children go, then WM_NCDESTROY. FALSE when
/// the window is none or is being destroyed already; safe inside the window's own handlers.
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);
BOOL IsChild(HWND parent, HWND window);
/// A child's parent, a pop-up's owner, else null.
HWND GetParent(HWND window);
int GetDlgCtrlID(HWND window);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
/// In screen pixels.
BOOL GetWindowRect(HWND window, LPRECT rect);
/// Left and top are 0.
BOOL GetClientRect(HWND window, LPRECT rect);
/// TRUE when the window was visible before.
BOOL ShowWindow(HWND window, int command);
/// TRUE when the window and all its parents are shown.
BOOL IsWindowVisible(HWND window);
BOOL ClientToScreen(HWND window, LPPOINT point);
BOOL ScreenToClient(HWND window, LPPOINT point);
/// The topmost visible child that holds the point (client pixels of `parent`), `parent` itself when no child
/// does, null when the point lies outside it.
HWND ChildWindowFromPoint(HWND parent, POINT point);

/// A window's text by WM_SETTEXT, WM_GETTEXT and WM_GETTEXTLENGTH: by default its title, for an edit control
/// what it holds. Null is the empty text.
BOOL SetWindowTextA(HWND window, LPCSTR text);
/// Copies at most `size` bytes with the closing zero; answers the length copied.
int GetWindowTextA(HWND window, LPSTR buffer, int size);
int GetWindowTextLengthA(HWND window);

/// Fields of a window. The 32-bit forms refuse GWL_WNDPROC (error 1413), which is a pointer here.
LONG GetWindowLongA(HWND window, int index);
LONG SetWindowLongA(HWND window, int index, LONG value);
LONG_PTR GetWindowLongPtrA(HWND window, int index);
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
/// Fields of a window's class; a change holds for all windows of the class. GCL_HCURSOR fits the 32-bit
/// forms.
DWORD GetClassLongA(HWND window, int index);
DWORD SetClassLongA(HWND window, int index, LONG value);
ULONG_PTR GetClassLongPtrA(HWND window, int index);
ULONG_PTR SetClassLongPtrA(HWND window, int index, LONG_PTR value);

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
/// WM_NCCREATE answers TRUE, WM_ERASEBKGND fills with the class's brush, WM_PAINT validates, WM_SETCURSOR
/// sets the class's cursor, WM_CLOSE destroys, WM_SETTEXT and its kin keep the title, which starts as the
/// name given at creation; anything else answers 0.
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The window that held the capture before; the loser is sent WM_CAPTURECHANGED with the new holder.
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
/// The window that had the focus before; WM_KILLFOCUS goes out first, then WM_SETFOCUS. Null takes the focus
/// away.
HWND SetFocus(HWND window);
HWND GetFocus();

/// A null window posts to the thread. FALSE and error 1400 when there is no such window.
BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
/// The next message, removed: 1. 0 for WM_QUIT, and (as WM_NULL) when nothing is queued or due: with one
/// thread and a clock that may stand still nothing could ever arrive. -1 when there is no such window.
BOOL GetMessageA(LPMSG message, HWND window, UINT first, UINT last);
/// Looks for the next message to `window` or a child of it (null: any) in the range (0, 0: any). Posted ones
/// come first, then WM_PAINT, then WM_TIMER.
BOOL PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove);
LRESULT DispatchMessageA(const MSG* message);
/// Puts the WM_CHAR of a letter, digit, SPACE, ENTER, ESC, TAB or BACKSPACE key-down at the head of the
/// queue. TRUE for any key message.
BOOL TranslateMessage(const MSG* message);
void PostQuitMessage(int exitCode);
LONG GetMessageTime();
DWORD GetMessagePos();

/// The high bit (a negative value) while the key is down, as the hardware has it now.
SHORT GetAsyncKeyState(int key);
/// The high bit while the key is down, as of the last message taken from the queue.
SHORT GetKeyState(int key);

/// The pointer in screen pixels.
BOOL GetCursorPos(LPPOINT point);
BOOL SetCursorPos(int x, int y);
/// Null hides the pointer; answers the cursor before.
HCURSOR SetCursor(HCURSOR cursor);
HCURSOR GetCursor();
/// A shared system cursor by its IDC_ id; null for any other name, and for a module's own cursors.
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name);

constexpr UINT USER_TIMER_MINIMUM = 10;

/// Sends WM_TIMER (or calls `procedure`) every `milliseconds`, at least USER_TIMER_MINIMUM; periods missed
/// are lost. The same window and id replace a running timer. Answers the id; without a window a new id, 0 on
/// failure.
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
/// FALSE when no such timer runs. A WM_TIMER that was not yet taken never comes.
BOOL KillTimer(HWND window, UINT_PTR id);
