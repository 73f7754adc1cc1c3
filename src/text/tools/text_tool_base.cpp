#include "text/tools/text_tool_base.h"

#include "host/panels.h"
#include "ops/bus.h"
#include "text/editor/default_font.h"
#include "text/editor/inplace_editor.h"
#include "tools/identity.h"

CTextToolBase::CTextToolBase() : m_strFontName(DefaultFontName()) {}

int CTextToolBase::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (AnswerInterface<ITextAttributeTarget>(this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CBasicObjectTool::QueryInterface(iid, ppInterface, pExtra);
}

ITextAttributePanel* CTextToolBase::TextPanel() {
    return bus::FindService<ITextAttributePanel>(*this, kind::TextPage);
}

// A size that the user typed stays as typed while it comes to the object's pixels.
void CTextToolBase::OnObjectHook(CImgNode* pNode) {
    CTextNode* const pText = AsText(pNode);
    CString strFontName;
    if (!pText || CCanvas(*this).OnlySelected() != pNode || !ReadFontName(*pText, strFontName)) {
        return;
    }
    int nPoints = CInplaceEditor::m_fnConvertFontPixelToNearestPoint(pText->m_nFontSize);
    if (ITextAttributePanel* pPanel = TextPanel()) {
        TextAttributes shown;
        int nShownPoints = 0;
        pPanel->GetAttributes(&shown.strFontName, &nShownPoints, &shown.nAlignment, &shown.nStyle,
                              &shown.crText);
        if (CInplaceEditor::m_fnConvertFontPointToPixel(nShownPoints) == pText->m_nFontSize) {
            nPoints = nShownPoints;
        }
    }
    TakeAttributes(*pText, strFontName, nPoints);
}

void CTextToolBase::TakeAttributes(const CTextNode& node, const CString& strFontName, int nPoints) {
    m_strFontName = strFontName;
    m_nPoints = nPoints;
    m_nAlignment = AlignmentIndexOf(node);
    CTextToolBase::SetStyle(StyleBitsOf(node));
    m_crText = node.m_crText;
}

int CTextToolBase::ResetHost() {
    CBasicObjectTool::ResetHost();
    CListenerObject* const pPage = bus::FindObject(*this, CategoryId, kind::TextPage);
    if (!pPage) {
        return 1;
    }
    ITextAttributePanel* const pPanel = bus::Query<ITextAttributePanel>(pPage);
    if (!pPanel) {
        return 0;
    }
    int nStyle = 0;
    pPanel->GetAttributes(&m_strFontName, &m_nPoints, &m_nAlignment, &nStyle, &m_crText);
    m_nAlignment = KnownAlignment(m_nAlignment);
    CTextToolBase::SetStyle(nStyle);
    return 1;
}

int CTextToolBase::SetFontName(const CString& strName) {
    m_strFontName = strName;
    return 1;
}

int CTextToolBase::SetFontSize(int nPoints) {
    m_nPoints = nPoints;
    return 1;
}

int CTextToolBase::SetAlignment(int nIndex) {
    m_nAlignment = KnownAlignment(nIndex);
    return 1;
}

int CTextToolBase::SetStyle(int nBits) {
    m_nBold = (nBits & text_style::Bold) != 0;
    m_nItalic = (nBits & text_style::Italic) != 0;
    m_nUnderline = (nBits & text_style::Underline) != 0;
    return 1;
}

int CTextToolBase::SetColor(COLORREF crText) {
    m_crText = crText;
    return 1;
}

int CTextToolBase::StyleBits() const {
    return (m_nBold ? text_style::Bold : 0) | (m_nItalic ? text_style::Italic : 0) |
           (m_nUnderline ? text_style::Underline : 0);
}

TextAttributes CTextToolBase::Attributes() const {
    return {m_strFontName, CInplaceEditor::m_fnConvertFontPointToPixel(m_nPoints), m_nAlignment, StyleBits(),
            m_crText};
}
