// Resizing a text object, which means its font: by a rectangle, and by a handle.
#include <algorithm>
#include <memory>

#include "frames/frame_place.h"
#include "host/kinds.h"
#include "host/panels.h"
#include "ops/bus.h"
#include "ops/handles.h"
#include "ops/saturate.h"
#include "text/editor/inplace_editor.h"
#include "text/object/text_attributes.h"
#include "tools/object_tool.h"

namespace {

// What has no extent has no scale.
double ScaleOf(int nNew, int nOld) { return nOld != 0 ? static_cast<double>(nNew) / nOld : 1.0; }

// The font size nearest to the scaled one that the text page lets pass, in pixels.
int AdjustedSize(ITextAttributePanel& panel, int nPixelSize, double dScale) {
    int nPoints = CInplaceEditor::m_fnConvertFontPixelToNearestPoint(Truncated(nPixelSize * dScale));
    panel.AdjustSize(&nPoints);
    return CInplaceEditor::m_fnConvertFontPointToPixel(nPoints);
}

// The edge that a drag leaves where it is; the middle of an axis along which nothing moves.
int FixedPlace(Edge moved, int nStart, int nLength) {
    switch (moved) {
    case Edge::Near: return nStart + nLength;
    case Edge::Far: return nStart;
    default: return nStart + nLength / 2;
    }
}

CPoint FixedPoint(const CImgNode& node, const HandleRow& handle) {
    return CPoint(FixedPlace(handle.horizontal, node.m_tx.nX, node.m_tx.nWidth),
                  FixedPlace(handle.vertical, node.m_tx.nY, node.m_tx.nHeight));
}

const HandleRow& HandleOf(int nHandle) { return Handles[static_cast<size_t>(nHandle)]; }

double HandleScale(const HandleRow& handle, double dX, double dY) {
    if (handle.IsCorner()) {
        return std::min(dX, dY);
    }
    return handle.vertical == Edge::None ? dX : dY;
}

} // namespace

// The greater scale wins, so the text covers the rectangle in both directions.
int CToolCore::ResizeText(CTextNode& node, const CRect& rcTarget) {
    const CRect rcOld = node.m_fnGetBoundRectWithFrame();
    const double dScale =
        std::max(ScaleOf(rcTarget.Width(), rcOld.Width()), ScaleOf(rcTarget.Height(), rcOld.Height()));
    ITextAttributePanel* const pPanel = bus::FindService<ITextAttributePanel>(*this, kind::TextPage);
    if (!pPanel) {
        return 0;
    }
    const int nPixelSize = AdjustedSize(*pPanel, node.m_nFontSize, dScale);
    const CPoint ptCorner = rcOld.TopLeft();
    return nPixelSize == node.m_nFontSize ? 1 : m_fnRebuildTextAtSize(&node, nPixelSize, &ptCorner);
}

CTextNode* CObjectTool::ResizeTextNode(CImgNode* pNode, RECT* pRect, int nHandle) {
    CTextNode* const pText = AsText(pNode);
    CCanvas canvas(*this);
    ITextAttributePanel* const pPanel = bus::FindService<ITextAttributePanel>(*this, kind::TextPage);
    if (!pText || !pRect || !canvas || !pPanel || nHandle < 0 || nHandle >= HandleCount) {
        return nullptr;
    }
    CRect rcOld(0, 0, 0, 0);
    GetNodeRect(pNode, &rcOld);
    rcOld = canvas.ToDocument(rcOld);
    const CRect rcNew(*pRect);
    const double dScale = HandleScale(HandleOf(nHandle), ScaleOf(rcNew.Width(), rcOld.Width()),
                                      ScaleOf(rcNew.Height(), rcOld.Height()));
    const int nPixelSize = AdjustedSize(*pPanel, pText->m_nFontSize, dScale);
    if (nPixelSize == pText->m_nFontSize) {
        return static_cast<CTextNode*>(pText->Duplicate());
    }
    return ResizedText(*pText, nPixelSize, nHandle);
}

CTextNode* CObjectTool::ResizedText(const CTextNode& text, int nPixelSize, int nHandle) {
    TextAttributes attributes;
    if (!ReadAttributes(text, attributes)) {
        return nullptr;
    }
    attributes.nPixelSize = nPixelSize;
    std::unique_ptr<CTextNode> pNew(m_fnCreateText(TextOf(text), attributes));
    if (!pNew) {
        return nullptr;
    }
    pNew->m_fnCopyTextEffectFrom(&text);
    pNew->m_fnRegenerateTextEffect();
    const CSize delta = FixedPoint(text, HandleOf(nHandle)) - FixedPoint(*pNew, HandleOf(nHandle));
    pNew->Move(delta.cx, delta.cy);
    return CopyDisplayValues(*pNew, text) ? pNew.release() : nullptr;
}

// A text object's size is its font's: only a rebuilt text can take the place of the old one. Its frame grows
// with it.
void CObjectTool::ResizeTextTo(CTextNode& text, const CRect& rcDoc) {
    CRect rcNew = rcDoc;
    const std::unique_ptr<CTextNode> pNew(ResizeTextNode(&text, &rcNew, m_nHandle));
    if (!pNew) {
        return;
    }
    const bool bShadow = text.m_pShadowNode != nullptr;
    const CShadowParam shadow = text.m_shadow;
    m_fnRemoveShadowOf(&text);
    const FrameLink frame = FrameLinkOf(text);
    const int nOldHeight = text.m_tx.nHeight;
    text.m_fnMoveMemberDataFrom(pNew.get());
    text.m_shadow = shadow;
    RestoreFrameLink(text, frame);
    ScaleFrame(text, nOldHeight, text.m_tx.nHeight);
    if (bShadow) {
        m_fnCreateShadow(&text, shadow);
    }
}
