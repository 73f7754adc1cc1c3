#include "stage.h"

#include <utility>

#include "code_page.h"
#include "ctrl_scope.h"
#include "editor_host.h"
#include "platform/clipboard.h"
#include "services/drag_host.h"

int CStage::NewEditor(CPoint ptAnchor, const std::string& text, Show show) {
    return m_pEditorHost->New(ptAnchor, text, show == Show::Now ? 1 : 0);
}

CInplaceEditor* CStage::Editor() const { return m_pEditorHost->Editor(); }

const EditorCalls* CStage::EditorOperations() const { return m_pEditorHost->Calls(); }

void CStage::FocusEditor() {
    if (CInplaceEditor* pEditor = Editor()) {
        pEditor->SetFocus();
    }
}

void CStage::EndEditor() {
    if (CInplaceEditor* pEditor = Editor()) {
        (pEditor->*EditorOperations()->m_fnEndInput)();
    }
}

void CStage::LeaveEditors() {
    DestroyEditor();
    EndEditor();
}

int CStage::DestroyEditor() { return m_pEditorHost->Destroy(); }

void CStage::SelectText(int nLine1, int nIndex1, int nLine2, int nIndex2) {
    if (CInplaceEditor* pEditor = Editor()) {
        (pEditor->*EditorOperations()->m_fnSetSelectRange)(nLine1, nIndex1, nLine2, nIndex2);
    }
}

std::string CStage::EditorText() const {
    CString strText;
    if (const CInplaceEditor* pEditor = Editor()) {
        (pEditor->*EditorOperations()->m_fnGetText)(strText);
    }
    return BytesOf(strText);
}

std::string CStage::SelectedText() const {
    CString strText;
    if (const CInplaceEditor* pEditor = Editor()) {
        (pEditor->*EditorOperations()->m_fnGetSelectedText)(strText);
    }
    return BytesOf(strText);
}

std::vector<std::string> CStage::EditorLines() const {
    std::vector<std::string> lines;
    if (const CInplaceEditor* pEditor = Editor()) {
        for (POSITION position = pEditor->Lines().Begin(); position;) {
            lines.push_back(BytesOf(pEditor->Lines().Next(position)));
        }
    }
    return lines;
}

int CStage::EndedInputs() const { return m_pEditorHost->EndedInputs(); }

const std::string& CStage::EndedText() const { return m_pEditorHost->EndedText(); }

/// The window under the pointer, whoever has the capture; the point becomes one of its client pixels.
HWND CStage::DropWindowAt(CPoint& point) {
    HWND hView = m_desk.View()->m_hWnd;
    SetPointer(point);
    HWND hWnd = ::ChildWindowFromPoint(hView, point);
    if (hWnd) {
        ::ClientToScreen(hView, &point);
        ::ScreenToClient(hWnd, &point);
    }
    return hWnd;
}

DropAnswer CStage::OfferText(const std::string& text, CPoint point, const DropOffer& offer, int nPhase) {
    HWND hWnd = DropWindowAt(point);
    if (hWnd != m_hHovered) {
        LeaveDrop();
    }
    CCtrlScope held(offer.ctrl);
    const DWORD dwKeys = MK_LBUTTON | (::GetAsyncKeyState(VK_CONTROL) < 0 ? MK_CONTROL : 0);
    DropAnswer answer;
    const int nAnswer =
        DropText(hWnd, point, text, offer.format, dwKeys, offer.source, nPhase, &answer.effect);
    m_hHovered = nAnswer >= 0 && nPhase == drop_phase::Over ? hWnd : nullptr;
    answer.result = nAnswer >= 0 ? nAnswer : 0;
    return answer;
}

DropAnswer CStage::Hover(const std::string& text, CPoint point, const DropOffer& offer) {
    return OfferText(text, point, offer, drop_phase::Over);
}

// Whoever lets a text go somewhere has moved it there before.
DropAnswer CStage::Drop(const std::string& text, CPoint point, const DropOffer& offer) {
    OfferText(text, point, offer, drop_phase::Over);
    return OfferText(text, point, offer, drop_phase::Drop);
}

void CStage::LeaveDrop() {
    if (HWND hLeft = std::exchange(m_hHovered, nullptr)) {
        ::LeaveDrop(hLeft);
    }
}

DropAnswer CStage::DragText(CPoint ptFrom, CPoint ptTo, Ctrl ctrl) {
    const unsigned nBefore = DragCount();
    Drag(ptFrom, ptTo, ctrl);
    const bool bDragged = DragCount() != nBefore;
    return {bDragged ? 1 : 0, bDragged ? LastDragEffect() : DWORD{drop_effect::None}};
}

std::optional<std::string> CStage::Clipboard() const {
    if (!::IsClipboardFormatAvailable(CF_TEXT)) {
        return std::nullopt;
    }
    return platform::ClipboardText();
}

void CStage::SetClipboard(const std::string& text) { platform::SetClipboardText(text); }
