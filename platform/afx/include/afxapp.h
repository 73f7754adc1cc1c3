#pragma once

// The application object and the wait cursor.

#include "afxwnd.h"

/// The application. At most one is current: the first that was made and lives.
class CWinApp : public CCmdTarget {
    DECLARE_DYNAMIC(CWinApp)

    explicit CWinApp(LPCSTR lpszAppName = nullptr);
    ~CWinApp() override;

    /// Not owned; may be null.
    LPCSTR m_pszAppName;

    /// 1 begins a wait cursor, -1 ends one, 0 shows it again while one is on. The cursor before the first
    /// comes back after the last.
    virtual void DoWaitCursor(int nCode);
    /// To be called when no message waits: frees the temporary objects. FALSE: there is no more to do.
    virtual BOOL OnIdle(LONG lCount);

  protected:
    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;
};

/// The current application; null when there is none.
CWinApp* AfxGetApp();
/// The executable's handle, unless another was set.
HINSTANCE AfxGetInstanceHandle();
/// Where the program's own resources are; the executable unless another was set.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE hInstResource);

/// The wait cursor for as long as the object lives.
class [[nodiscard]] CWaitCursor {
  public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    /// Shows it again after something else has set the cursor.
    void Restore();
};
