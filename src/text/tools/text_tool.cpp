#include "text/tools/text_tool.h"

#include "host/panels.h"
#include "ops/hit_test.h"
#include "ops/host_page.h"
#include "ops/selection.h"
#include "tools/identity.h"

CTextTool::~CTextTool() = default;

int CTextTool::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (AnswerInterface<ITextEditEntry>(this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CTextToolBase::QueryInterface(iid, ppInterface, pExtra);
}

void CTextTool::OnNodeResized(CImgNode* pNode) {
    if (const CTextNode* pText = AsText(pNode)) {
        m_nPoints = CInplaceEditor::m_fnConvertFontPixelToNearestPoint(pText->m_nFontSize);
        ShowAttributes();
    }
}

void CTextTool::EndEditing() {
    if (m_pEditor) {
        m_pEditor->m_fnEndInput();
    }
}

int CTextTool::OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) {
    if (nActivate != 1) {
        EndEditing();
    }
    return CTextToolBase::OnToolActivate(pOther, nActivate, nRedraw);
}

int CTextTool::OnRButtonDown(UINT nFlags, CPoint point) {
    EndEditing();
    return CTextToolBase::OnRButtonDown(nFlags, point);
}

int CTextTool::OnLButtonDown(UINT nFlags, CPoint point) {
    if (m_pEditor) {
        m_nEndedOnPress = 1;
        EndEditing();
        return 1;
    }
    m_nEndedOnPress = 0;
    return CTextToolBase::OnLButtonDown(nFlags, point);
}

int CTextTool::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const CCanvas canvas(*this);
    if (!canvas) {
        return 0;
    }
    const bool bExcluded = IsOnExcludedNode(*this, point);
    if (bExcluded && !IsOnSelection(*this, point)) {
        return CTextToolBase::OnLButtonDblClk(nFlags, point);
    }
    if (!bExcluded && m_nEndedOnPress == 1 && !IsOnSelection(*this, point)) {
        m_nEndedOnPress = 0;
        SelectByEndingClick(canvas, point);
    }
    CImgNode* pNode = canvas.View().m_fnSelectedNodeBoundaryUnderPt(point);
    const bool bForeign = pNode && !AsText(pNode);
    if (canvas.Selection().GetCount() > 1 || (bForeign && bExcluded)) {
        return CTextToolBase::OnLButtonDblClk(nFlags, point);
    }
    if (bForeign) {
        DeselectAll(1);
        pNode = nullptr;
    }
    ITextAttributePanel* const pPanel = TextPanel();
    if (!pPanel) {
        return CTextToolBase::OnLButtonDblClk(nFlags, point);
    }
    pPanel->SelectPage(0);
    host_page::Show(*this, 1);
    PushAttributes();
    if (!pNode) {
        return StartNewText(*pPanel, point);
    }
    if (IsOnFrame(*pNode, point)) {
        return CTextToolBase::OnLButtonDblClk(nFlags, point);
    }
    m_ptDblClick = point;
    EditTextNode(pNode, point.x, point.y);
    return 1;
}

// The press that ended the editing has selected nothing; the double-click it belongs to makes up for it. The
// view itself is asked: the commit may have taken the excluded node, by which the tool's hit tests go, off
// the page.
void CTextTool::SelectByEndingClick(const CCanvas& canvas, CPoint point) {
    CTouchedArea area(*this);
    ClearSelection();
    if (CImgNode* pNode = ClickedObject(canvas.View().m_fnNodeUnderPt(point))) {
        Select(canvas, pNode);
    }
    area.After().FlushMarkRepaint(canvas, *this);
}

int CTextTool::StartNewText(ITextAttributePanel& panel, CPoint point) {
    panel.OnNewText();
    m_ptDblClick = point;
    if (StartEditor(point, nullptr, 0)) {
        ShowEditor();
    }
    return 1;
}

bool CTextTool::IsOnFrame(const CImgNode& node, CPoint point) {
    const CCanvas canvas(*this);
    return node.m_pFrameNode && node.m_pFrameNode->PtInMask(canvas.ToDocument(point)) == 1;
}
