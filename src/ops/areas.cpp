#include "ops/areas.h"

#include "ops/canvas.h"
#include "ops/nodes.h"
#include "ops/refresh.h"

namespace {

int ClientRectOrNothing(CTool& tool, RECT* pRect) {
    const CCanvas canvas(tool);
    if (!canvas || !pRect) {
        return 0;
    }
    *pRect = canvas.ClientRect();
    return 1;
}

} // namespace

CRect NodeRect(CTool& tool, CImgNode* pNode) {
    CRect rc(0, 0, 0, 0);
    tool.GetNodeRect(pNode, &rc);
    return rc;
}

CRect OutlineRect(CTool& tool, CImgNode* pNode) {
    CRect rc(0, 0, 0, 0);
    tool.GetNodeOutlineRect(pNode, &rc);
    return rc;
}

CRect MarkArea(CTool& tool, CImgNode* pNode) {
    CRect rc(0, 0, 0, 0);
    tool.GetNodeMarkArea(pNode, &rc);
    return rc;
}

CRect SelectionRect(CTool& tool) {
    CRect rc(0, 0, 0, 0);
    tool.GetSelectionRect(&rc);
    return rc;
}

CRect SelectionOutlineRect(CTool& tool) {
    CRect rc(0, 0, 0, 0);
    tool.GetSelectionOutlineRect(&rc);
    return rc;
}

CRect MarkRect(CTool& tool, CImgNode* pNode, Shown shown) {
    if (shown == Shown::Together) {
        return NodeRect(tool, pNode);
    }
    CRect rc(0, 0, 0, 0);
    tool.GetNodeMarkRect(pNode, &rc);
    return rc;
}

CRect OutlineRect(CTool& tool, CImgNode* pNode, Shown shown) {
    if (shown == Shown::Together) {
        return OutlineRect(tool, pNode);
    }
    CRect rc(0, 0, 0, 0);
    tool.GetNodeOutlineMarkRect(pNode, &rc);
    return rc;
}

CRect AreaOf(CTool& tool, const CNodeRefList& nodes) {
    const Shown shown = ShownAs(nodes);
    CRefresh area;
    for (CImgNode* pNode : Each(nodes)) {
        area.Add(MarkRect(tool, pNode, shown));
        if (pNode && pNode->m_pShadowNode) {
            area.Add(OutlineRect(tool, pNode, shown));
        }
    }
    return area.Area();
}

Corners CornersOfNode(CTool& tool, CImgNode* pNode) { return CornersOf(NodeRect(tool, pNode)); }

CRect BoundsOf(Corners corners) {
    CRect rc;
    ::GetBoundRect(corners.data(), static_cast<int>(corners.size()), &rc);
    return rc;
}

int areas::GetNodeMarkRect(CTool& tool, CImgNode* pNode, RECT* pRect) {
    return pNode ? tool.GetNodeRect(pNode, pRect) : ClientRectOrNothing(tool, pRect);
}

int areas::GetNodeOutlineMarkRect(CTool& tool, CImgNode* pNode, RECT* pRect) {
    return pNode ? tool.GetNodeOutlineRect(pNode, pRect) : ClientRectOrNothing(tool, pRect);
}

int areas::GetNodeRect(CTool& tool, CImgNode* pNode, RECT* pRect) {
    const CCanvas canvas(tool);
    if (!canvas || !pNode || !pRect) {
        return 0;
    }
    CRect rcDoc;
    pNode->GetBoundRect(&rcDoc);
    if (CImgNode* pCompanion = pNode->IsFrameNode() ? pNode->m_pOwner : pNode->m_pFrameNode) {
        CRect rcCompanion;
        pCompanion->GetBoundRect(&rcCompanion);
        rcDoc.UnionRect(&rcDoc, &rcCompanion);
    }
    *pRect = canvas.ToClient(rcDoc);
    return 1;
}

int areas::GetNodeOutlineRect(CTool& tool, CImgNode* pNode, RECT* pRect) {
    if (!pNode || !pRect || !CCanvas(tool)) {
        return 0;
    }
    *pRect = BoundsOf(CornersOfNode(tool, pNode->m_pShadowNode ? pNode->m_pShadowNode : pNode));
    return 1;
}

int areas::GetSelectionRect(CTool& tool, RECT* pRect) {
    const CCanvas canvas(tool);
    if (!canvas || !pRect || !canvas.HasSelection()) {
        return 0;
    }
    if (CImgNode* pOnly = canvas.OnlySelected()) {
        return tool.GetNodeMarkRect(pOnly, pRect);
    }
    CRefresh area;
    for (CImgNode* pNode : Each(canvas.Selection())) {
        area.Add(NodeRect(tool, pNode));
    }
    *pRect = area.Area();
    return 1;
}

int areas::GetSelectionOutlineRect(CTool& tool, RECT* pRect) {
    const CCanvas canvas(tool);
    CRect rcSelection(0, 0, 0, 0);
    if (!pRect || !tool.GetSelectionRect(&rcSelection)) {
        return 0;
    }
    const Shown shown = ShownAs(canvas.Selection());
    CRefresh area;
    area.Add(rcSelection);
    for (CImgNode* pNode : Each(canvas.Selection())) {
        area.Add(OutlineRect(tool, pNode, shown));
    }
    *pRect = area.Area();
    return 1;
}

int areas::GetNodesRect(CTool& tool, CNodeRefList& nodes, RECT* pRect) {
    if (!pRect || !CCanvas(tool)) {
        return 0;
    }
    CRefresh area;
    for (CImgNode* pNode : Each(nodes)) {
        area.Add(BoundsOf(CornersOfNode(tool, pNode)));
    }
    *pRect = area.Area();
    return 1;
}

int areas::GetNodeMarkArea(CTool& tool, CImgNode* pNode, RECT* pRect) {
    if (!pRect || !CCanvas(tool)) {
        return 0;
    }
    CRefresh area;
    area.Add(MarkRect(tool, pNode, Shown::Alone));
    area.Add(OutlineRect(tool, pNode, Shown::Alone));
    *pRect = area.Area();
    return 1;
}

RECT* areas::GetNodeRectOf(CTool& tool, RECT* pRect, CImgNode* pNode) {
    if (pRect && !tool.GetNodeRect(pNode, pRect)) {
        SetRectEmpty(pRect);
    }
    return pRect;
}

RECT* areas::GetNodeMarkAreaOf(CTool& tool, RECT* pRect, CImgNode* pNode) {
    if (pRect) {
        *pRect = pNode ? MarkArea(tool, pNode) : CRect(0, 0, 0, 0);
    }
    return pRect;
}
