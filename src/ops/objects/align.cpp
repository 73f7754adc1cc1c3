// The seven alignments. Positions are document units; bounds include the frame.
#include <algorithm>
#include <array>

#include "ops/axis.h"
#include "ops/objects/arrange_scope.h"
#include "ops/objects/visibility.h"
#include "tools/tool_core.h"

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

} // namespace

CImgNode* CToolCore::m_fnPickReference(const CNodeRefList& nodes, int nRule) {
    const ReferenceRule& rule = RuleOf(nRule);
    CImgNode* pReference = nullptr;
    long long nBest = 0;
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        CRect rc(0, 0, 0, 0);
        GetNodeRect(pNode, &rc);
        const long long nEdge = EdgeOf(rc, rule);
        if (!pReference || (rule.bGreatest ? nEdge > nBest : nEdge < nBest)) {
            pReference = pNode;
            nBest = nEdge;
        }
    }
    return pReference;
}

// Every other object's edge moves onto the reference's; one that would leave the view comes back to the
// margin.
void CToolCore::AlignEdge(int nRule) {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CArrangeScope arrange(canvas, *this);
    CNodeRefList nodes;
    m_fnCopySelection(canvas, nodes);
    const CImgNode* pReference = m_fnPickReference(nodes, nRule);
    if (!pReference) {
        return;
    }
    const ReferenceRule& rule = RuleOf(nRule);
    const CVisibleSpan span(canvas, rule.axis);
    const long long nEdge = EdgeOf(const_cast<CImgNode*>(pReference)->m_fnGetBoundRectWithFrame(), rule);
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        if (pNode == pReference) {
            continue;
        }
        m_fnOffsetObject(pNode, Along(rule.axis, nEdge - EdgeOf(pNode->m_fnGetBoundRectWithFrame(), rule)));
        const CRect rc = pNode->m_fnGetBoundRectWithFrame();
        const long long nBack =
            rule.bFar ? span.BackFromFar(NearEdge(rc, rule.axis)) : span.BackFromNear(FarEdge(rc, rule.axis));
        if (nBack != 0) {
            m_fnOffsetObject(pNode, Along(rule.axis, nBack));
        }
    }
}

void CToolCore::AlignToMiddle(bool bHorizontally, bool bVertically) {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    CArrangeScope arrange(canvas, *this);
    CNodeRefList nodes;
    m_fnCopySelection(canvas, nodes);
    Box box;
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        box.Add(nodes.GetNext(position)->m_fnGetBoundRectWithFrame());
    }
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CImgNode* pNode = nodes.GetNext(position);
        const CRect rc = pNode->m_fnGetBoundRectWithFrame();
        m_fnOffsetObject(pNode, CSize(bHorizontally ? ToMiddle(box.nLeft, box.nRight, rc.left, rc.right) : 0,
                                      bVertically ? ToMiddle(box.nTop, box.nBottom, rc.top, rc.bottom) : 0));
    }
}

void CToolCore::m_fnAlignLeft() { AlignEdge(0); }

void CToolCore::m_fnAlignTop() { AlignEdge(2); }

void CToolCore::m_fnAlignRight() { AlignEdge(4); }

void CToolCore::m_fnAlignBottom() { AlignEdge(6); }

void CToolCore::m_fnAlignMiddle() { AlignToMiddle(false, true); }

void CToolCore::m_fnAlignCenter() { AlignToMiddle(true, false); }

void CToolCore::m_fnAlignCenters() { AlignToMiddle(true, true); }
