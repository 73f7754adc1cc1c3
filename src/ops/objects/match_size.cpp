#include "ops/objects/match_size.h"

#include <algorithm>

#include "ops/axis.h"
#include "ops/objects/arrange_scope.h"
#include "ops/objects/resize.h"

namespace {

enum class Matched { Width, Height, Both };

CSize GreatestExtent(const CNodeRefList& nodes) {
    CSize greatest(0, 0);
    for (CImgNode* pNode : Each(nodes)) {
        const CSize size = ExtentOf(pNode->m_fnGetBoundRectWithFrame());
        greatest = CSize(std::max(greatest.cx, size.cx), std::max(greatest.cy, size.cy));
    }
    return greatest;
}

void Match(CTool& tool, Matched matched) {
    CArrangeScope arrange(tool);
    const CSize greatest = GreatestExtent(arrange.Nodes());
    for (CImgNode* pNode : Each(arrange.Nodes())) {
        CRect rc = pNode->m_fnGetBoundRectWithFrame();
        if (matched != Matched::Height) {
            rc.right = Saturated(static_cast<long long>(rc.left) + greatest.cx);
        }
        if (matched != Matched::Width) {
            rc.bottom = Saturated(static_cast<long long>(rc.top) + greatest.cy);
        }
        ResizeObject(tool, pNode, rc);
    }
}

} // namespace

void match_size::Width(CTool& tool) { Match(tool, Matched::Width); }

void match_size::Height(CTool& tool) { Match(tool, Matched::Height); }

void match_size::Both(CTool& tool) { Match(tool, Matched::Both); }
