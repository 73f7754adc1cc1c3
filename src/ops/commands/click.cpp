#include "ops/commands/click.h"

#include "host/panels.h"
#include "ops/canvas.h"
#include "ops/current_tool.h"
#include "ops/hit_test.h"
#include "ops/nodes.h"
#include "ops/selection.h"
#include "undo/recorder.h"
#include "undo/sel_changed_event.h"

namespace {

constexpr int TextClickPage = 3; ///< what the text page is told at a click on a text object
constexpr int NewObjectClickPage =
    4; ///< what the object page is told at a click on an object that was not selected

enum class Click { Plain, Text, NewObject };

using CSelectionRecorder = CUndoRecorder<CSelChangedUndoEvent>;

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

int HandOverPress(CListenerObject* pCurrent, UINT nFlags, CPoint point) {
    IToolInput* pInput = bus::Query<IToolInput>(pCurrent);
    if (!pInput) {
        return 0;
    }
    CDiscardUndoScope discarded;
    return pInput->OnLButtonDown(nFlags, point);
}

Click ClassifyClick(CTool& tool, const CCanvas& canvas, const CImgNode* pNode) {
    if (!pNode || tool.IsCtrlDown()) {
        return Click::Plain;
    }
    if (pNode->m_nType == node_type::Text) {
        return Click::Text;
    }
    return canvas.IsSelected(pNode) ? Click::Plain : Click::NewObject;
}

// False when the page or its interface is missing.
template <class TPage>
bool TellPage(CTool& tool, int nKind, int nPage) {
    TPage* pPage = bus::FindService<TPage>(tool, nKind);
    if (pPage) {
        pPage->SelectPage(nPage);
    }
    return pPage != nullptr;
}

// The selection goes before the page is told, so that whatever tool the host now makes current finds none.
bool AnnounceClick(CTool& tool, const CCanvas& canvas, Click click, const CImgNode* pNode) {
    if (canvas.OnlySelected() != pNode) {
        tool.DeselectAll(1);
    }
    return click == Click::Text ? TellPage<ITextAttributePanel>(tool, kind::TextPage, TextClickPage)
                                : TellPage<IObjectPage>(tool, kind::ObjectPage, NewObjectClickPage);
}

void SelectByClick(CTool& tool, CImgNode* pNode) {
    if (!pNode) {
        tool.DeselectAll(1);
    } else if (tool.IsCtrlDown()) {
        Toggle(tool, pNode);
    } else {
        SelectOnly(tool, pNode);
    }
}

int FinishClick(CTool& tool, CSelectionRecorder& recorder) {
    if (recorder.RecordChange(tool) == Recorded::NoCapture) {
        return 0;
    }
    tool.SyncAttributePanels();
    return 1;
}

int ClickEmptyGround(CTool& tool) {
    CSelectionRecorder recorder;
    if (!recorder.CaptureBefore(tool)) {
        return 0;
    }
    tool.DeselectAll(1);
    return FinishClick(tool, recorder);
}

int ClickObject(CTool& tool, const CCanvas& canvas, CImgNode* pNode, UINT nFlags, CPoint point) {
    const Click click = ClassifyClick(tool, canvas, pNode);
    CSelectionRecorder recorder;
    if (!recorder.CaptureBefore(tool)) {
        return 0;
    }
    if (click != Click::Plain) {
        CListenerObject* pCurrent = AnnounceClick(tool, canvas, click, pNode) ? CurrentTool(tool) : nullptr;
        if (!pCurrent) {
            return 0;
        }
        if (pCurrent != &tool) {
            const int nAnswer = HandOverPress(pCurrent, nFlags, point);
            return recorder.RecordChange(tool) == Recorded::NoCapture ? 0 : nAnswer;
        }
    }
    SelectByClick(tool, pNode);
    return FinishClick(tool, recorder);
}

} // namespace

int click::OnLButtonDown(CTool& tool, UINT nFlags, CPoint point) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return 0;
    }
    if (IsOnExcludedNode(tool, point) && !IsOnSelection(tool, point)) {
        tool.DeselectAll(1);
        return 1;
    }
    CImgNode* pNode = NodeUnderPoint(tool, point);
    if (!pNode && canvas.HasSelection()) {
        return ClickEmptyGround(tool);
    }
    return ClickObject(tool, canvas, ClickedObject(pNode), nFlags, point);
}

int click::OnLButtonUp(CTool& tool, UINT nFlags, CPoint point) {
    CListenerObject* pCurrent = CurrentTool(tool);
    if (!pCurrent || pCurrent == &tool) {
        return 0;
    }
    IToolInput* pInput = bus::Query<IToolInput>(pCurrent);
    return pInput ? pInput->OnLButtonUp(nFlags, point) : 0;
}

int click::SelectOnly(CTool& tool, CImgNode* pNode) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return 0;
    }
    if (!pNode) {
        tool.DeselectAll(1);
        return 1;
    }
    CNodeRefList selected;
    CopyList(canvas.Selection(), selected);
    for (CImgNode* pOther : Each(selected)) {
        if (pOther != pNode) {
            Toggle(tool, pOther);
        }
    }
    if (!canvas.IsSelected(pNode)) {
        Toggle(tool, pNode);
    }
    return 1;
}
