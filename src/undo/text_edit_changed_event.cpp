#include "undo/text_edit_changed_event.h"

#include "ops/saturate.h"
#include "text/object/text_build.h"
#include "text/object/text_place.h"

IMPLEMENT_DYNCREATE(CTextEditChangedUndoEvent, CUndoEvent)

namespace {

CTextNode* FirstSelectedText(const CCanvas& canvas) { return AsText(canvas.FirstSelected()); }

CRect BoxOf(const CTextNode& node) {
    const CTxParam& tx = node.m_tx;
    return CRect(tx.nX, tx.nY, Saturated(static_cast<long long>(tx.nX) + tx.nWidth),
                 Saturated(static_cast<long long>(tx.nY) + tx.nHeight));
}

} // namespace

void CTextEditChangedUndoEvent::m_fnSaveState(CTool* pTool) {
    m_pOwnerTool = pTool;
    if (pTool) {
        if (const CTextNode* pText = FirstSelectedText(CCanvas(*pTool))) {
            m_strText = TextOf(*pText);
            m_rcBox = BoxOf(*pText);
        }
    }
    SetAccumulate(FALSE);
}

bool CTextEditChangedUndoEvent::IsReady(CTool&, const CCanvas& canvas) const {
    return FirstSelectedText(canvas) != nullptr;
}

CRect CTextEditChangedUndoEvent::Area(CTool& tool, const CCanvas& canvas) const {
    return MarkArea(tool, FirstSelectedText(canvas));
}

Restored CTextEditChangedUndoEvent::Restore(Way, CTool& tool, const CCanvas& canvas, CRefresh&) {
    CTextNode& text = *FirstSelectedText(canvas);
    const std::unique_ptr<CTextNode> pBuilt = BuildSavedText(tool, text);
    if (!pBuilt) {
        return Restored::Failed;
    }
    m_strText = TextOf(text);
    m_rcBox = BoxOf(text);
    TakePlace(tool, text, *pBuilt, {FrameRule::Dropped, ShadowRule::Kept, DisplayRule::FromRebuilt});
    if (text.m_pShadowNode) {
        tool.RefreshNodeShadow(&text, 0);
    }
    return Restored::Done;
}

// The saved text with the other's attributes, effect and display values, in the saved box. Null when it
// cannot be built.
std::unique_ptr<CTextNode> CTextEditChangedUndoEvent::BuildSavedText(CTool& tool, const CTextNode& like) {
    TextAttributes attributes;
    if (!ReadAttributes(like, attributes)) {
        return nullptr;
    }
    std::unique_ptr<CTextNode> pBuilt =
        BuildTextLike(tool, like, m_strText, attributes, {Effect::Same, Width::AsDrawn, Display::Taken});
    if (pBuilt) {
        pBuilt->m_fnResize(m_rcBox);
    }
    return pBuilt;
}
