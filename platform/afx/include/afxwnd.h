#pragma once

// Targets of messages, and the window.

#include "afx.h"
#include "afxmsg_.h"
#include "afxrect.h"

/// The base of all that has a message map.
class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

    /// The wait cursor, nested (see CWinApp::DoWaitCursor). Without an application object they do nothing.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

  protected:
    CCmdTarget() = default;

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

/// A window. The object and the window are bound by Attach or creation and part when the window goes;
/// destroying the object destroys the window. An object may be destroyed and deleted inside a handler of its
/// own, when the handler touches it no more. Coordinates are client pixels unless said otherwise; an object
/// without a window stands for the null handle.
class CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)

    HWND m_hWnd = nullptr;

    CWnd() = default;
    ~CWnd() override;

    /// The window's object; a temporary one, good until the next DeleteTempMap, where it has none. Null for
    /// null.
    static CWnd* FromHandle(HWND hWnd);
    /// The window's own object, or null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    static void DeleteTempMap();

    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }

    /// Binds a window without taking over its procedure. FALSE for null, and when memory is short.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    /// A child window. The rectangle is in the parent's client pixels.
    virtual BOOL Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Any window. On failure PostNcDestroy has been called, so an object that deletes itself there is gone.
    BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();
    /// Sees a message before it is dispatched (see AfxPreTranslateMessage); TRUE when it has dealt with it.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongA(m_hWnd, GWL_STYLE)); }

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::PostMessageA(m_hWnd, message, wParam, lParam);
    }
    /// The message being handled; null outside of handlers.
    static const MSG* GetCurrentMessage();

    /// The title, or what an edit control holds.
    void SetWindowText(LPCSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    void GetWindowText(CString& rString) const;
    /// Copies at most `nMaxCount` bytes with the closing zero; answers the length copied.
    int GetWindowText(LPSTR lpszString, int nMaxCount) const {
        return ::GetWindowTextA(m_hWnd, lpszString, nMaxCount);
    }
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }

    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }

    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    /// In screen pixels.
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPRECT lpRect) const;
    /// In the parent's client pixels.
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }

    /// Setting answers the window that held the capture or the focus before.
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }

    /// A context on the client area, to be given back by ReleaseDC, which ends it; null on failure.
    CDC* GetDC();
    int ReleaseDC(CDC* pDC);

    /// Every `nElapse` milliseconds OnTimer(nIDEvent), or the procedure. 0 on failure.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

  protected:
    /// May change what the window is created with; FALSE gives the creation up.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Looks the message up in the message maps; TRUE when a handler took it, `*pResult` then being its
    /// answer.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// What the window's own procedure, or the system, does with the message.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The last call after the window is gone and detached: an object that owns itself deletes itself here.
    virtual void PostNcDestroy();

    /// The default treatment of the message being handled.
    LRESULT Default();

    afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnNcDestroy();
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnTimer(UINT) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }

    DECLARE_MESSAGE_MAP()

  private:
    friend LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    LRESULT CallHandler(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam);
    BOOL CallEraseBkgnd(BOOL (CWnd::*pfn)(CDC*), HDC hDC);
    BOOL CreateOwn(const CREATESTRUCT& cs);
    BOOL CreateForeign(const CREATESTRUCT& cs);
    BOOL GiveUp(HWND hWnd);
    BOOL TakeOver(HWND hWnd);

    /// The procedure of a window class that is not the framework's; null for the framework's own.
    WNDPROC m_pfnSuper = nullptr;
};

/// The procedure of all windows of the framework's classes.
LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

/// Gives the message to the object's WindowProc. The object may be gone afterwards.
LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

/// Offers the message to the objects of its window and of the windows above, parents and owners, until one
/// deals with it. TRUE when one did: the message is then not to be translated or dispatched.
BOOL AfxPreTranslateMessage(MSG* pMsg);

/// The name of a window class with these values, registered at its first use. It is good until the next call;
/// null on failure.
LPCSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr, HBRUSH hbrBackground = nullptr,
                           HICON hIcon = nullptr);
