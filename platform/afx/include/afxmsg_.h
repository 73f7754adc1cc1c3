#pragma once

// Message maps: tables of a message number and the member function that handles it, one a class, chained to
// the base's.

#include <windows.h>

class CCmdTarget;
class CDC;
class CPoint;
class CWnd;

/// How a handler takes its arguments from WPARAM and LPARAM.
enum AfxSig : UINT {
    AfxSig_end = 0, ///< closes a table
    AfxSig_vv,      ///< void ()
    AfxSig_bD,      ///< BOOL (CDC*)
    AfxSig_is,      ///< int (LPCREATESTRUCT)
    AfxSig_wv,      ///< UINT ()
    AfxSig_vw,      ///< void (UINT)
    AfxSig_vbw,     ///< void (BOOL, UINT)
    AfxSig_vwii,    ///< void (UINT, int, int)
    AfxSig_vwp,     ///< void (UINT, CPoint)
    AfxSig_vwww,    ///< void (UINT, UINT, UINT)
    AfxSig_vW,      ///< void (CWnd*), the window in WPARAM
    AfxSig_vlW,     ///< void (CWnd*), the window in LPARAM
    AfxSig_bWww,    ///< BOOL (CWnd*, UINT, UINT)
    AfxSig_lwl      ///< LRESULT (WPARAM, LPARAM)
};

/// A handler by its signature: the constructor that takes a function is the only way in, so none is called as
/// another type.
union AFX_MSGHANDLER {
    void (CWnd::*pfn_vv)();
    BOOL (CWnd::*pfn_bD)(CDC*);
    int (CWnd::*pfn_is)(LPCREATESTRUCT);
    UINT (CWnd::*pfn_wv)();
    void (CWnd::*pfn_vw)(UINT);
    void (CWnd::*pfn_vbw)(BOOL, UINT);
    void (CWnd::*pfn_vwii)(UINT, int, int);
    void (CWnd::*pfn_vwp)(UINT, CPoint);
    void (CWnd::*pfn_vwww)(UINT, UINT, UINT);
    void (CWnd::*pfn_vW)(CWnd*);
    BOOL (CWnd::*pfn_bWww)(CWnd*, UINT, UINT);
    LRESULT (CWnd::*pfn_lwl)(WPARAM, LPARAM);

    constexpr AFX_MSGHANDLER() : pfn_vv(nullptr) {}
    constexpr AFX_MSGHANDLER(void (CWnd::*pfn)()) : pfn_vv(pfn) {}
    constexpr AFX_MSGHANDLER(BOOL (CWnd::*pfn)(CDC*)) : pfn_bD(pfn) {}
    constexpr AFX_MSGHANDLER(int (CWnd::*pfn)(LPCREATESTRUCT)) : pfn_is(pfn) {}
    constexpr AFX_MSGHANDLER(UINT (CWnd::*pfn)()) : pfn_wv(pfn) {}
    constexpr AFX_MSGHANDLER(void (CWnd::*pfn)(UINT)) : pfn_vw(pfn) {}
    constexpr AFX_MSGHANDLER(void (CWnd::*pfn)(BOOL, UINT)) : pfn_vbw(pfn) {}
    constexpr AFX_MSGHANDLER(void (CWnd::*pfn)(UINT, int, int)) : pfn_vwii(pfn) {}
    constexpr AFX_MSGHANDLER(void (CWnd::*pfn)(UINT, CPoint)) : pfn_vwp(pfn) {}
    constexpr AFX_MSGHANDLER(void (CWnd::*pfn)(UINT, UINT, UINT)) : pfn_vwww(pfn) {}
    constexpr AFX_MSGHANDLER(void (CWnd::*pfn)(CWnd*)) : pfn_vW(pfn) {}
    constexpr AFX_MSGHANDLER(BOOL (CWnd::*pfn)(CWnd*, UINT, UINT)) : pfn_bWww(pfn) {}
    constexpr AFX_MSGHANDLER(LRESULT (CWnd::*pfn)(WPARAM, LPARAM)) : pfn_lwl(pfn) {}
};

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    AfxSig nSig;
    AFX_MSGHANDLER pfn;
};

struct AFX_MSGMAP {
    /// Null for the map at the root.
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define DECLARE_MESSAGE_MAP()                                                                                \
  protected:                                                                                                 \
    static const AFX_MSGMAP* GetThisMessageMap();                                                            \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }                        \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                                        \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static constexpr AFX_MSGMAP_ENTRY messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    { 0, AfxSig_end, AFX_MSGHANDLER() }                                                                      \
    }                                                                                                        \
    ;                                                                                                        \
    static constexpr AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, messageEntries};             \
    return &messageMap;                                                                                      \
    }

#define AFX_HANDLER(signature, member) AFX_MSGHANDLER(static_cast<signature>(&ThisClass::member))

#define ON_WM_CREATE() {WM_CREATE, AfxSig_is, AFX_HANDLER(int(CWnd::*)(LPCREATESTRUCT), OnCreate)},
#define ON_WM_DESTROY() {WM_DESTROY, AfxSig_vv, AFX_HANDLER(void(CWnd::*)(), OnDestroy)},
#define ON_WM_NCDESTROY() {WM_NCDESTROY, AfxSig_vv, AFX_HANDLER(void(CWnd::*)(), OnNcDestroy)},
#define ON_WM_SIZE() {WM_SIZE, AfxSig_vwii, AFX_HANDLER(void(CWnd::*)(UINT, int, int), OnSize)},
#define ON_WM_SETFOCUS() {WM_SETFOCUS, AfxSig_vW, AFX_HANDLER(void(CWnd::*)(CWnd*), OnSetFocus)},
#define ON_WM_KILLFOCUS() {WM_KILLFOCUS, AfxSig_vW, AFX_HANDLER(void(CWnd::*)(CWnd*), OnKillFocus)},
#define ON_WM_SHOWWINDOW() {WM_SHOWWINDOW, AfxSig_vbw, AFX_HANDLER(void(CWnd::*)(BOOL, UINT), OnShowWindow)},
#define ON_WM_GETDLGCODE() {WM_GETDLGCODE, AfxSig_wv, AFX_HANDLER(UINT(CWnd::*)(), OnGetDlgCode)},
#define ON_WM_PAINT() {WM_PAINT, AfxSig_vv, AFX_HANDLER(void(CWnd::*)(), OnPaint)},
#define ON_WM_ERASEBKGND() {WM_ERASEBKGND, AfxSig_bD, AFX_HANDLER(BOOL(CWnd::*)(CDC*), OnEraseBkgnd)},
#define ON_WM_SETCURSOR()                                                                                    \
    {WM_SETCURSOR, AfxSig_bWww, AFX_HANDLER(BOOL(CWnd::*)(CWnd*, UINT, UINT), OnSetCursor)},
#define ON_WM_KEYDOWN() {WM_KEYDOWN, AfxSig_vwww, AFX_HANDLER(void(CWnd::*)(UINT, UINT, UINT), OnKeyDown)},
#define ON_WM_KEYUP() {WM_KEYUP, AfxSig_vwww, AFX_HANDLER(void(CWnd::*)(UINT, UINT, UINT), OnKeyUp)},
#define ON_WM_CHAR() {WM_CHAR, AfxSig_vwww, AFX_HANDLER(void(CWnd::*)(UINT, UINT, UINT), OnChar)},
#define ON_WM_TIMER() {WM_TIMER, AfxSig_vw, AFX_HANDLER(void(CWnd::*)(UINT), OnTimer)},
#define ON_WM_MOUSEMOVE() {WM_MOUSEMOVE, AfxSig_vwp, AFX_HANDLER(void(CWnd::*)(UINT, CPoint), OnMouseMove)},
#define ON_WM_LBUTTONDOWN()                                                                                  \
    {WM_LBUTTONDOWN, AfxSig_vwp, AFX_HANDLER(void(CWnd::*)(UINT, CPoint), OnLButtonDown)},
#define ON_WM_LBUTTONUP() {WM_LBUTTONUP, AfxSig_vwp, AFX_HANDLER(void(CWnd::*)(UINT, CPoint), OnLButtonUp)},
#define ON_WM_LBUTTONDBLCLK()                                                                                \
    {WM_LBUTTONDBLCLK, AfxSig_vwp, AFX_HANDLER(void(CWnd::*)(UINT, CPoint), OnLButtonDblClk)},
#define ON_WM_RBUTTONDOWN()                                                                                  \
    {WM_RBUTTONDOWN, AfxSig_vwp, AFX_HANDLER(void(CWnd::*)(UINT, CPoint), OnRButtonDown)},
#define ON_WM_RBUTTONUP() {WM_RBUTTONUP, AfxSig_vwp, AFX_HANDLER(void(CWnd::*)(UINT, CPoint), OnRButtonUp)},
#define ON_WM_CAPTURECHANGED()                                                                               \
    {WM_CAPTURECHANGED, AfxSig_vlW, AFX_HANDLER(void(CWnd::*)(CWnd*), OnCaptureChanged)},
/// Any message; the handler is `LRESULT memberFxn(WPARAM, LPARAM)`.
#define ON_MESSAGE(message, memberFxn)                                                                       \
    {message, AfxSig_lwl, AFX_HANDLER(LRESULT(CWnd::*)(WPARAM, LPARAM), memberFxn)},
