// How a left click changes the selection, and how presses and releases reach the current tool.
#include "host/document_service.h"
#include "host/panels.h"
#include "ops/bus.h"
#include "tools/tool_core.h"
#include "undo/recorder.h"
#include "undo/sel_changed_event.h"

namespace {

constexpr int TextClickPage = 3; ///< what the text page is told at a click on a text object
constexpr int NewObjectClickPage =
    4; ///< what the object page is told at a click on an object that was not selected

using CSelectionRecorder = CUndoRecorder<CSelChangedUndoEvent>;

// A shadow is nothing to click on; a frame stands for the object it frames.
CImgNode* ClickedObject(CImgNode* pNode) {
    if (!pNode || pNode->IsShadowNode()) {
        return nullptr;
    }
    return pNode->IsFrameNode() ? pNode->m_pOwner : pNode;
}

/// Gathers what another tool records meanwhile, and deletes it: its steps never reach the undo stack.
class [[nodiscard]] CDiscardUndoScope {
  public:
    CDiscardUndoScope() { GetUndoMgr()->BeginPackUndoEvent(&m_events); }
    ~CDiscardUndoScope() {
        GetUndoMgr()->EndPackUndoEvent();
        while (!m_events.IsEmpty()) {
            delete m_events.RemoveHead();
        }
    }
    CDiscardUndoScope(const CDiscardUndoScope&) = delete;
    CDiscardUndoScope& operator=(const CDiscardUndoScope&) = delete;

  private:
    CUndoEventList m_events;
};

} // namespace

CImgNode* CToolCore::ClickedNode(CPoint point) { return ClickedObject(NodeUnderPoint(point)); }

int CToolCore::OnLButtonDblClk(UINT nFlags, CPoint point) { return OnLButtonDown(nFlags, point); }

int CToolCore::OnLButtonDown(UINT nFlags, CPoint point) {
    CCanvas canvas(*this);
    if (!canvas) {
        return 0;
    }
    if (IsOnExcludedNode(point) && !IsOnSelection(point)) {
        DeselectAll(1);
        return 1;
    }
    CImgNode* pNode = NodeUnderPoint(point);
    if (!pNode && !canvas.Selection().IsEmpty()) {
        return ClickEmptyGround();
    }
    return ClickObject(canvas, ClickedObject(pNode), nFlags, point);
}

int CToolCore::ClickEmptyGround() {
    CSelectionRecorder recorder(AsObjectTool());
    if (!recorder.CaptureBefore()) {
        return 0;
    }
    DeselectAll(1);
    if (!recorder.RecordChange()) {
        return 0;
    }
    SyncAttributePanels();
    return 1;
}

int CToolCore::ClickObject(CCanvas& canvas, CImgNode* pNode, UINT nFlags, CPoint point) {
    const Click click = ClassifyClick(canvas, pNode);
    CSelectionRecorder recorder(AsObjectTool());
    if (!recorder.CaptureBefore()) {
        return 0;
    }
    if (click != Click::Plain) {
        CListenerObject* pCurrent = AnnounceClick(canvas, click, pNode) ? CurrentTool() : nullptr;
        if (!pCurrent) {
            return 0;
        }
        if (pCurrent != this) {
            IToolInput* pInput = bus::Query<IToolInput>(pCurrent);
            const int nAnswer = pInput ? HandOverPress(*pInput, nFlags, point) : 0;
            return recorder.RecordChange() ? nAnswer : 0;
        }
    }
    SelectByClick(pNode);
    if (!recorder.RecordChange()) {
        return 0;
    }
    SyncAttributePanels();
    return 1;
}

CToolCore::Click CToolCore::ClassifyClick(const CCanvas& canvas, const CImgNode* pNode) {
    if (!pNode || IsCtrlDown()) {
        return Click::Plain;
    }
    if (pNode->m_nType == node_type::Text) {
        return Click::Text;
    }
    return canvas.IsSelected(pNode) ? Click::Plain : Click::NewObject;
}

// The selection goes before the page is told, so that whatever tool the host now makes current finds none.
// False when the page or its interface is missing.
bool CToolCore::AnnounceClick(CCanvas& canvas, Click click, const CImgNode* pNode) {
    if (OnlySelectedNode(canvas) != pNode) {
        DeselectAll(1);
    }
    if (click == Click::Text) {
        ITextAttributePanel* pPage = bus::FindService<ITextAttributePanel>(*this, kind::TextPage);
        if (pPage) {
            pPage->SelectPage(TextClickPage);
        }
        return pPage != nullptr;
    }
    IObjectPage* pPage = bus::FindService<IObjectPage>(*this, kind::ObjectPage);
    if (pPage) {
        pPage->SelectPage(NewObjectClickPage);
    }
    return pPage != nullptr;
}

int CToolCore::HandOverPress(IToolInput& input, UINT nFlags, CPoint point) {
    CDiscardUndoScope discarded;
    return input.OnLButtonDown(nFlags, point);
}

void CToolCore::SelectByClick(CImgNode* pNode) {
    if (!pNode) {
        DeselectAll(1);
    } else if (IsCtrlDown()) {
        ToggleNode(pNode);
    } else {
        SelectOnlyNode(pNode);
    }
}

int CToolCore::OnLButtonUp(UINT nFlags, CPoint point) {
    CListenerObject* pCurrent = CurrentTool();
    if (!pCurrent || pCurrent == this) {
        return 0;
    }
    IToolInput* pInput = bus::Query<IToolInput>(pCurrent);
    return pInput ? pInput->OnLButtonUp(nFlags, point) : 0;
}
