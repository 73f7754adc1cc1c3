#include "ops/objects/resize.h"

#include <algorithm>

#include "host/panels.h"
#include "host/placeholder.h"
#include "ops/axis.h"
#include "ops/bus.h"
#include "shadows/shadow_build.h"
#include "text/editor/inplace_editor.h"
#include "text/object/text_attributes.h"
#include "text/object/text_replace.h"

namespace {

constexpr int LeastTextSize = 1; ///< pixels; no handle leads back from nothing

// The picture with its own proportions, as large as it fits, in the middle of the rectangle.
CRect FittedIn(const CRect& rc, const CImgNode& node) {
    if (node.m_nKeepProportions != 1 || node.m_nPictureWidth <= 0 || node.m_nPictureHeight <= 0) {
        return rc;
    }
    const CSize room = ExtentOf(rc);
    const double dFactorX = static_cast<double>(room.cx) / node.m_nPictureWidth;
    const double dFactorY = static_cast<double>(room.cy) / node.m_nPictureHeight;
    const CSize size = dFactorX >= dFactorY ? CSize(Truncated(node.m_nPictureWidth * dFactorY), room.cy)
                                            : CSize(room.cx, Truncated(node.m_nPictureHeight * dFactorX));
    return CRect(CPoint(rc.left + (room.cx - size.cx) / 2, rc.top + (room.cy - size.cy) / 2), size);
}

// A framed object: frame and picture scale together, so that each keeps its place within the whole.
void ResizeFramed(CImgNode& node, const CRect& rcTarget) {
    CRect rcWhole;
    rcWhole.UnionRect(&node.m_rcFrame, &node.m_rcPlaceHolder);
    const CBoxMap map(rcWhole, rcTarget);
    const CRect rcFrame = map.Map(node.m_rcFrame);
    node.m_fnResize(FittedIn(map.Map(node.m_rcPlaceHolder), node));
    node.m_pFrameNode->m_fnResize(rcFrame);
    if (node.m_nFrameFollows == 1) {
        node.m_rcFrame = rcFrame;
        node.m_rcPlaceHolder = rcFrame;
    }
}

// The greater scale wins, so the text covers the rectangle in both directions.
int ResizeText(CTool& tool, CTextNode& text, const CRect& rcTarget) {
    const CRect rcOld = text.m_fnGetBoundRectWithFrame();
    const double dScale =
        std::max(ScaleOf(rcTarget.Width(), rcOld.Width()), ScaleOf(rcTarget.Height(), rcOld.Height()));
    const std::optional<int> nPixelSize = ScaledTextSize(tool, text, dScale);
    const CPoint ptCorner = rcOld.TopLeft();
    return nPixelSize ? RebuildTextAtSize(tool, &text, *nPixelSize, &ptCorner) : 0;
}

} // namespace

int ResizeObject(CTool& tool, CImgNode* pNode, const CRect& rcTarget) {
    if (!pNode) {
        return 1;
    }
    if (pNode->IsShadowNode() || pNode->IsFrameNode()) {
        return 0;
    }
    if (CTextNode* pText = AsText(pNode)) {
        return ResizeText(tool, *pText, rcTarget);
    }
    const bool bShadowed = pNode->m_pShadowNode != nullptr;
    if (pNode->m_pFrameNode) {
        ResizeFramed(*pNode, rcTarget);
    } else {
        pNode->m_fnResize(rcTarget);
    }
    pNode->m_fnAdjustImageNodeBuf(0, 0);
    if (bShadowed) {
        RegenerateShadow(tool, pNode);
    }
    return 1;
}

std::optional<int> ScaledTextSize(CTool& tool, const CTextNode& text, double dScale) {
    ITextAttributePanel* const pPanel = bus::FindService<ITextAttributePanel>(tool, kind::TextPage);
    if (!pPanel) {
        return std::nullopt;
    }
    const int nWanted = std::max(Truncated(text.m_nFontSize * dScale), LeastTextSize);
    int nPoints = CInplaceEditor::m_fnConvertFontPixelToNearestPoint(nWanted);
    pPanel->AdjustSize(&nPoints);
    return std::max(CInplaceEditor::m_fnConvertFontPointToPixel(nPoints), LeastTextSize);
}
