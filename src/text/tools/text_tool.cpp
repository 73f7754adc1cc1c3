#include "text/tools/text_tool.h"

#include "host/panels.h"
#include "host/tool_ids.h"
#include "ops/bus.h"
#include "ops/host_page.h"
#include "tools/identity_tables.h"

CTextTool::~CTextTool() = default;

int CTextTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CTextToolBase>(*this, {CategoryId, tool_kind::Text}, category, nKind, pResult,
                                        pExtra);
}

int CTextTool::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    static constexpr std::array<InterfaceRow<CTextTool>, 1> Interfaces = {
        {RowOf<ITextEditEntry, CTextTool>()}};
    if (MatchInterface(Interfaces, this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CTextToolBase::QueryInterface(iid, ppInterface, pExtra);
}

const GUID& CTextTool::GetToolClassId() { return tool_class::Text; }

const GUID& CTextTool::GetToolGroupId() { return GroupIdOr(tool_group::Text); }

int CTextTool::GetPanelKind() { return panel_kind::Text; }

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
    CCanvas canvas(*this);
    if (!canvas) {
        return 0;
    }
    const bool bExcluded = IsOnExcludedNode(point);
    if (bExcluded && !IsOnSelection(point)) {
        return CTextToolBase::OnLButtonDblClk(nFlags, point);
    }
    if (!bExcluded && m_nEndedOnPress == 1 && !IsOnSelection(point)) {
        m_nEndedOnPress = 0;
        SelectByEndingClick(point);
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

// The press that ended the editing has selected nothing; the double-click it belongs to makes up for it.
void CTextTool::SelectByEndingClick(CPoint point) {
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    ClearSelection();
    if (CImgNode* pNode = ClickedNode(point)) {
        CNodeRefList nodes;
        nodes.AddTail(pNode);
        AddToSelection(nodes);
    }
    rc.SetRectEmpty();
    GetSelectionOutlineRect(&rc);
    refresh.Add(rc);
    FlushViewRect(&refresh.Area());
    ShowSelectionMarks(1);
    RedrawRect(&refresh.Area());
}

int CTextTool::StartNewText(ITextAttributePanel& panel, CPoint point) {
    panel.OnNewText();
    m_ptDblClick = point;
    if (StartEditor(point, TextToStartWith(nullptr, CString()), 0)) {
        ShowEditor();
    }
    return 1;
}

bool CTextTool::IsOnFrame(const CImgNode& node, CPoint point) {
    CCanvas canvas(*this);
    return node.m_pFrameNode && node.m_pFrameNode->PtInMask(canvas.ToDocument(point)) == 1;
}
