// Opening a new or an existing text in the editor on the canvas.
#include <algorithm>
#include <utility>

#include "ops/saturate.h"
#include "text/tools/text_tool.h"

int CTextTool::StartEditor(CPoint point, const CString& strText, int nVisible) {
    CCanvas canvas(*this);
    if (m_pEditor || !canvas) {
        return 0;
    }
    m_pEditor.reset(new CInplaceEditor);
    if (!m_pEditor) {
        return 0;
    }
    TextAttributes own = Attributes();
    m_pEditor->m_fnSetFont(own.strFontName);
    m_pEditor->m_fnSetFontSizeInPixel(Truncated(own.nPixelSize * canvas.View().m_dZoom));
    m_pEditor->m_fnSetFontColor(own.crText);
    m_pEditor->m_fnSetFontStyle(own.nStyle);
    m_pEditor->m_fnSetTextAlignType(KnownAlignment(own.nAlignment));
    CString strOpened = strText;
    if (!m_pEditor->m_fnCreate(&canvas.View(), point, strOpened, nVisible)) {
        m_pEditor.reset();
        return 0;
    }
    m_pEditor->m_fnRegisterNotifyObject(this);
    return 1;
}

void CTextTool::ShowEditor() {
    m_pEditor->ShowWindow(SW_SHOW);
    m_pEditor->SetFocus();
}

// A text that could not be rendered is offered when its object, or a new text, is opened the next time.
CString CTextTool::TextToStartWith(const CImgNode* pNode, const CString& strText) {
    if (m_strUnsaved.IsEmpty() || m_nUnsavedOf != (pNode ? pNode->m_nId : 0)) {
        return strText;
    }
    return std::exchange(m_strUnsaved, CString());
}

int CTextTool::EditTextNode(CImgNode* pNode, const CPoint* pPoint) {
    return pPoint ? EditTextNode(pNode, pPoint->x, pPoint->y) : 0;
}

int CTextTool::EditTextNode(CImgNode* pNode, int nX, int nY) {
    CTextNode* const pText = AsText(pNode);
    CCanvas canvas(*this);
    if (!pText || pText->m_pOwner || !canvas || m_pEditor) {
        return 0;
    }
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    AddMarkArea(pText, refresh);
    m_pEdited = pText;
    m_pZAnchor = PredecessorOf(canvas, pText);
    TakeOffPage(canvas, *pText);
    refresh.FlushRepaint(canvas.View());

    CRect rcBound;
    pText->GetBoundRect(&rcBound);
    CPoint ptDoc = canvas.ToDocument(CPoint(nX, nY));
    ptDoc.x = std::min(std::max(ptDoc.x, rcBound.left), rcBound.right);
    ptDoc.y = std::min(std::max(ptDoc.y, rcBound.top), rcBound.bottom);
    if (!StartEditor(CPoint(0, 0), TextToStartWith(pText, TextOf(*pText)), 0)) {
        return AbandonEdit(canvas, *pText, refresh);
    }
    PlaceEditor(canvas, *pText, ptDoc);
    ShowEditor();
    return 1;
}

// Over the object, with the caret where the point lies in it.
void CTextTool::PlaceEditor(CCanvas& canvas, CTextNode& node, CPoint ptDoc) {
    CRect rcBound;
    node.GetBoundRect(&rcBound);
    CPoint ptCenter = canvas.ToClient(rcBound).CenterPoint();
    m_pEditor->m_fnCenterWindow(ptCenter);
    CRect rcText;
    m_pEditor->m_fnGetTextBoundRect(rcText);
    const auto scaled = [](int nOffset, int nText, int nNode) {
        return nNode > 0 ? Truncated(nOffset * (static_cast<double>(nText) / nNode)) : 0;
    };
    CPoint ptCaret(rcText.left + scaled(ptDoc.x - rcBound.left, rcText.Width(), rcBound.Width()),
                   rcText.top + scaled(ptDoc.y - rcBound.top, rcText.Height(), rcBound.Height()));
    m_pEditor->m_fnMoveCursorTo(ptCaret);
}

// The nearest object in front; companions do not count.
CImgNode* CTextTool::PredecessorOf(CCanvas& canvas, CImgNode* pNode) {
    POSITION position = canvas.Objects().Find(pNode);
    if (position) {
        canvas.Objects().GetPrev(position);
    }
    while (position) {
        CImgNode* const pBefore = canvas.Objects().GetPrev(position);
        if (!pBefore->m_pOwner) {
            return pBefore;
        }
    }
    return nullptr;
}

void CTextTool::TakeOffPage(CCanvas& canvas, CTextNode& node) {
    for (CImgNode* pNode : {static_cast<CImgNode*>(&node), node.m_pFrameNode, node.m_pShadowNode}) {
        POSITION position = pNode ? canvas.Objects().Find(pNode) : nullptr;
        if (position) {
            canvas.Objects().RemoveAt(position);
        }
    }
    if (POSITION position = canvas.Selection().Find(&node)) {
        canvas.Selection().RemoveAt(position);
    }
}

// The anchor, or its shadow where it has one; null when the anchor is no more. It is looked for without being
// touched, because the host may have deleted it.
POSITION CTextTool::PlaceBehindAnchor(CImgNodeList& objects) {
    for (POSITION position = m_pZAnchor ? objects.GetHeadPosition() : nullptr; position;) {
        const POSITION place = position;
        if (objects.GetNext(position) == m_pZAnchor) {
            CImgNode* const pShadow = m_pZAnchor->m_pShadowNode;
            const POSITION shadow = pShadow ? objects.Find(pShadow) : nullptr;
            return shadow ? shadow : place;
        }
    }
    return nullptr;
}

// Frame, object, shadow.
void CTextTool::PutBackOnPage(CCanvas& canvas, CTextNode& node) {
    CImgNodeList& objects = canvas.Objects();
    POSITION before = PlaceBehindAnchor(objects);
    POSITION position = before ? objects.InsertAfter(before, &node) : objects.AddHead(&node);
    if (node.m_pFrameNode) {
        objects.InsertBefore(position, node.m_pFrameNode);
    }
    if (node.m_pShadowNode) {
        objects.InsertAfter(position, node.m_pShadowNode);
    }
}

// Without an editor the object goes back where it was, selected as it was found.
int CTextTool::AbandonEdit(CCanvas& canvas, CTextNode& node, CRefresh& refresh) {
    PutBackOnPage(canvas, node);
    m_pEdited = nullptr;
    m_pZAnchor = nullptr;
    canvas.Selection().AddTail(&node);
    refresh.FlushMarkRepaint(canvas.View(), *this);
    return 0;
}
