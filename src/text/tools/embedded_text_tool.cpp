#include "text/tools/embedded_text_tool.h"

#include "host/panels.h"
#include "ops/bus.h"

void CEmbeddedTextTool::OnObjectHook(CImgNode* pNode) {
    const CLinkScope link(*this);
    CTextTool::OnObjectHook(pNode);
}

int CEmbeddedTextTool::ResetHost() {
    const CLinkScope link(*this);
    const int nReset = CTextTool::ResetHost();
    if (auto* pPanel = bus::FindService<ITransparencyPanel>(*this, kind::TextPage)) {
        std::int32_t nTransparency = m_nTransparency;
        pPanel->GetTransparency(&nTransparency);
        m_nTransparency = nTransparency;
    }
    return nReset;
}

int CEmbeddedTextTool::GetNodeMarkRect(CImgNode* pNode, RECT* pRect) {
    return GetOwner() ? GetOwner()->GetNodeMarkRect(pNode, pRect) : CTextTool::GetNodeMarkRect(pNode, pRect);
}

int CEmbeddedTextTool::GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) {
    return GetOwner() ? GetOwner()->GetNodeOutlineMarkRect(pNode, pRect)
                      : CTextTool::GetNodeOutlineMarkRect(pNode, pRect);
}

int CEmbeddedTextTool::DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return GetOwner() ? GetOwner()->DrawSelectionMark(pDC, pOrigin, pNode)
                      : CTextTool::DrawSelectionMark(pDC, pOrigin, pNode);
}

int CEmbeddedTextTool::DrawShadowMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return GetOwner() ? GetOwner()->DrawShadowMark(pDC, pOrigin, pNode)
                      : CTextTool::DrawShadowMark(pDC, pOrigin, pNode);
}

int CEmbeddedTextTool::InvalidateSelectionMark(CImgNode* pNode) {
    return GetOwner() ? GetOwner()->InvalidateSelectionMark(pNode)
                      : CTextTool::InvalidateSelectionMark(pNode);
}

int CEmbeddedTextTool::HitTestSelected(CPoint* pPoint, CImgNode* pNode) {
    return GetOwner() ? GetOwner()->HitTestSelected(pPoint, pNode)
                      : CTextTool::HitTestSelected(pPoint, pNode);
}

int CEmbeddedTextTool::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const CLinkScope link(*this);
    const CCanvas canvas(*this);
    if (!GetOwner() || !canvas || canvas.Selection().GetCount() > 1) {
        return 0;
    }
    CTextTool::OnLButtonDblClk(nFlags, point);
    return 1;
}

int CEmbeddedTextTool::OnLButtonDown(UINT nFlags, CPoint point) {
    const CLinkScope link(*this);
    const CCanvas canvas(*this);
    if (!GetOwner() || !canvas) {
        return 0;
    }
    if (!IsEditing()) {
        if (canvas.HasSelection()) {
            return 0;
        }
        CBasicObjectTool::OnLButtonDown(nFlags, point);
        if (canvas.HasSelection()) {
            return 0;
        }
    }
    CTextTool::OnLButtonDown(nFlags, point);
    return 1;
}

int CEmbeddedTextTool::OnLButtonUp(UINT, CPoint) {
    ShareExcludedNode();
    return 0;
}

int CEmbeddedTextTool::SetFontName(const CString& strName) {
    const CLinkScope link(*this);
    return CTextTool::SetFontName(strName);
}

int CEmbeddedTextTool::SetFontSize(int nPoints) {
    const CLinkScope link(*this);
    return CTextTool::SetFontSize(nPoints);
}

int CEmbeddedTextTool::SetAlignment(int nIndex) {
    const CLinkScope link(*this);
    return CTextTool::SetAlignment(nIndex);
}

int CEmbeddedTextTool::SetStyle(int nBits) {
    const CLinkScope link(*this);
    return CTextTool::SetStyle(nBits);
}

int CEmbeddedTextTool::SetColor(COLORREF crText) {
    const CLinkScope link(*this);
    return CTextTool::SetColor(crText);
}

// Behind the commit the owner's marks lie round the new text.
void CEmbeddedTextTool::OnInputEnded(CInplaceEditor* pEditor) {
    const CLinkScope link(*this);
    CTextTool::OnInputEnded(pEditor);
    const CCanvas canvas(*this);
    if (!GetOwner() || !canvas) {
        return;
    }
    const CRect rc = SelectionOutlineRect(*this);
    FlushViewRect(&rc);
    GetOwner()->ShowSelectionMarks(1);
    const CRect rcClient = canvas.ClientRect();
    GetOwner()->RedrawRect(&rcClient);
}

int CEmbeddedTextTool::EditTextNode(CImgNode* pNode, const CPoint* pPoint) {
    const CLinkScope link(*this);
    return CTextTool::EditTextNode(pNode, pPoint);
}
