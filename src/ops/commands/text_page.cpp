#include "ops/commands/text_page.h"

#include "host/panels.h"
#include "ops/current_tool.h"

bool text_page::Show(CTool& tool) {
    auto* const pPanel = bus::FindService<ITextAttributePanel>(tool, kind::TextPage);
    if (pPanel) {
        pPanel->SelectPage(0);
    }
    return pPanel != nullptr;
}

IToolInput* text_page::OtherToolInput(CTool& tool) {
    CListenerObject* const pCurrent = CurrentTool(tool);
    return pCurrent != &tool ? bus::Query<IToolInput>(pCurrent) : nullptr;
}

std::optional<int> text_page::HandOverDblClick(CTool& tool, UINT nFlags, CPoint point) {
    if (!tool.IsCtrlDown()) {
        Show(tool);
    }
    IToolInput* const pInput = OtherToolInput(tool);
    return pInput ? std::optional<int>(pInput->OnLButtonDblClk(nFlags, point)) : std::nullopt;
}
