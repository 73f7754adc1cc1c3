#include "tools/display_tool.h"

#include "host/panels.h"
#include "ops/current_tool.h"
#include "ops/hit_test.h"
#include "tools/identity.h"

int CDisplayTool::OnLButtonDown(UINT nFlags, CPoint point) {
    CObjectTool::OnLButtonDown(nFlags, point);
    return 1;
}

int CDisplayTool::OnLButtonUp(UINT nFlags, CPoint point) {
    CObjectTool::OnLButtonUp(nFlags, point);
    return 1;
}

int CDisplayTool::GetPanelKind() { return IdentityOf(*this).nPanelKind; }

int CTextDisplayTool::OnLButtonDown(UINT nFlags, CPoint point) {
    m_bSelectedAtPress = CCanvas(*this).HasSelection();
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
    CListenerObject* const pTool = CurrentTool(*this);
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
    return !IsMoving() && !IsResizing() && !m_bSelectedAtPress && !NodeUnderPoint(*this, point);
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
