#include "ops/objects/distribute.h"

#include <algorithm>
#include <vector>

#include "ops/axis.h"
#include "ops/objects/arrange_scope.h"
#include "ops/objects/offset.h"
#include "ops/objects/visibility.h"

namespace {

CRect BoundsOf(CImgNode* pNode) { return pNode->m_fnGetBoundRectWithFrame(); }

/// The objects in their order along the axis, the two outer ones, and how the space between them is shared.
struct Distribution {
    std::vector<CImgNode*> order;
    CImgNode* pFirst = nullptr;
    CImgNode* pLast = nullptr;
    CRect rcFirst;
    CRect rcLast;
    long long nSpan = 0; ///< between the outer two
    long long nFree = 0; ///< what is left of the whole after the objects that are spaced
    long long nGaps = 0;
};

std::vector<CImgNode*> OrderedAlong(Axis axis, const CNodeRefList& nodes) {
    std::vector<CImgNode*> order;
    for (CImgNode* pNode : Each(nodes)) {
        order.push_back(pNode);
    }
    std::stable_sort(order.begin(), order.end(), [axis](CImgNode* pNode, CImgNode* pOther) {
        const CRect rc = BoundsOf(pNode);
        const CRect rcOther = BoundsOf(pOther);
        const long long nNear = NearEdge(rc, axis);
        const long long nOtherNear = NearEdge(rcOther, axis);
        return nNear != nOtherNear ? nNear < nOtherNear : FarEdge(rc, axis) < FarEdge(rcOther, axis);
    });
    return order;
}

// The last object is the one whose far edge is strictly the greatest among the others, wherever it stands in
// the order.
CImgNode* LastOf(const std::vector<CImgNode*>& order, Axis axis) {
    CImgNode* pLast = order[1];
    for (CImgNode* pNode : order) {
        if (pNode != order[0] && FarEdge(BoundsOf(pNode), axis) > FarEdge(BoundsOf(pLast), axis)) {
            pLast = pNode;
        }
    }
    return pLast;
}

Distribution Plan(Axis axis, const CNodeRefList& nodes) {
    Distribution plan;
    plan.order = OrderedAlong(axis, nodes);
    plan.pFirst = plan.order[0];
    plan.pLast = LastOf(plan.order, axis);
    plan.rcFirst = BoundsOf(plan.pFirst);
    plan.rcLast = BoundsOf(plan.pLast);
    plan.nSpan = NearEdge(plan.rcLast, axis) - FarEdge(plan.rcFirst, axis);
    plan.nFree = FarEdge(plan.rcLast, axis) - NearEdge(plan.rcFirst, axis);
    plan.nGaps = static_cast<long long>(plan.order.size()) - 1;
    for (CImgNode* pNode : plan.order) {
        const long long nExtent = Extent(BoundsOf(pNode), axis);
        const bool bOuter = pNode == plan.pFirst || pNode == plan.pLast;
        if (!bOuter && nExtent >= plan.nSpan) {
            --plan.nGaps;
        } else {
            plan.nFree -= nExtent;
        }
    }
    return plan;
}

// Four corrections, each on the bounds read afresh, but for the last: it uses the near edge read before the
// third.
void KeepBetween(const CVisibleSpan& span, Axis axis, CImgNode* pNode, const Distribution& plan) {
    const long long nNear = NearEdge(BoundsOf(pNode), axis);
    if (nNear < NearEdge(plan.rcFirst, axis)) {
        OffsetObject(pNode, Along(axis, NearEdge(plan.rcFirst, axis) - nNear));
    }
    const long long nFar = FarEdge(BoundsOf(pNode), axis);
    if (nFar > FarEdge(plan.rcLast, axis)) {
        OffsetObject(pNode, Along(axis, FarEdge(plan.rcLast, axis) - nFar));
    }
    const CRect rc = BoundsOf(pNode);
    OffsetObject(pNode, Along(axis, span.BackFromNear(FarEdge(rc, axis))));
    OffsetObject(pNode, Along(axis, span.BackFromFar(NearEdge(rc, axis))));
}

// Objects with room between the outer two share the free space, so that the rounding does not add up; the
// others are centred between them.
void Place(const Distribution& plan, Axis axis, const CVisibleSpan& span) {
    long long nReached = FarEdge(plan.rcFirst, axis);
    long long nShare = 1;
    for (CImgNode* pNode : plan.order) {
        if (pNode == plan.pFirst || pNode == plan.pLast) {
            continue;
        }
        const CRect rc = BoundsOf(pNode);
        const long long nExtent = Extent(rc, axis);
        if (nExtent < plan.nSpan) {
            OffsetObject(pNode,
                         Along(axis, nReached + nShare * plan.nFree / plan.nGaps - NearEdge(rc, axis)));
            nReached += nExtent;
            ++nShare;
        } else {
            const long long nMiddle = (FarEdge(plan.rcFirst, axis) + NearEdge(plan.rcLast, axis)) / 2;
            OffsetObject(pNode, Along(axis, nMiddle - (FarEdge(rc, axis) + NearEdge(rc, axis)) / 2));
        }
        KeepBetween(span, axis, pNode, plan);
    }
}

void Distribute(CTool& tool, Axis axis) {
    CArrangeScope arrange(tool);
    if (arrange.Nodes().GetCount() >= 2) {
        Place(Plan(axis, arrange.Nodes()), axis, CVisibleSpan(arrange.Canvas(), axis));
    }
}

} // namespace

void distribute::Vertically(CTool& tool) { Distribute(tool, Axis::Vertical); }

void distribute::Horizontally(CTool& tool) { Distribute(tool, Axis::Horizontal); }
