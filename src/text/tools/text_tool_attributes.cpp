// The five attributes that the text page sets, in the editor or on the selected texts.
#include "host/panels.h"
#include "ops/current_tool.h"
#include "ops/nodes.h"
#include "ops/saturate.h"
#include "ops/selection_class.h"
#include "text/object/text_build.h"
#include "text/tools/text_tool.h"

int CTextTool::SetFontName(const CString& strName) {
    CTextToolBase::SetFontName(strName);
    AttributeChanged(FontName);
    return 1;
}

int CTextTool::SetFontSize(int nPoints) {
    CTextToolBase::SetFontSize(nPoints);
    AttributeChanged(Size);
    return 1;
}

int CTextTool::SetAlignment(int nIndex) {
    CTextToolBase::SetAlignment(nIndex);
    AttributeChanged(Alignment);
    return 1;
}

int CTextTool::SetStyle(int nBits) {
    CTextToolBase::SetStyle(nBits);
    AttributeChanged(Style);
    return 1;
}

int CTextTool::SetColor(COLORREF crText) {
    CTextToolBase::SetColor(crText);
    AttributeChanged(Color);
    return 1;
}

void CTextTool::AttributeChanged(Attribute attribute) {
    if (!m_pEditor && !SelectionDiffers(attribute)) {
        return;
    }
    CWaitCursor wait;
    if (m_pEditor) {
        ApplyToEditor(attribute);
    } else {
        ApplyAttributesToSelection(attribute);
    }
    PushAttributes();
    if (CCanvas(*this).HasSelection()) {
        NotifyRedrawnThenChanged(*this);
    }
}

// A colour is set on texts alone: any other selection keeps its colours.
bool CTextTool::IsAppliedTo(const CCanvas& canvas, Attribute attribute) {
    if (!canvas.HasDocument()) {
        return false;
    }
    const int nClass = ClassifySelection();
    return attribute != Color || nClass == selection_class::OneText ||
           nClass == selection_class::SeveralTexts;
}

bool CTextTool::SelectionDiffers(Attribute attribute) {
    const CCanvas canvas(*this);
    if (!IsAppliedTo(canvas, attribute)) {
        return false;
    }
    for (CImgNode* pNode : Each(canvas.Selection())) {
        const CTextNode* const pText = AsText(pNode);
        if (pText && Differs(*pText, attribute)) {
            return true;
        }
    }
    return false;
}

bool CTextTool::Differs(const CTextNode& node, Attribute attribute) const {
    const TextAttributes own = Attributes();
    CString strFontName;
    switch (attribute) {
    case FontName: return !ReadFontName(node, strFontName) || strFontName != own.strFontName;
    case Size: return node.m_nFontSize != own.nPixelSize;
    case Alignment: return AlignmentIndexOf(node) != own.nAlignment;
    case Style: return StyleBitsOf(node) != own.nStyle;
    default: return node.m_crText != own.crText;
    }
}

void CTextTool::ApplyToEditor(Attribute attribute) {
    const CCanvas canvas(*this);
    TextAttributes own = Attributes();
    switch (attribute) {
    case FontName: m_pEditor->m_fnSetFont(own.strFontName); break;
    case Size:
        m_pEditor->m_fnSetFontSizeInPixel(Truncated(own.nPixelSize * (canvas ? canvas.View().m_dZoom : 1.0)));
        break;
    case Alignment: m_pEditor->m_fnSetTextAlignType(own.nAlignment); break;
    case Style: m_pEditor->m_fnSetFontStyle(own.nStyle); break;
    default: m_pEditor->m_fnSetFontColor(own.crText); break;
    }
}

int CTextTool::ApplyAttributesToSelection(int nMask) {
    const CCanvas canvas(*this);
    if (!canvas || !canvas.HasSelection()) {
        return 1;
    }
    CTouchedArea area(*this);
    CNodeRefList nodes;
    CopyList(canvas.Selection(), nodes);
    for (CImgNode* pNode : Each(nodes)) {
        CTextNode* const pText = AsText(pNode);
        if (pText && !TextOf(*pText).IsEmpty() && !RebuildWith(*pText, nMask)) {
            return 0;
        }
    }
    area.After().FlushMarkRepaint(canvas, *this);
    return 1;
}

bool CTextTool::RebuildWith(CTextNode& node, int nMask) {
    TextAttributes attributes;
    if (!ReadAttributes(node, attributes)) {
        return false;
    }
    Choose(nMask, attributes);
    std::unique_ptr<CTextNode> pNew = BuildTextLike(*this, node, TextOf(node), attributes,
                                                    {Effect::InTextColor, Width::Kept, Display::Required});
    if (!pNew) {
        return false;
    }
    if (ReplaceTextNode(&node, pNew.get(), 0)) {
        pNew.release();
    }
    return true;
}

// The attributes in the mask become the tool's.
void CTextTool::Choose(int nMask, TextAttributes& attributes) const {
    const TextAttributes own = Attributes();
    attributes.strFontName = nMask & FontName ? own.strFontName : attributes.strFontName;
    attributes.nPixelSize = nMask & Size ? own.nPixelSize : attributes.nPixelSize;
    attributes.nAlignment = nMask & Alignment ? own.nAlignment : attributes.nAlignment;
    attributes.nStyle = nMask & Style ? own.nStyle : attributes.nStyle;
    attributes.crText = nMask & Color ? own.crText : attributes.crText;
}

// To the panel, when this tool is the current one.
void CTextTool::PushAttributes() {
    const CCanvas canvas(*this);
    if (!IsCurrentTool(*this) || !canvas.HasDocument()) {
        return;
    }
    if (canvas.HasSelection()) {
        const CTextNode* const pText = AsText(canvas.OnlySelected());
        CString strFontName;
        if (!pText || !ReadFontName(*pText, strFontName)) {
            return;
        }
        TakeAttributes(*pText, strFontName,
                       CInplaceEditor::m_fnConvertFontPixelToNearestPoint(pText->m_nFontSize));
    }
    ShowAttributes();
}

void CTextTool::ShowAttributes() {
    if (ITextAttributePanel* pPanel = TextPanel()) {
        pPanel->ShowAttributes(&m_strFontName, m_nPoints, m_nAlignment, StyleBits(), m_crText, 0, 0);
    }
}
