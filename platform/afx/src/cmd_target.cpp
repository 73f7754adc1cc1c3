#include "afxapp.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static constexpr AFX_MSGMAP_ENTRY messageEntries[] = {{0, AfxSig_end, AFX_MSGHANDLER()}};
    static constexpr AFX_MSGMAP messageMap = {nullptr, messageEntries};
    return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

namespace {

void DoWaitCursor(int nCode) {
    if (CWinApp* const pApp = AfxGetApp()) {
        pApp->DoWaitCursor(nCode);
    }
}

} // namespace

void CCmdTarget::BeginWaitCursor() { DoWaitCursor(1); }

void CCmdTarget::EndWaitCursor() { DoWaitCursor(-1); }

void CCmdTarget::RestoreWaitCursor() { DoWaitCursor(0); }

CWaitCursor::CWaitCursor() { DoWaitCursor(1); }

CWaitCursor::~CWaitCursor() { DoWaitCursor(-1); }

void CWaitCursor::Restore() { DoWaitCursor(0); }
