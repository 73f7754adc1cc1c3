// The selection: its operations, rectangles and areas.
#include "ops/refresh.h"
#include "ops/selection_class.h"
#include "tools/tool_core.h"

int CToolCore::ClearSelection() {
    CCanvas canvas(*this);
    if (!canvas.HasDocument()) {
        return 0;
    }
    SelectNode(canvas, nullptr, 0);
    return 1;
}

// A null node empties the selection. Otherwise the node is appended (add 1, unless it is selected) or removed
// (add 0).
void CToolCore::SelectNode(CCanvas& canvas, CImgNode* pNode, int nAdd) {
    CImgNodeList& selection = canvas.Selection();
    if (!pNode) {
        while (!selection.IsEmpty()) {
            selection.RemoveHead();
        }
        return;
    }
    POSITION position = selection.Find(pNode);
    if (nAdd == 1 && !position) {
        selection.AddTail(pNode);
    } else if (nAdd != 1 && position) {
        selection.RemoveAt(position);
    }
}

void CToolCore::m_fnCopySelection(CCanvas& canvas, CNodeRefList& nodes) {
    nodes.RemoveAll();
    CImgNodeList& selection = canvas.Selection();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        nodes.AddTail(selection.GetNext(position));
    }
}

CImgNode* CToolCore::OnlySelectedNode(CCanvas& canvas) {
    return canvas.HasDocument() && canvas.Selection().GetCount() == 1 ? canvas.Selection().GetHead()
                                                                      : nullptr;
}

int CToolCore::DeselectAll(int nRedraw) {
    CCanvas canvas(*this);
    if (!canvas || canvas.Selection().IsEmpty()) {
        return 0;
    }
    CRefresh refresh;
    CImgNodeList& selection = canvas.Selection();
    const bool bOnly = selection.GetCount() == 1;
    ShowSelectionMarks(0);
    for (POSITION position = selection.GetHeadPosition(); position;) {
        const POSITION current = position;
        CImgNode* pNode = selection.GetNext(position);
        CRect rc(0, 0, 0, 0);
        if (nRedraw == 1) {
            bOnly ? GetNodeMarkRect(pNode, &rc) : GetNodeRect(pNode, &rc);
        }
        refresh.Add(rc);
        selection.RemoveAt(current);
    }
    if (nRedraw == 1) {
        RedrawRect(&refresh.Area());
    }
    return 1;
}

int CToolCore::AddToSelection(CNodeRefList& nodes) {
    CCanvas canvas(*this);
    if (!canvas.HasDocument()) {
        return 0;
    }
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        if (CImgNode* pNode = nodes.GetNext(position)) {
            SelectNode(canvas, pNode, 1);
        }
    }
    return 1;
}

int CToolCore::SetSelection(CNodeRefList& nodes, int nToggle) {
    CCanvas canvas(*this);
    if (!canvas) {
        return 0;
    }
    if (nToggle == 1) {
        ToggleNodes(canvas, nodes);
        return 1;
    }
    ShowSelectionMarks(0);
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        if (CImgNode* pNode = nodes.GetNext(position)) {
            canvas.Selection().AddTail(pNode);
        }
    }
    ShowSelectionMarks(1);
    return 1;
}

// Only the given nodes that are not selected are toggled, as one step on the screen.
void CToolCore::ToggleNodes(CCanvas& canvas, CNodeRefList& nodes) {
    CNodeRefList unselected;
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        if (pNode && !canvas.IsSelected(pNode)) {
            unselected.AddTail(pNode);
        }
    }
    Toggle(canvas, unselected);
}

void CToolCore::ToggleNode(CImgNode* pNode) {
    CCanvas canvas(*this);
    if (!canvas || !pNode) {
        return;
    }
    CNodeRefList nodes;
    nodes.AddTail(pNode);
    Toggle(canvas, nodes);
}

void CToolCore::Toggle(CCanvas& canvas, CNodeRefList& nodes) {
    CRect rcBefore(0, 0, 0, 0);
    GetSelectionRect(&rcBefore);
    ShowSelectionMarks(0);
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        SelectNode(canvas, pNode, canvas.IsSelected(pNode) ? 0 : 1);
    }
    ShowSelectionMarks(1);
    CRect rcAfter(0, 0, 0, 0);
    GetSelectionRect(&rcAfter);
    CRefresh refresh;
    refresh.Add(rcBefore);
    refresh.Add(rcAfter);
    RedrawRect(&refresh.Area());
}

void CToolCore::SelectOnlyNode(CImgNode* pNode) {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    if (!pNode) {
        DeselectAll(1);
        return;
    }
    if (OnlySelectedNode(canvas) == pNode) {
        return;
    }
    CRefresh refresh;
    CRect rcBefore(0, 0, 0, 0);
    GetSelectionRect(&rcBefore);
    refresh.Add(rcBefore);
    SelectNode(canvas, nullptr, 0);
    canvas.Selection().AddTail(pNode);
    CRect rcAfter(0, 0, 0, 0);
    GetSelectionRect(&rcAfter);
    refresh.Add(rcAfter);
    refresh.FlushMarkRepaint(canvas.View(), *this);
}

int CToolCore::GetSelectionRect(RECT* pRect) {
    CCanvas canvas(*this);
    if (!canvas || !pRect || canvas.Selection().IsEmpty()) {
        return 0;
    }
    if (CImgNode* pOnly = OnlySelectedNode(canvas)) {
        return GetNodeMarkRect(pOnly, pRect);
    }
    CRefresh refresh;
    CImgNodeList& selection = canvas.Selection();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        CRect rc(0, 0, 0, 0);
        GetNodeRect(selection.GetNext(position), &rc);
        refresh.Add(rc);
    }
    *pRect = refresh.Area();
    return 1;
}

int CToolCore::GetSelectionOutlineRect(RECT* pRect) {
    CCanvas canvas(*this);
    CRect rcSelection(0, 0, 0, 0);
    if (!pRect || !GetSelectionRect(&rcSelection)) {
        return 0;
    }
    CRefresh refresh;
    refresh.Add(rcSelection);
    CImgNodeList& selection = canvas.Selection();
    const bool bOnly = selection.GetCount() == 1;
    for (POSITION position = selection.GetHeadPosition(); position;) {
        CImgNode* pNode = selection.GetNext(position);
        CRect rc(0, 0, 0, 0);
        bOnly ? GetNodeOutlineMarkRect(pNode, &rc) : GetNodeOutlineRect(pNode, &rc);
        refresh.Add(rc);
    }
    *pRect = refresh.Area();
    return 1;
}

CRect CToolCore::AreaOf(const CNodeRefList& nodes) {
    CRefresh refresh;
    const bool bOnly = nodes.GetCount() == 1;
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        CRect rc(0, 0, 0, 0);
        bOnly ? GetNodeMarkRect(pNode, &rc) : GetNodeRect(pNode, &rc);
        refresh.Add(rc);
        if (pNode && pNode->m_pShadowNode) {
            CRect rcShadow(0, 0, 0, 0);
            bOnly ? GetNodeOutlineMarkRect(pNode, &rcShadow) : GetNodeOutlineRect(pNode, &rcShadow);
            refresh.Add(rcShadow);
        }
    }
    return refresh.Area();
}

int CToolCore::FlushSelectionArea() {
    CRect rc(0, 0, 0, 0);
    return GetSelectionOutlineRect(&rc) ? FlushViewRect(&rc) : 0;
}

int CToolCore::RedrawSelectionArea() {
    CRect rc(0, 0, 0, 0);
    return GetSelectionOutlineRect(&rc) ? RedrawRect(&rc) : 0;
}

int CToolCore::FlushViewRect(const RECT* pRect) {
    CCanvas canvas(*this);
    if (!canvas || !pRect) {
        return 0;
    }
    CRect rc(*pRect);
    canvas.View().m_fnFlushCacheRect(rc);
    return 1;
}

int CToolCore::RedrawRect(const RECT* pRect) {
    CCanvas canvas(*this);
    if (!canvas || !pRect) {
        return 0;
    }
    canvas.View().RepaintViewRect(CRect(*pRect), 1);
    return 1;
}

int CToolCore::ClassifySelection() {
    CCanvas canvas(*this);
    if (!canvas.HasDocument()) {
        return 0;
    }
    CNodeRefList nodes;
    m_fnCopySelection(canvas, nodes);
    return ClassifyNodes(nodes);
}

int CToolCore::ClassifyNodes(CNodeRefList& nodes) {
    int nTexts = 0;
    int nOthers = 0;
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        if (const CImgNode* pNode = nodes.GetNext(position)) {
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
