#include "ops/objects/handle_resize.h"

#include <algorithm>

#include "ops/areas.h"
#include "ops/canvas.h"
#include "ops/objects/resize.h"
#include "text/object/text_build.h"
#include "text/object/text_place.h"

namespace {

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

double HandleScale(const HandleRow& handle, const CRect& rcNew, const CRect& rcOld) {
    const double dX = ScaleOf(rcNew.Width(), rcOld.Width());
    const double dY = ScaleOf(rcNew.Height(), rcOld.Height());
    if (handle.IsCorner()) {
        return std::min(dX, dY);
    }
    return handle.vertical == Edge::None ? dX : dY;
}

CTextNode* TextOfSize(CTool& tool, const CTextNode& text, int nPixelSize, const HandleRow& handle) {
    TextAttributes attributes;
    if (!ReadAttributes(text, attributes)) {
        return nullptr;
    }
    attributes.nPixelSize = nPixelSize;
    std::unique_ptr<CTextNode> pNew = BuildTextLike(tool, text, TextOf(text), attributes,
                                                    {Effect::Same, Width::AsDrawn, Display::Required});
    if (pNew) {
        const CSize delta = FixedPoint(text, handle) - FixedPoint(*pNew, handle);
        pNew->Move(delta.cx, delta.cy);
    }
    return pNew.release();
}

} // namespace

CTextNode* ResizedText(CTool& tool, CImgNode* pNode, const RECT* pRect, int nHandle) {
    CTextNode* const pText = AsText(pNode);
    const CCanvas canvas(tool);
    if (!pText || !pRect || !canvas || nHandle < 0 || nHandle >= HandleCount) {
        return nullptr;
    }
    const HandleRow& handle = HandleOf(nHandle);
    const CRect rcOld = canvas.ToDocument(NodeRect(tool, pNode));
    const std::optional<int> nPixelSize =
        ScaledTextSize(tool, *pText, HandleScale(handle, CRect(*pRect), rcOld));
    if (!nPixelSize) {
        return nullptr;
    }
    if (*nPixelSize == pText->m_nFontSize) {
        return static_cast<CTextNode*>(pText->Duplicate());
    }
    return TextOfSize(tool, *pText, *nPixelSize, handle);
}

void PlaceResizedText(CTool& tool, CTextNode& text, CTextNode& resized) {
    TakePlace(tool, text, resized, {FrameRule::Scaled, ShadowRule::Rebuilt, DisplayRule::FromRebuilt});
}
