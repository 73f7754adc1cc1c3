#include "desk/tool_catalog.h"

#include "host/kinds.h"
#include "host/listener.h"
#include "host/tool_interfaces.h"

namespace {

constexpr std::array<ToolRow, ToolCount> Tools = {{
    {"CSelectTool",
     {0x9AA7E4FC, 0x4EE6, 0x4FF6, {0xA9, 0x66, 0x1A, 0xA5, 0x21, 0x9C, 0x9A, 0x4A}},
     false,
     13,
     0,
     0},
    {"CObjectPageTool",
     {0xB8902073, 0x6572, 0x47FC, {0x93, 0xB7, 0x34, 0x9A, 0xF6, 0x41, 0xF2, 0xCC}},
     false,
     18,
     7,
     7},
    {"CDisplayPageTool",
     {0x92D8EFCF, 0x443B, 0x415C, {0xB7, 0x93, 0xEA, 0x96, 0xCC, 0xD0, 0x50, 0x92}},
     false,
     19,
     7,
     7},
    {"CFrameTool",
     {0xC40C512D, 0x3EE6, 0x4A54, {0xBE, 0x33, 0x9B, 0xFB, 0x8F, 0x75, 0x1D, 0x48}},
     false,
     20,
     7,
     7},
    {"CImageShadowTool",
     {0x3B2D708E, 0xA057, 0x4866, {0xA2, 0xCD, 0x94, 0x3E, 0x76, 0x5D, 0xEE, 0xE8}},
     false,
     21,
     7,
     7},
    {"CTextTool",
     {0x55A27504, 0x6445, 0x4147, {0xA9, 0x24, 0xF7, 0xED, 0x64, 0x8D, 0x35, 0x21}},
     false,
     23,
     12,
     12},
    {"CTextDisplayTool",
     {0x10C2C978, 0x0E1B, 0x449D, {0x9D, 0x72, 0xF7, 0x1C, 0xA2, 0xC5, 0x31, 0xF5}},
     false,
     24,
     12,
     12},
    {"CTextShadowTool",
     {0xAFCFC1E0, 0x27D5, 0x405E, {0x88, 0xA6, 0xC0, 0x49, 0xEE, 0x0E, 0x75, 0xF2}},
     false,
     26,
     12,
     12},
    {"CTextToolBase",
     {0x9ED96494, 0x910C, 0x4C73, {0xA3, 0x0F, 0x5F, 0x24, 0x04, 0x56, 0xF4, 0x12}},
     false,
     22,
     8,
     12},
    {"CTextComboTool",
     {0xCFB78B20, 0xC6FF, 0x4736, {0xBD, 0x12, 0x56, 0xD8, 0x11, 0xEB, 0x36, 0xC1}},
     true,
     13,
     12,
     12},
    {"CAdaptiveComboTool",
     {0x54CA0DCA, 0x17E6, 0x4261, {0xBC, 0x90, 0xB0, 0xB4, 0x41, 0x7E, 0x18, 0x50}},
     true,
     15,
     PanelAsShown,
     kind::ComposedPage},
}};

} // namespace

const std::array<ToolRow, ToolCount>& ToolCatalog() { return Tools; }

const ToolRow* FindToolRow(const std::string& name) {
    for (const ToolRow& row : Tools) {
        if (name == row.pszName) {
            return &row;
        }
    }
    return nullptr;
}

const ToolRow* FindToolRow(const GUID& classId) {
    for (const ToolRow& row : Tools) {
        if (row.classId == classId) {
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
