#include "tools/display_tool.h"

#include "ops/commands/display.h"
#include "ops/commands/text_page.h"
#include "ops/hit_test.h"
#include "tools/identity.h"

int CDisplayTool::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (AnswerInterface<ISelectionDisplay, INodeDisplay>(this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CObjectTool::QueryInterface(iid, ppInterface, pExtra);
}

int CDisplayTool::OnLButtonDown(UINT nFlags, CPoint point) {
    CObjectTool::OnLButtonDown(nFlags, point);
    return 1;
}

int CDisplayTool::OnLButtonUp(UINT nFlags, CPoint point) {
    CObjectTool::OnLButtonUp(nFlags, point);
    return 1;
}

int CDisplayTool::GetPanelKind() { return IdentityOf(*this).nPanelKind; }

int CDisplayTool::SetSelectionDisplay(int nBrightness, int nContrast, int nTransparency) {
    return display::SetSelectionDisplay(*this, {nBrightness, nContrast, nTransparency});
}

int CDisplayTool::SetNodeDisplay(CImgNode* pNode, int nBrightness, int nContrast, int nTransparency,
                                 std::int32_t* pError) {
    return display::SetNodeDisplay(pNode, {nBrightness, nContrast, nTransparency}, pError);
}

int CTextDisplayTool::OnLButtonDown(UINT nFlags, CPoint point) {
    m_bSelectedAtPress = CCanvas(*this).HasSelection();
    return CDisplayTool::OnLButtonDown(nFlags, point);
}

int CTextDisplayTool::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const std::optional<int> answer = text_page::HandOverDblClick(*this, nFlags, point);
    return answer ? *answer : CDisplayTool::OnLButtonDblClk(nFlags, point);
}

bool CTextDisplayTool::IsClickOnNothing(CPoint point) {
    return !IsMoving() && !IsResizing() && !m_bSelectedAtPress && !NodeUnderPoint(*this, point);
}

int CTextDisplayTool::OnLButtonUp(UINT nFlags, CPoint point) {
    IToolInput* const pInput =
        IsClickOnNothing(point) && text_page::Show(*this) ? text_page::OtherToolInput(*this) : nullptr;
    if (!pInput) {
        return CDisplayTool::OnLButtonUp(nFlags, point);
    }
    pInput->OnLButtonDown(nFlags, point);
    pInput->OnLButtonUp(nFlags, point);
    return 1;
}
