// What becomes of the typed text when the editor's input ends.
#include <utility>

#include "host/panels.h"
#include "ops/bus.h"
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

// The shadow settings as a shadow is built from them.
CShadowParam TruncatedParam(CShadowParam param) {
    param.dOffsetX = static_cast<int>(param.dOffsetX);
    param.dOffsetY = static_cast<int>(param.dOffsetY);
    param.dSoftness = static_cast<int>(param.dSoftness);
    return param;
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
    CCanvas canvas(*this);
    if (canvas && !strText.IsEmpty()) {
        CommitText(canvas, strText);
    }
    CloseEditor();
    m_pEdited = nullptr;
    m_pZAnchor = nullptr;
    NotifyObjectsRedrawn();
    NotifyObjectsChanged();
}

void CTextTool::CloseEditor() {
    const std::unique_ptr<CInplaceEditor> pEditor = std::move(m_pEditor);
    if (pEditor) {
        pEditor->DestroyWindow();
    }
}

void CTextTool::CommitText(CCanvas& canvas, const CString& strText) {
    CRect rcText;
    m_pEditor->m_fnGetTextBoundRect(rcText);
    const CRect rcDoc = canvas.ToDocument(rcText);
    const int nAlignment = KnownAlignment(m_pEditor->m_fnGetAlignType());
    std::unique_ptr<CTextNode> pNew(BuildCommitted(strText));
    if (!pNew || !TakeLook(*pNew)) {
        KeepUnsaved(canvas, strText);
        return;
    }
    CloseEditor();
    if (m_pEdited) {
        CommitEdited(canvas, std::move(pNew), nAlignment);
    } else {
        CommitNew(canvas, *pNew.release(), rcDoc);
    }
}

// At the tool's own size: the editor's is that of the view's zoom.
CTextNode* CTextTool::BuildCommitted(const CString& strText) {
    TextAttributes attributes;
    m_pEditor->m_fnGetFontName(attributes.strFontName);
    attributes.nPixelSize = CInplaceEditor::m_fnConvertFontPointToPixel(m_nPoints);
    attributes.nAlignment = KnownAlignment(m_pEditor->m_fnGetAlignType());
    attributes.nStyle = (m_pEditor->m_fnIsBold() ? text_style::Bold : 0) |
                        (m_pEditor->m_fnIsItalic() ? text_style::Italic : 0) |
                        (m_pEditor->m_fnIsUnderLine() ? text_style::Underline : 0);
    attributes.crText = m_pEditor->m_fnGetTextColor();
    return m_fnCreateText(strText, attributes);
}

// That of the edited object, or the panel's for new text. False when the object's display values are refused,
// which would be lost with the old object.
bool CTextTool::TakeLook(CTextNode& node) {
    if (!m_pEdited) {
        TakePanelTransparency(node);
        return true;
    }
    CopyEffect(node, *m_pEdited);
    return CopyDisplayValues(node, *m_pEdited);
}

// The text stays with the tool, and an edited object goes back as it was.
void CTextTool::KeepUnsaved(CCanvas& canvas, const CString& strText) {
    m_strUnsaved = strText;
    m_nUnsavedOf = m_pEdited ? m_pEdited->m_nId : 0;
    if (m_pEdited) {
        PutBackOnPage(canvas, *m_pEdited);
        CRefresh refresh;
        AddMarkArea(m_pEdited, refresh);
        refresh.FlushMarkRepaint(canvas.View(), *this);
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

void CTextTool::CommitNew(CCanvas& canvas, CTextNode& node, const CRect& rcDoc) {
    MoveCornerTo(node, CPoint(rcDoc.Width() / 2 - node.m_tx.nWidth / 2 + rcDoc.left,
                              rcDoc.Height() / 2 - node.m_tx.nHeight / 2 + rcDoc.top));
    canvas.Objects().AddHead(&node);
    GiveDefaultShadow(node);
    KeepNodeInView(&node);
    TakeExcludedNodeOut(canvas);
    SelectOnlyNode(&node);
    CRefresh refresh;
    AddMarkArea(&node, refresh);
    refresh.FlushMarkRepaint(canvas.View(), *this);
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
    m_fnCreateShadow(&node, nX, nY, &crColor, nSoftness, nTransparency);
}

void CTextTool::TakeExcludedNodeOut(CCanvas& canvas) {
    CImgNode* const pExcluded = GetExcludedNode();
    if (POSITION position = pExcluded ? canvas.Objects().Find(pExcluded) : nullptr) {
        canvas.Objects().RemoveAt(position);
    }
}

void CTextTool::CommitEdited(CCanvas& canvas, std::unique_ptr<CTextNode> pNew, int nAlignment) {
    CTextNode& node = *m_pEdited;
    CRefresh refresh;
    AddMarkArea(&node, refresh);
    MoveCornerTo(*pNew, KeptCorner(node, *pNew, nAlignment));
    const FrameLink frame = FrameLinkOf(node);
    CImgNode* const pShadow = node.m_pShadowNode;
    const CShadowParam shadow = TruncatedParam(node.m_shadow);
    const int nOldHeight = node.m_tx.nHeight;
    node.m_fnMoveMemberDataFrom(pNew.get());
    pNew.reset();
    node.m_shadow = shadow;
    node.m_pShadowNode = pShadow;
    RestoreFrameLink(node, frame);

    PutBackOnPage(canvas, node);
    ScaleFrame(node, nOldHeight, node.m_tx.nHeight);
    m_fnRegenerateShadow(&node);
    KeepNodeInView(&node);
    TakeExcludedNodeOut(canvas);
    SelectOnlyNode(&node);
    AddMarkArea(&node, refresh);
    refresh.FlushMarkRepaint(canvas.View(), *this);
}
