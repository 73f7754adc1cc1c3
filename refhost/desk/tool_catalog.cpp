#include "desk/tool_catalog.h"

#include "host/listener.h"
#include "host/tool_interfaces.h"

namespace {

ToolRow Row(const GUID& classId, int nPropertyKind, bool bPanelAsShown = false) {
    return {*FindToolIdentity(classId), bPanelAsShown, nPropertyKind};
}

const std::array<ToolRow, ToolCount> Tools = {
    Row(tool_class::Select, 0),
    Row(tool_class::ObjectPage, kind::ObjectPage),
    Row(tool_class::DisplayPage, kind::ObjectPage),
    Row(tool_class::Frame, kind::ObjectPage),
    Row(tool_class::ImageShadow, kind::ObjectPage),
    Row(tool_class::Text, kind::TextPage),
    Row(tool_class::TextDisplay, kind::TextPage),
    Row(tool_class::TextShadow, kind::TextPage),
    Row(tool_class::TextBase, kind::TextPage),
    Row(tool_class::TextCombo, kind::TextPage),
    Row(tool_class::AdaptiveCombo, kind::ComposedPage, true),
};

} // namespace

const std::array<ToolRow, ToolCount>& ToolCatalog() { return Tools; }

const ToolRow* FindToolRow(const std::string& name) {
    for (const ToolRow& row : Tools) {
        if (name == row.identity.pszClass) {
            return &row;
        }
    }
    return nullptr;
}

const ToolRow* FindToolRow(const GUID& classId) {
    for (const ToolRow& row : Tools) {
        if (row.identity.classId == classId) {
            return &row;
        }
    }
    return nullptr;
}

const ToolRow* FindToolRow(CListenerObject* pTool) {
    void* pIdentity = nullptr;
    if (!pTool || !pTool->QueryInterface(IToolIdentity::Id, &pIdentity, nullptr) || !pIdentity) {
        return nullptr;
    }
    return FindToolRow(static_cast<IToolIdentity*>(pIdentity)->GetToolClassId());
}
