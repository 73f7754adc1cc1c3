#include "ops/objects/align.h"

#include <algorithm>
#include <array>

#include "ops/axis.h"
#include "ops/objects/arrange_scope.h"
#include "ops/objects/offset.h"
#include "ops/objects/visibility.h"

namespace {

/// What makes an object the reference: the edge compared, and whether the smaller or the larger one wins.
struct ReferenceRule {
    Axis axis;
    bool bFar;
    bool bGreatest;
};

constexpr std::array<ReferenceRule, 9> ReferenceRules = {{
    {Axis::Horizontal, false, false}, // 0 smallest left
    {Axis::Horizontal, true, false},  // 1 smallest right
    {Axis::Vertical, false, false},   // 2 smallest top
    {Axis::Vertical, true, false},    // 3 smallest bottom
    {Axis::Horizontal, true, true},   // 4 largest right
    {Axis::Horizontal, false, true},  // 5 largest left, like every number without a meaning of its own
    {Axis::Vertical, true, true},     // 6 largest bottom
    {Axis::Vertical, false, true},    // 7 largest top
    {Axis::Horizontal, false, true},  // 8 largest left
}};

const ReferenceRule& RuleOf(int nRule) {
    const bool bKnown = nRule >= 0 && nRule < static_cast<int>(ReferenceRules.size());
    return ReferenceRules[bKnown ? static_cast<std::size_t>(nRule) : ReferenceRules.size() - 1];
}

long long EdgeOf(const CRect& rc, const ReferenceRule& rule) {
    return rule.bFar ? FarEdge(rc, rule.axis) : NearEdge(rc, rule.axis);
}

/// The box round all selected objects. It starts from fixed extremes, so what lies beyond them does not
/// count.
struct Box {
    int nLeft = 0xFFFFFF;
    int nTop = 0xFFFFFF;
    int nRight = 0;
    int nBottom = 0;

    void Add(const CRect& rc) {
        nLeft = std::min<int>(nLeft, rc.left);
        nTop = std::min<int>(nTop, rc.top);
        nRight = std::max<int>(nRight, rc.right);
        nBottom = std::max<int>(nBottom, rc.bottom);
    }
};

// How far an object moves so that its middle stands on the middle of the box, on one axis.
int ToMiddle(long long nBoxNear, long long nBoxFar, long long nNear, long long nFar) {
    return Saturated((nBoxFar + nBoxNear) / 2 - (nFar - nNear) / 2 - nNear);
}

// Every other object's edge moves onto the reference's; one that would leave the view comes back to the
// margin.
void AlignTo(CImgNode& reference, const ReferenceRule& rule, const CArrangeScope& arrange) {
    const CVisibleSpan span(arrange.Canvas(), rule.axis);
    const long long nEdge = EdgeOf(reference.m_fnGetBoundRectWithFrame(), rule);
    for (CImgNode* pNode : Each(arrange.Nodes())) {
        if (pNode == &reference) {
            continue;
        }
        OffsetObject(pNode, Along(rule.axis, nEdge - EdgeOf(pNode->m_fnGetBoundRectWithFrame(), rule)));
        const CRect rc = pNode->m_fnGetBoundRectWithFrame();
        OffsetObject(pNode, Along(rule.axis, rule.bFar ? span.BackFromFar(NearEdge(rc, rule.axis))
                                                       : span.BackFromNear(FarEdge(rc, rule.axis))));
    }
}

void AlignEdge(CTool& tool, int nRule) {
    CArrangeScope arrange(tool);
    CImgNode* pReference = arrange ? align::PickReference(tool, arrange.Nodes(), nRule) : nullptr;
    if (pReference) {
        AlignTo(*pReference, RuleOf(nRule), arrange);
    }
}

enum class Axes { Horizontal, Vertical, Both };

void AlignToMiddle(CTool& tool, Axes axes) {
    CArrangeScope arrange(tool);
    Box box;
    for (CImgNode* pNode : Each(arrange.Nodes())) {
        box.Add(pNode->m_fnGetBoundRectWithFrame());
    }
    for (CImgNode* pNode : Each(arrange.Nodes())) {
        const CRect rc = pNode->m_fnGetBoundRectWithFrame();
        const int nX = ToMiddle(box.nLeft, box.nRight, rc.left, rc.right);
        const int nY = ToMiddle(box.nTop, box.nBottom, rc.top, rc.bottom);
        OffsetObject(pNode, CSize(axes == Axes::Vertical ? 0 : nX, axes == Axes::Horizontal ? 0 : nY));
    }
}

} // namespace

CImgNode* align::PickReference(CTool& tool, const CNodeRefList& nodes, int nRule) {
    const ReferenceRule& rule = RuleOf(nRule);
    CImgNode* pReference = nullptr;
    long long nBest = 0;
    for (CImgNode* pNode : Each(nodes)) {
        const long long nEdge = EdgeOf(NodeRect(tool, pNode), rule);
        if (!pReference || (rule.bGreatest ? nEdge > nBest : nEdge < nBest)) {
            pReference = pNode;
            nBest = nEdge;
        }
    }
    return pReference;
}

void align::Left(CTool& tool) { AlignEdge(tool, 0); }

void align::Top(CTool& tool) { AlignEdge(tool, 2); }

void align::Right(CTool& tool) { AlignEdge(tool, 4); }

void align::Bottom(CTool& tool) { AlignEdge(tool, 6); }

void align::Middle(CTool& tool) { AlignToMiddle(tool, Axes::Vertical); }

void align::Center(CTool& tool) { AlignToMiddle(tool, Axes::Horizontal); }

void align::Centers(CTool& tool) { AlignToMiddle(tool, Axes::Both); }
