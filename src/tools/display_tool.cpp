#include "tools/display_tool.h"

#include "host/panels.h"
#include "host/tool_ids.h"
#include "ops/bus.h"
#include "tools/identity_tables.h"

int CDisplayTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CObjectTool>(*this, {CategoryId, tool_kind::Display}, category, nKind, pResult,
                                      pExtra);
}

const GUID& CDisplayTool::GetToolClassId() { return tool_class::Display; }

int CDisplayTool::OnLButtonDown(UINT nFlags, CPoint point) {
    CObjectTool::OnLButtonDown(nFlags, point);
    return 1;
}

int CDisplayTool::OnLButtonUp(UINT nFlags, CPoint point) {
    CObjectTool::OnLButtonUp(nFlags, point);
    return 1;
}

int CDisplayTool::GetPanelKind() { return panel_kind::DisplayTool; }

int CDisplayPageTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CDisplayTool>(*this, {CategoryId, tool_kind::DisplayPage}, category, nKind, pResult,
                                       pExtra);
}

const GUID& CDisplayPageTool::GetToolClassId() { return tool_class::DisplayPage; }

const GUID& CDisplayPageTool::GetToolGroupId() { return GroupIdOr(tool_group::Object); }

int CDisplayPageTool::GetPanelKind() { return panel_kind::Object; }

int CTextDisplayTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CDisplayTool>(*this, {CategoryId, tool_kind::TextDisplay}, category, nKind, pResult,
                                       pExtra);
}

const GUID& CTextDisplayTool::GetToolClassId() { return tool_class::TextDisplay; }

const GUID& CTextDisplayTool::GetToolGroupId() { return GroupIdOr(tool_group::Text); }

int CTextDisplayTool::GetPanelKind() { return panel_kind::Text; }

int CTextDisplayTool::OnLButtonDown(UINT nFlags, CPoint point) {
    CCanvas canvas(*this);
    m_bSelectedAtPress = canvas.HasDocument() && !canvas.Selection().IsEmpty();
    return CDisplayTool::OnLButtonDown(nFlags, point);
}

// 1, or 0 when the host has no text page.
int CTextDisplayTool::ShowTextPage() {
    auto* pPanel = bus::FindService<ITextAttributePanel>(*this, kind::TextPage);
    if (pPanel) {
        pPanel->SelectPage(0);
    }
    return pPanel ? 1 : 0;
}

// The input of the current tool when that is another one; null when it is this, or lacks it.
IToolInput* CTextDisplayTool::OtherToolInput() {
    CListenerObject* const pTool = CurrentTool();
    return pTool != this ? bus::Query<IToolInput>(pTool) : nullptr;
}

int CTextDisplayTool::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (!IsCtrlDown()) {
        ShowTextPage();
    }
    if (IToolInput* pInput = OtherToolInput()) {
        return pInput->OnLButtonDblClk(nFlags, point);
    }
    return CDisplayTool::OnLButtonDblClk(nFlags, point);
}

bool CTextDisplayTool::IsClickOnNothing(CPoint point) {
    return !IsMoving() && !IsResizing() && !m_bSelectedAtPress && !NodeUnderPoint(point);
}

int CTextDisplayTool::OnLButtonUp(UINT nFlags, CPoint point) {
    IToolInput* const pInput = IsClickOnNothing(point) && ShowTextPage() ? OtherToolInput() : nullptr;
    if (!pInput) {
        return CDisplayTool::OnLButtonUp(nFlags, point);
    }
    pInput->OnLButtonDown(nFlags, point);
    pInput->OnLButtonUp(nFlags, point);
    return 1;
}
