#include "tools/combo_tools.h"

#include "host/panels.h"
#include "ops/bus.h"

const GUID* CAdaptiveComboTool::GetGroupIdOverride() {
    IToolGroupSource* pSource = bus::FindService<IToolGroupSource>(*this, kind::PropertyArea);
    return pSource ? pSource->GetToolGroup() : nullptr;
}

int CAdaptiveComboTool::GetPanelKind() {
    CListenerObject* pPage = bus::FindObject(*this, CategoryId, kind::PropertyArea);
    if (pPage && bus::IsOfKind(*pPage, kind::ObjectPage)) {
        return panel_kind::Object;
    }
    return pPage && bus::IsOfKind(*pPage, kind::TextPage) ? panel_kind::Text : panel_kind::Composed;
}
