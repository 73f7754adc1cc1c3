#include "ops/selection.h"

#include "ops/canvas.h"
#include "ops/nodes.h"
#include "ops/refresh.h"
#include "ops/selection_class.h"

namespace {

// As one step on the screen.
void ToggleAll(CTool& tool, const CCanvas& canvas, const CNodeRefList& nodes) {
    CTouchedArea area(tool, &SelectionRect);
    tool.ShowSelectionMarks(0);
    for (CImgNode* pNode : Each(nodes)) {
        if (canvas.IsSelected(pNode)) {
            Deselect(canvas, pNode);
        } else {
            Select(canvas, pNode);
        }
    }
    tool.ShowSelectionMarks(1);
    area.After().Repaint(canvas);
}

// Only the given nodes that are not selected are toggled.
void ToggleUnselected(CTool& tool, const CCanvas& canvas, const CNodeRefList& nodes) {
    CNodeRefList unselected;
    for (CImgNode* pNode : Each(nodes)) {
        if (pNode && !canvas.IsSelected(pNode)) {
            unselected.AddTail(pNode);
        }
    }
    ToggleAll(tool, canvas, unselected);
}

} // namespace

void Select(const CCanvas& canvas, CImgNode* pNode) {
    if (!canvas.IsSelected(pNode)) {
        canvas.Selection().AddTail(pNode);
    }
}

void Deselect(const CCanvas& canvas, CImgNode* pNode) { TakeOut(canvas.Selection(), pNode); }

void ClearSelection(const CCanvas& canvas) {
    while (!canvas.Selection().IsEmpty()) {
        canvas.Selection().RemoveHead();
    }
}

void SelectOnly(CTool& tool, CImgNode* pNode) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return;
    }
    if (!pNode) {
        tool.DeselectAll(1);
        return;
    }
    if (canvas.OnlySelected() == pNode) {
        return;
    }
    CTouchedArea area(tool, &SelectionRect);
    ClearSelection(canvas);
    canvas.Selection().AddTail(pNode);
    area.After().FlushMarkRepaint(canvas, tool);
}

void Toggle(CTool& tool, CImgNode* pNode) {
    const CCanvas canvas(tool);
    if (!canvas || !pNode) {
        return;
    }
    CNodeRefList nodes;
    nodes.AddTail(pNode);
    ToggleAll(tool, canvas, nodes);
}

int selection::ClearSelection(CTool& tool) {
    const CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return 0;
    }
    ::ClearSelection(canvas);
    return 1;
}

int selection::DeselectAll(CTool& tool, int nRedraw) {
    const CCanvas canvas(tool);
    if (!canvas || !canvas.HasSelection()) {
        return 0;
    }
    const Shown shown = ShownAs(canvas.Selection());
    CRefresh area;
    tool.ShowSelectionMarks(0);
    for (CImgNode* pNode : Each(canvas.Selection())) {
        if (nRedraw == 1) {
            area.Add(MarkRect(tool, pNode, shown));
        }
        Deselect(canvas, pNode);
    }
    if (nRedraw == 1) {
        area.Repaint(canvas);
    }
    return 1;
}

int selection::AddToSelection(CTool& tool, CNodeRefList& nodes) {
    const CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return 0;
    }
    for (CImgNode* pNode : Each(nodes)) {
        if (pNode) {
            Select(canvas, pNode);
        }
    }
    return 1;
}

int selection::SetSelection(CTool& tool, CNodeRefList& nodes, int nToggle) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return 0;
    }
    if (nToggle == 1) {
        ToggleUnselected(tool, canvas, nodes);
        return 1;
    }
    tool.ShowSelectionMarks(0);
    for (CImgNode* pNode : Each(nodes)) {
        if (pNode) {
            canvas.Selection().AddTail(pNode);
        }
    }
    tool.ShowSelectionMarks(1);
    return 1;
}

void selection::CopySelection(CTool& tool, CNodeRefList& nodes) {
    nodes.RemoveAll();
    const CCanvas canvas(tool);
    if (canvas.HasDocument()) {
        CopyList(canvas.Selection(), nodes);
    }
}

int selection::ClassifySelection(CTool& tool) {
    CNodeRefList nodes;
    CopySelection(tool, nodes);
    return tool.ClassifyNodes(nodes);
}

int selection::ClassifyNodes(const CNodeRefList& nodes) {
    int nTexts = 0;
    int nOthers = 0;
    for (const CImgNode* pNode : Each(nodes)) {
        if (pNode) {
            ++(pNode->m_nType == node_type::Text ? nTexts : nOthers);
        }
    }
    if (nTexts && nOthers) {
        return selection_class::Mixed;
    }
    if (nTexts) {
        return nTexts == 1 ? selection_class::OneText : selection_class::SeveralTexts;
    }
    if (nOthers) {
        return nOthers == 1 ? selection_class::OneOther : selection_class::SeveralOthers;
    }
    return selection_class::Nothing;
}
