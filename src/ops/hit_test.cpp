#include "ops/hit_test.h"

#include "ops/areas.h"
#include "ops/canvas.h"
#include "ops/excluded_node.h"
#include "ops/nodes.h"

CImgNode* NodeUnderPoint(CTool& tool, CPoint point) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return nullptr;
    }
    CImgNode* pExcluded = tool.GetExcludedNode();
    CExcludedNodeScope excluded(canvas.Objects(), pExcluded);
    if (pExcluded && !excluded.HasTaken()) {
        return nullptr;
    }
    return canvas.View().m_fnNodeUnderPt(point);
}

CImgNode* ClickedObject(CImgNode* pNode) {
    if (!pNode || pNode->IsShadowNode()) {
        return nullptr;
    }
    return pNode->IsFrameNode() ? pNode->m_pOwner : pNode;
}

CImgNode* ClickedNode(CTool& tool, CPoint point) { return ClickedObject(NodeUnderPoint(tool, point)); }

bool IsOnExcludedNode(CTool& tool, CPoint point) {
    CImgNode* pExcluded = tool.GetExcludedNode();
    const CCanvas canvas(tool);
    return pExcluded && canvas && pExcluded->PtInMask(canvas.ToDocument(point)) == 1;
}

bool IsOnSelection(CTool& tool, CPoint point) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return false;
    }
    if (CImgNode* pOnly = canvas.OnlySelected()) {
        return tool.HitTestSelected(&point, pOnly) != 0;
    }
    for (CImgNode* pNode : Each(canvas.Selection())) {
        if (tool.PtInNodeOutline(&point, pNode)) {
            return true;
        }
    }
    return false;
}

int HandleUnderPoint(CTool& tool, CImgNode* pNode, CPoint point) {
    const CCanvas canvas(tool);
    if (!canvas || canvas.OnlySelected() != pNode) {
        return NoHandle;
    }
    return HandleAt(CornersOfNode(tool, pNode), point);
}

int PtInNodeOutline(CTool& tool, const CPoint* pPoint, CImgNode* pNode) {
    if (!pPoint || !pNode) {
        return 0;
    }
    CTxPoint point{static_cast<double>(pPoint->x), static_cast<double>(pPoint->y)};
    Corners corners = CornersOfNode(tool, pNode);
    return PtInBound(point, corners.data());
}
