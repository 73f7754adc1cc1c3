#include "host/drag_drop.h"

#include "services/drag_session.h"

namespace {

HWND HandleOf(CWnd* pWnd) { return pWnd && ::IsWindow(pWnd->m_hWnd) ? pWnd->m_hWnd : nullptr; }

} // namespace

CDragDropTarget::~CDragDropTarget() { CDragSession::SetTargetWindow(*this, nullptr); }

void CDragDropTarget::m_fnSetDropWindow(CWnd* pWnd) { CDragSession::SetTargetWindow(*this, HandleOf(pWnd)); }

void CDragDropTarget::m_fnEnableDropOperation(int nEnable) { m_nDropEnabled = nEnable != 0; }

int CDragDropTarget::m_fnOnDataArrive(int /*nReserved*/, int /*nPhase*/, UINT /*nFormat*/,
                                      CString& /*strData*/, DWORD /*dwKeyState*/, CPoint /*point*/,
                                      DWORD /*dwSource*/, DWORD* pdwEffect) {
    if (pdwEffect) {
        *pdwEffect = drop_effect::None;
    }
    return 0;
}

void CDragDropTarget::m_fnOnDataArrive_CF_TEXT(int /*nReserved*/, CString& /*strData*/, DWORD /*dwReserved*/,
                                               DWORD* pdwEffect) {
    if (pdwEffect) {
        *pdwEffect = drop_effect::None;
    }
}

void CDragDropTarget::m_fnOnDragLeave() {}

CDragDropSource::~CDragDropSource() { CDragSession::SetSourceWindow(*this, nullptr); }

void CDragDropSource::m_fnSetDragWindow(CWnd* pWnd) { CDragSession::SetSourceWindow(*this, HandleOf(pWnd)); }

void CDragDropSource::m_fnEnableDragOperation(int nEnable) { m_nDragEnabled = nEnable != 0; }

void CDragDropSource::m_fnSetAllowedDragOperation(DWORD dwMask) { m_dwAllowed = dwMask; }

void CDragDropSource::m_fnSetPreferClipboardFormat(UINT nFormat) { m_nFormat = nFormat; }

int CDragDropSource::m_fnOnPrepareDrag(CPoint& /*point*/) { return 0; }

int CDragDropSource::m_fnOnPrepareDragData_CF_TEXT(CPoint& /*point*/, CString& /*strData*/) { return 0; }
