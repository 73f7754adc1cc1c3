#include "afxapp.h"
#include "afxdll_.h"
#include "afxgdi.h"
#include "afxmenu.h"

#include "seam.h"

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

CWinApp::CWinApp(LPCSTR lpszAppName) : m_pszAppName(lpszAppName) {
    AFX_MODULE_STATE* const pState = AfxGetModuleState();
    if (!pState->m_pCurrentWinApp) {
        pState->m_pCurrentWinApp = this;
    }
}

CWinApp::~CWinApp() {
    AFX_MODULE_STATE* const pState = AfxGetModuleState();
    if (pState->m_pCurrentWinApp == this) {
        pState->m_pCurrentWinApp = nullptr;
    }
}

void CWinApp::DoWaitCursor(int nCode) {
    ASSERT(nCode >= -1 && nCode <= 1);
    if (nCode != 0) {
        afx::TellWaitCursor(nCode);
    }

    m_nWaitCursorCount += nCode;
    if (m_nWaitCursorCount > 0) {
        const HCURSOR hcurBefore = ::SetCursor(::LoadCursorA(nullptr, IDC_WAIT));
        if (nCode > 0 && m_nWaitCursorCount == 1) {
            m_hcurWaitCursorRestore = hcurBefore;
        }
        return;
    }
    // One end too many must not make the next begin fail.
    m_nWaitCursorCount = 0;
    ::SetCursor(m_hcurWaitCursorRestore);
}

BOOL CWinApp::OnIdle(LONG) {
    CWnd::DeleteTempMap();
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
    return FALSE;
}

CWinApp* AfxGetApp() { return AfxGetModuleState()->m_pCurrentWinApp; }

HINSTANCE AfxGetInstanceHandle() {
    const HINSTANCE hInstance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return hInstance ? hInstance : ::GetModuleHandleA(nullptr);
}

HINSTANCE AfxGetResourceHandle() {
    const HINSTANCE hInstance = AfxGetModuleState()->m_hCurrentResourceHandle;
    return hInstance ? hInstance : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}
