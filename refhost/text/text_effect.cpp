#include "text/text_effect.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "host/text_node.h"
#include "image/node_host.h"
#include "text/text_picture.h"

namespace {

using buffer_host::Look;
using buffer_host::View;

LONG Saturated(double dValue) {
    constexpr double Most = std::numeric_limits<LONG>::max();
    return static_cast<LONG>(std::clamp(std::round(dValue), -Most, Most));
}

/// The node's mask as it was before any scaling.
HBUF32 NaturalMask(const CTextNode& node) {
    return node.m_hTransSrcImage != 0 ? node.m_hTransSrcMask : node.m_tx.hMask;
}

/// Where a picture of `size` goes, at the scale at which the node shows its picture of `sizeNow`, so that the
/// text in it stays where it is.
CRect PlaceFor(const CTextNode& node, const View& now, const View& next, const CSize& moved) {
    const CRect rcNow = CNodeBookkeeping::NodeRect(node);
    const double dScaleX = (static_cast<double>(rcNow.right) - rcNow.left) / now.width;
    const double dScaleY = (static_cast<double>(rcNow.bottom) - rcNow.top) / now.height;
    const double dLeft = rcNow.left + std::round(moved.cx * dScaleX);
    const double dTop = rcNow.top + std::round(moved.cy * dScaleY);
    return CRect(Saturated(dLeft), Saturated(dTop), Saturated(dLeft + std::round(next.width * dScaleX)),
                 Saturated(dTop + std::round(next.height * dScaleY)));
}

void Exchange(HBUF32& hOwned, HBUF32 hNew) { CBufferPtr(std::exchange(hOwned, hNew)); }

} // namespace

TextEffect CTextEffectState::KindOf(const CTextNode& node) { return static_cast<TextEffect>(node.m_nEffect); }

COLORREF CTextEffectState::ColorOf(const CTextNode& node) { return node.m_crEffect; }

void CTextEffectState::Set(CTextNode& node, TextEffect effect, COLORREF color) {
    node.m_nEffect = static_cast<std::int32_t>(effect);
    node.m_crEffect = color;
}

CTextEffectState::TextBelow CTextEffectState::Below(const CTextNode& node) {
    return {node.m_hTextMask, node.m_ptText};
}

void CTextEffectState::SetBelow(CTextNode& node, const TextBelow& below) {
    node.m_ptText = below.ptText;
    Exchange(node.m_hTextMask, below.hMask);
}

bool CTextEffectState::Copy(const CTextNode& from, CTextNode& to) {
    Set(to, KindOf(from), from.m_crEffect);
    to.m_ptText = from.m_ptText;
    Exchange(to.m_hTextMask, from.m_hTextMask != 0 ? buf32DupBuf(from.m_hTextMask) : 0);
    return (to.m_hTextMask != 0) == (from.m_hTextMask != 0);
}

void CTextEffectState::Move(CTextNode& from, CTextNode& to) {
    Set(to, KindOf(from), from.m_crEffect);
    to.m_ptText = from.m_ptText;
    Exchange(to.m_hTextMask, std::exchange(from.m_hTextMask, 0));
    Reset(from);
}

void CTextEffectState::Reset(CTextNode& node) {
    Set(node, TextEffect::None, 0);
    node.m_ptText = CPoint(0, 0);
    Exchange(node.m_hTextMask, 0);
}

int CTextNode::m_fnCopyTextEffectFrom(const CTextNode* pOther) {
    if (!pOther) {
        return 0;
    }
    CTextEffectState::Set(*this, CTextEffectState::KindOf(*pOther), pOther->m_crEffect);
    return 1;
}

int CTextNode::m_fnChangeTextEffectColor(const COLORREF* pcrColor) {
    if (!pcrColor) {
        return 0;
    }
    m_crEffect = *pcrColor;
    return 1;
}

int CTextNode::m_fnIsTextEffectApplied() const { return m_nEffect != 0; }

int CTextNode::m_fnRegenerateTextEffect() {
    const View now = Look(NaturalMask(*this));
    const bool bApplied = m_fnIsTextEffectApplied() != 0;
    if (!now.pixels || now.unit != 1 || (!bApplied && m_hTextMask == 0)) {
        return 1;
    }
    const View text = m_hTextMask != 0 ? Look(m_hTextMask) : now;
    EffectPicture picture;
    CBufferPtr kept(bApplied && m_hTextMask == 0 ? buf32DupBuf(NaturalMask(*this)) : 0);
    if ((bApplied && m_hTextMask == 0 && !kept) ||
        !DrawTextEffect(CTextEffectState::KindOf(*this), {m_crText, m_crEffect}, text, m_nFontSize,
                        picture)) {
        return 0;
    }
    const CRect rcNext = PlaceFor(*this, now, Look(picture.mask.Get()),
                                  CSize(m_ptText.x - picture.ptText.x, m_ptText.y - picture.ptText.y));
    m_ptText = picture.ptText;
    if (kept || !bApplied) {
        Exchange(m_hTextMask, kept.Release());
    }
    Exchange(m_hTransSrcImage, 0);
    Exchange(m_hTransSrcMask, 0);
    SetImage(picture.image.Release(), picture.mask.Release(), m_tx.nX, m_tx.nY, 0);
    m_fnResize(rcNext);
    return 1;
}
