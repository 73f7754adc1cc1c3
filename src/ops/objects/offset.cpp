#include "ops/objects/offset.h"

#include "ops/canvas.h"
#include "ops/groups.h"
#include "ops/saturate.h"
#include "ops/view_margin.h"

namespace {

// One axis of the way back into the view; where both rules hold, the later one wins.
int WayBack(long long nNodeNear, long long nNodeFar, long long nViewNear, long long nViewFar) {
    long long nDelta = 0;
    if (nNodeNear > nViewFar) {
        nDelta = nViewFar - nNodeNear;
    }
    if (nNodeFar < nViewNear) {
        nDelta = nViewNear - nNodeFar;
    }
    return Saturated(nDelta);
}

} // namespace

int OffsetObject(CImgNode* pNode, CSize offset) {
    if (!pNode) {
        return 1;
    }
    if (pNode->IsShadowNode() || pNode->IsFrameNode()) {
        return 0;
    }
    MoveGroup(*pNode, offset);
    return 1;
}

int KeepInView(CTool& tool, CImgNode* pNode) {
    const CCanvas canvas(tool);
    CRect rcOld;
    if (!canvas || !pNode || !tool.GetNodeRect(pNode, &rcOld)) {
        return 0;
    }
    CRect rcView = canvas.ClientRect();
    rcView.DeflateRect(ViewMargin, ViewMargin);
    const CSize delta(WayBack(rcOld.left, rcOld.right, rcView.left, rcView.right),
                      WayBack(rcOld.top, rcOld.bottom, rcView.top, rcView.bottom));
    OffsetObject(pNode, canvas.DeltaToDocument(delta));

    CRect rcNew;
    tool.GetNodeRect(pNode, &rcNew);
    CRect rcCommon;
    rcCommon.IntersectRect(&rcOld, &rcNew);
    return rcCommon.Width() != rcOld.Width() && rcCommon.Height() != rcOld.Height() ? 1 : 0;
}
