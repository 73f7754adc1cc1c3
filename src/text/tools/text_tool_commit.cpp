// What becomes of the typed text when the editor's input ends.
#include <utility>

#include "host/panels.h"
#include "ops/bus.h"
#include "ops/nodes.h"
#include "ops/selection.h"
#include "shadows/shadow_build.h"
#include "text/object/text_build.h"
#include "text/object/text_place.h"
#include "text/tools/text_tool.h"

namespace {

// The place of edited text: the edge that its alignment holds stays, and so does the top.
CPoint KeptCorner(const CTextNode& old, const CTextNode& node, int nAlignment) {
    switch (nAlignment) {
    case text_align::Center:
        return CPoint(old.m_tx.nX + old.m_tx.nWidth / 2 - node.m_tx.nWidth / 2, old.m_tx.nY);
    case text_align::Right: return CPoint(old.m_tx.nX + old.m_tx.nWidth - node.m_tx.nWidth, old.m_tx.nY);
    default: return CornerOf(old);
    }
}

} // namespace

// The editor is destroyed in here, in the middle of its own notification.
void CTextTool::OnInputEnded(CInplaceEditor* pEditor) {
    if (!pEditor || pEditor != m_pEditor.get()) {
        return;
    }
    CWaitCursor wait;
    CString strText;
    m_pEditor->m_fnGetText(strText);
    const CCanvas canvas(*this);
    if (canvas && !strText.IsEmpty()) {
        CommitText(canvas, strText);
    }
    CloseEditor();
    m_pEdited = nullptr;
    m_pZAnchor = nullptr;
    NotifyRedrawnThenChanged(*this);
}

void CTextTool::CloseEditor() {
    const std::unique_ptr<CInplaceEditor> pEditor = std::move(m_pEditor);
    if (pEditor) {
        pEditor->DestroyWindow();
    }
}

void CTextTool::CommitText(const CCanvas& canvas, const CString& strText) {
    CRect rcText;
    m_pEditor->m_fnGetTextBoundRect(rcText);
    const CRect rcDoc = canvas.ToDocument(rcText);
    const int nAlignment = KnownAlignment(m_pEditor->m_fnGetAlignType());
    std::unique_ptr<CTextNode> pNew = BuildCommitted(strText);
    if (!pNew) {
        KeepUnsaved(canvas, strText);
        return;
    }
    CloseEditor();
    if (m_pEdited) {
        CommitEdited(canvas, *pNew, nAlignment);
    } else {
        CommitNew(canvas, *pNew.release(), rcDoc);
    }
}

// At the tool's own size: the editor's is that of the view's zoom.
TextAttributes CTextTool::EditorAttributes() {
    TextAttributes attributes;
    m_pEditor->m_fnGetFontName(attributes.strFontName);
    attributes.nPixelSize = CInplaceEditor::m_fnConvertFontPointToPixel(m_nPoints);
    attributes.nAlignment = KnownAlignment(m_pEditor->m_fnGetAlignType());
    attributes.nStyle = (m_pEditor->m_fnIsBold() ? text_style::Bold : 0) |
                        (m_pEditor->m_fnIsItalic() ? text_style::Italic : 0) |
                        (m_pEditor->m_fnIsUnderLine() ? text_style::Underline : 0);
    attributes.crText = m_pEditor->m_fnGetTextColor();
    return attributes;
}

// New text takes the panel's transparency, edited text the look of its object: without the object's display
// values nothing is built, because they would be lost with it.
std::unique_ptr<CTextNode> CTextTool::BuildCommitted(const CString& strText) {
    if (m_pEdited) {
        return BuildTextLike(*this, *m_pEdited, strText, EditorAttributes(),
                             {Effect::Same, Width::Kept, Display::Required});
    }
    std::unique_ptr<CTextNode> pNew = BuildText(*this, strText, EditorAttributes());
    if (pNew) {
        TakePanelTransparency(*pNew);
    }
    return pNew;
}

// The text stays with the tool, and an edited object goes back as it was found.
void CTextTool::KeepUnsaved(const CCanvas& canvas, const CString& strText) {
    m_unsaved.Keep(canvas.PageId(), m_pEdited ? m_pEdited->m_nId : CUnsavedTexts::NewText, strText);
    if (m_pEdited) {
        PutBackOnPage(canvas, *m_pEdited);
        Reselect(canvas, *m_pEdited);
        CRefresh refresh;
        refresh.Add(SelectionOutlineRect(*this));
        refresh.Add(MarkArea(*this, m_pEdited));
        refresh.FlushMarkRepaint(canvas, *this);
    }
}

void CTextTool::TakePanelTransparency(CTextNode& node) {
    ITransparencyPanel* const pPanel = bus::FindService<ITransparencyPanel>(*this, kind::TextPage);
    if (!pPanel) {
        return;
    }
    std::int32_t nTransparency = node.m_nTransparency;
    pPanel->GetTransparency(&nTransparency);
    if (nTransparency != node.m_nTransparency) {
        node.m_fnUpdateBCAndT(node.m_nBrightness, node.m_nContrast, nTransparency);
    }
}

void CTextTool::CommitNew(const CCanvas& canvas, CTextNode& node, const CRect& rcDoc) {
    MoveCornerTo(node, CPoint(rcDoc.Width() / 2 - node.m_tx.nWidth / 2 + rcDoc.left,
                              rcDoc.Height() / 2 - node.m_tx.nHeight / 2 + rcDoc.top));
    canvas.Objects().AddHead(&node);
    GiveDefaultShadow(node);
    CRefresh refresh;
    ShowCommitted(canvas, node, refresh);
}

void CTextTool::GiveDefaultShadow(CTextNode& node) {
    IShadowDefaults* const pDefaults = bus::FindService<IShadowDefaults>(*this, kind::TextPage);
    std::int32_t nEnabled = 0;
    if (!pDefaults || (pDefaults->IsEnabled(&nEnabled, 0), nEnabled != 1)) {
        return;
    }
    std::int32_t nX = 0;
    std::int32_t nY = 0;
    std::int32_t nSoftness = 0;
    std::int32_t nTransparency = 0;
    COLORREF crColor = 0;
    pDefaults->GetShadow(&nX, &nY, &crColor, &nSoftness, &nTransparency, 0);
    CreateShadow(*this, &node, nX, nY, &crColor, nSoftness, nTransparency);
}

void CTextTool::CommitEdited(const CCanvas& canvas, CTextNode& built, int nAlignment) {
    CTextNode& node = *m_pEdited;
    CRefresh refresh;
    refresh.Add(MarkArea(*this, &node));
    MoveCornerTo(built, KeptCorner(node, built, nAlignment));
    TakePlace(*this, node, built, {FrameRule::Scaled, ShadowRule::KeptTruncated, DisplayRule::FromRebuilt});
    PutBackOnPage(canvas, node);
    RegenerateShadow(*this, &node);
    ShowCommitted(canvas, node, refresh);
}

// The committed object is the only selection, in sight, and the excluded node has left the page.
void CTextTool::ShowCommitted(const CCanvas& canvas, CTextNode& node, CRefresh& refresh) {
    KeepNodeInView(&node);
    TakeOut(canvas.Objects(), GetExcludedNode());
    ::SelectOnly(*this, &node);
    refresh.Add(MarkArea(*this, &node));
    refresh.FlushMarkRepaint(canvas, *this);
}
