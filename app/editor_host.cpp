#include "editor_host.h"

#include <utility>

#include "code_page.h"
#include "desk/desk.h"

namespace {

constexpr int EditorId = 100;

} // namespace

CEditorHost::~CEditorHost() { Destroy(); }

void CEditorHost::OnModuleGoes() {
    Destroy();
    m_bBound = false;
}

int CEditorHost::New(CPoint ptAnchor, const std::string& text, int nVisible) {
    Destroy();
    m_pEditor = m_bBound && m_desk.View() ? MakeEditor(m_calls) : nullptr;
    if (!m_pEditor) {
        return 0;
    }
    CString strText(text.data(), static_cast<int>(text.size()));
    const int nResult = (m_pEditor->*m_calls.m_fnCreate)(m_desk.View(), ptAnchor, strText, nVisible);
    if (nResult != 1) {
        Destroy();
        return nResult;
    }
    Listen(*m_pEditor, true);
    if (nVisible) {
        m_pEditor->SetFocus();
    }
    return nResult;
}

int CEditorHost::Destroy() {
    if (!m_pEditor) {
        return 0;
    }
    Listen(*m_pEditor, false);
    DeleteEditor();
    return 1;
}

// A tool's editor loses its input with the focus, so while one is open it has the focus: but for one whose
// tool is no longer told.
CInplaceEditor* CEditorHost::ToolEditor() const {
    HWND hOwn = m_pEditor ? m_pEditor->m_hWnd : nullptr;
    if (HWND hFocus = ::GetFocus(); hFocus != hOwn && IsEditor(hFocus)) {
        m_hToolEditor = hFocus;
    }
    const bool bOpen = m_hToolEditor != hOwn && IsEditor(m_hToolEditor);
    return bOpen ? static_cast<CInplaceEditor*>(CWnd::FromHandlePermanent(m_hToolEditor)) : nullptr;
}

bool CEditorHost::IsEditor(HWND hWnd) const {
    return m_bBound && m_desk.View() && ::IsWindow(hWnd) && ::GetParent(hWnd) == m_desk.View()->m_hWnd &&
           ::GetDlgCtrlID(hWnd) == EditorId;
}

void CEditorHost::OnInputEnded(CInplaceEditor* pEditor) {
    if (pEditor != m_pEditor) {
        return;
    }
    CString strText;
    (pEditor->*m_calls.m_fnGetText)(strText);
    m_endedText = BytesOf(strText);
    m_nEndedInputs++;
    DeleteEditor();
}

// Its window's end takes the focus away, which must not reach a host that has let go of it.
void CEditorHost::DeleteEditor() {
    CInplaceEditor* pEditor = std::exchange(m_pEditor, nullptr);
    pEditor->DestroyWindow();
    delete pEditor;
    if (m_desk.View()) {
        m_desk.View()->SetFocus();
    }
}
