// Opening a new or an existing text in the editor on the canvas.
#include <algorithm>
#include <limits>

#include "ops/groups.h"
#include "ops/nodes.h"
#include "ops/saturate.h"
#include "ops/selection.h"
#include "text/tools/text_tool.h"

// A new text starts empty.
int CTextTool::StartEditor(CPoint point, const CTextNode* pText, int nVisible) {
    const CCanvas canvas(*this);
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
    CString strOpened = pText ? TextOf(*pText) : CString();
    if (!m_pEditor->m_fnCreate(&canvas.View(), point, strOpened, nVisible)) {
        m_pEditor.reset();
        return 0;
    }
    OfferUnsaved(canvas, pText);
    m_pEditor->m_fnRegisterNotifyObject(this);
    return 1;
}

void CTextTool::ShowEditor() {
    m_pEditor->ShowWindow(SW_SHOW);
    m_pEditor->SetFocus();
}

// A text that could not be rendered stands in the editor when its object, or a new text, is opened the next
// time. The editor is opened with the object's own text, which Escape gives.
void CTextTool::OfferUnsaved(const CCanvas& canvas, const CTextNode* pText) {
    const std::uint32_t nObject = pText ? pText->m_nId : CUnsavedTexts::NewText;
    if (const CString* pUnsaved = m_unsaved.Find(canvas.PageId(), nObject)) {
        constexpr int Behind = std::numeric_limits<int>::max();
        CString strUnsaved = *pUnsaved;
        m_pEditor->m_fnSetSelectRange(0, -1, Behind, Behind);
        m_pEditor->m_fnReplaceSelectRange(strUnsaved, 1);
        m_unsaved.Drop(nObject);
    }
}

int CTextTool::EditTextNode(CImgNode* pNode, const CPoint* pPoint) {
    return pPoint ? EditTextNode(pNode, pPoint->x, pPoint->y) : 0;
}

int CTextTool::EditTextNode(CImgNode* pNode, int nX, int nY) {
    CTextNode* const pText = AsText(pNode);
    const CCanvas canvas(*this);
    if (!pText || pText->m_pOwner || !canvas || m_pEditor) {
        return 0;
    }
    CRefresh refresh;
    refresh.Add(SelectionOutlineRect(*this));
    refresh.Add(MarkArea(*this, pText));
    m_pEdited = pText;
    m_pZAnchor = ObjectInFrontOf(canvas.Objects(), *pText);
    TakeOffPage(canvas, *pText);
    refresh.FlushRepaint(canvas);

    CRect rcBound;
    pText->GetBoundRect(&rcBound);
    CPoint ptDoc = canvas.ToDocument(CPoint(nX, nY));
    ptDoc.x = std::min(std::max(ptDoc.x, rcBound.left), rcBound.right);
    ptDoc.y = std::min(std::max(ptDoc.y, rcBound.top), rcBound.bottom);
    if (!StartEditor(CPoint(0, 0), pText, 0)) {
        return AbandonEdit(canvas, *pText, refresh);
    }
    PlaceEditor(canvas, *pText, ptDoc);
    ShowEditor();
    return 1;
}

// Over the object, with the caret where the point lies in it.
void CTextTool::PlaceEditor(const CCanvas& canvas, CTextNode& node, CPoint ptDoc) {
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

void CTextTool::TakeOffPage(const CCanvas& canvas, CTextNode& node) {
    TakeGroupOut(canvas.Objects(), node);
    int nPlace = 0;
    m_nSelectedAt = -1;
    for (CImgNode* pNode : Each(canvas.Selection())) {
        m_nSelectedAt = pNode == &node ? nPlace : m_nSelectedAt;
        ++nPlace;
    }
    Deselect(canvas, &node);
}

// At the place where the object was found, as far as those before it are still selected.
void CTextTool::Reselect(const CCanvas& canvas, CTextNode& node) {
    if (m_nSelectedAt >= 0) {
        POSITION place = canvas.Selection().FindIndex(m_nSelectedAt);
        place ? canvas.Selection().InsertBefore(place, &node) : canvas.Selection().AddTail(&node);
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

// Frame, object, shadow. An undo may have put the object back already.
void CTextTool::PutBackOnPage(const CCanvas& canvas, CTextNode& node) {
    CImgNodeList& objects = canvas.Objects();
    if (objects.Find(&node)) {
        return;
    }
    TakeGroupOut(objects, node);
    const POSITION before = PlaceBehindAnchor(objects);
    const POSITION place = before ? objects.InsertAfter(before, &node) : objects.AddHead(&node);
    if (node.m_pFrameNode) {
        objects.InsertBefore(place, node.m_pFrameNode);
    }
    if (node.m_pShadowNode) {
        objects.InsertAfter(place, node.m_pShadowNode);
    }
}

// Without an editor the object goes back where it was, selected as it was found.
int CTextTool::AbandonEdit(const CCanvas& canvas, CTextNode& node, const CRefresh& refresh) {
    PutBackOnPage(canvas, node);
    m_pEdited = nullptr;
    m_pZAnchor = nullptr;
    Reselect(canvas, node);
    refresh.FlushMarkRepaint(canvas, *this);
    return 0;
}
