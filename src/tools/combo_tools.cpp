#include "tools/combo_tools.h"

#include "host/panels.h"
#include "host/tool_ids.h"
#include "ops/bus.h"
#include "tools/identity_tables.h"

int CTextComboTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CTextShadowTool>(*this, {EditCategoryId, tool_kind::TextCombo}, category, nKind,
                                          pResult, pExtra);
}

const GUID& CTextComboTool::GetToolClassId() { return tool_class::TextCombo; }

int CAdaptiveComboTool::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CTextShadowTool>(*this, {EditCategoryId, tool_kind::AdaptiveCombo}, category, nKind,
                                          pResult, pExtra);
}

const GUID& CAdaptiveComboTool::GetToolClassId() { return tool_class::AdaptiveCombo; }

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
