// The five attributes that the text page sets, in the editor or on the selected texts.
#include "host/panels.h"
#include "ops/saturate.h"
#include "ops/selection_class.h"
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
    CCanvas canvas(*this);
    if (canvas.HasDocument() && !canvas.Selection().IsEmpty()) {
        NotifyObjectsRedrawn();
        NotifyObjectsChanged();
    }
}

// A colour is set on texts alone: any other selection keeps its colours.
bool CTextTool::SelectionDiffers(Attribute attribute) {
    CCanvas canvas(*this);
    if (!canvas.HasDocument()) {
        return false;
    }
    const int nClass = ClassifySelection();
    if (attribute == Color && nClass != selection_class::OneText && nClass != selection_class::SeveralTexts) {
        return false;
    }
    for (POSITION position = canvas.Selection().GetHeadPosition(); position;) {
        const CTextNode* const pText = AsText(canvas.Selection().GetNext(position));
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
    CCanvas canvas(*this);
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
    CCanvas canvas(*this);
    if (!canvas || canvas.Selection().IsEmpty()) {
        return 1;
    }
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    CNodeRefList nodes;
    m_fnCopySelection(canvas, nodes);
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CTextNode* const pText = AsText(nodes.GetNext(position));
        if (pText && !TextOf(*pText).IsEmpty() && !RebuildWith(*pText, nMask)) {
            return 0;
        }
    }
    rc.SetRectEmpty();
    GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    refresh.FlushMarkRepaint(canvas.View(), *this);
    return 1;
}

bool CTextTool::RebuildWith(CTextNode& node, int nMask) {
    TextAttributes attributes;
    ReadAttributes(node, attributes);
    const TextAttributes own = Attributes();
    attributes.strFontName = nMask & FontName ? own.strFontName : attributes.strFontName;
    attributes.nPixelSize = nMask & Size ? own.nPixelSize : attributes.nPixelSize;
    attributes.nAlignment = nMask & Alignment ? own.nAlignment : attributes.nAlignment;
    attributes.nStyle = nMask & Style ? own.nStyle : attributes.nStyle;
    attributes.crText = nMask & Color ? own.crText : attributes.crText;

    std::unique_ptr<CTextNode> pNew(m_fnCreateText(TextOf(node), attributes));
    if (!pNew) {
        return false;
    }
    const CSize before = SizeOf(*pNew);
    pNew->m_fnCopyTextEffectFrom(&node);
    pNew->m_fnChangeTextEffectColor(&attributes.crText);
    pNew->m_fnRegenerateTextEffect();
    KeepWidth(*pNew, before);
    if (!CopyDisplayValues(*pNew, node)) {
        return false;
    }
    if (ReplaceTextNode(&node, pNew.get(), 0)) {
        pNew.release();
    }
    return true;
}

// To the panel, when this tool is the current one.
void CTextTool::PushAttributes() {
    CCanvas canvas(*this);
    if (!IsCurrentTool() || !canvas.HasDocument()) {
        return;
    }
    if (!canvas.Selection().IsEmpty()) {
        const CTextNode* const pText = AsText(OnlySelectedNode(canvas));
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
