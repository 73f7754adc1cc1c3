// What names a tool class: its class and group GUIDs, its kind on the bus, the page it pairs with.
#pragma once

#include <array>

#include "host/kinds.h"

namespace tool_group {
inline constexpr GUID Common = {0x47AB3BB3, 0xC8F0, 0x4C35, {0x97, 0xA7, 0xBF, 0x72, 0x39, 0x39, 0xD7, 0xA5}};
inline constexpr GUID Select = {0x6EA29FE6, 0xC4BB, 0x4CBE, {0xBE, 0xD8, 0x7E, 0x85, 0x0E, 0xA3, 0xAF, 0x8F}};
inline constexpr GUID Object = {0xAC96B0F1, 0x4087, 0x4BBC, {0x81, 0x17, 0xB5, 0x19, 0x59, 0xDE, 0x48, 0x31}};
inline constexpr GUID Text = {0x53693A02, 0x4E5D, 0x45FD, {0x80, 0x1B, 0x2F, 0xCE, 0x84, 0xF1, 0xDD, 0xE0}};
} // namespace tool_group

namespace tool_class {
inline constexpr GUID Core = {0xD5D07EAE, 0x2FDB, 0x49AB, {0xB1, 0x66, 0xEA, 0x73, 0x4C, 0xF6, 0x97, 0x87}};
inline constexpr GUID Base = {0x1FA51ACC, 0x3544, 0x49FC, {0x8F, 0x3A, 0x92, 0x94, 0x53, 0x6E, 0xF2, 0xB3}};
inline constexpr GUID Object = {0xC997E311, 0xFF6C, 0x4F74, {0xB7, 0x69, 0xB1, 0x0E, 0x61, 0xE6, 0xCB, 0xF7}};
inline constexpr GUID Select = {0x9AA7E4FC, 0x4EE6, 0x4FF6, {0xA9, 0x66, 0x1A, 0xA5, 0x21, 0x9C, 0x9A, 0x4A}};
inline constexpr GUID BasicObject = {
    0x68A64C3C, 0xD378, 0x452C, {0x83, 0x80, 0xDA, 0x5A, 0xC1, 0x96, 0x3C, 0x88}};
inline constexpr GUID ObjectPage = {
    0xB8902073, 0x6572, 0x47FC, {0x93, 0xB7, 0x34, 0x9A, 0xF6, 0x41, 0xF2, 0xCC}};
inline constexpr GUID Display = {
    0xF370D8BD, 0x1023, 0x460C, {0x80, 0xCD, 0x6F, 0xD3, 0xE2, 0x07, 0x33, 0xF8}};
inline constexpr GUID DisplayPage = {
    0x92D8EFCF, 0x443B, 0x415C, {0xB7, 0x93, 0xEA, 0x96, 0xCC, 0xD0, 0x50, 0x92}};
inline constexpr GUID FrameBase = {
    0x5A1851C8, 0x9326, 0x45E4, {0xA3, 0x87, 0x91, 0x80, 0xA2, 0x24, 0x03, 0x16}};
inline constexpr GUID Frame = {0xC40C512D, 0x3EE6, 0x4A54, {0xBE, 0x33, 0x9B, 0xFB, 0x8F, 0x75, 0x1D, 0x48}};
inline constexpr GUID Shadow = {0x0B7B429A, 0x167C, 0x45C8, {0xA7, 0xA0, 0x1D, 0x38, 0xE8, 0xFE, 0xF4, 0x16}};
inline constexpr GUID ImageShadow = {
    0x3B2D708E, 0xA057, 0x4866, {0xA2, 0xCD, 0x94, 0x3E, 0x76, 0x5D, 0xEE, 0xE8}};
inline constexpr GUID Text = {0x55A27504, 0x6445, 0x4147, {0xA9, 0x24, 0xF7, 0xED, 0x64, 0x8D, 0x35, 0x21}};
inline constexpr GUID TextDisplay = {
    0x10C2C978, 0x0E1B, 0x449D, {0x9D, 0x72, 0xF7, 0x1C, 0xA2, 0xC5, 0x31, 0xF5}};
inline constexpr GUID TextShadow = {
    0xAFCFC1E0, 0x27D5, 0x405E, {0x88, 0xA6, 0xC0, 0x49, 0xEE, 0x0E, 0x75, 0xF2}};
inline constexpr GUID TextBase = {
    0x9ED96494, 0x910C, 0x4C73, {0xA3, 0x0F, 0x5F, 0x24, 0x04, 0x56, 0xF4, 0x12}};
inline constexpr GUID TextCombo = {
    0xCFB78B20, 0xC6FF, 0x4736, {0xBD, 0x12, 0x56, 0xD8, 0x11, 0xEB, 0x36, 0xC1}};
inline constexpr GUID AdaptiveCombo = {
    0x54CA0DCA, 0x17E6, 0x4261, {0xBC, 0x90, 0xB0, 0xB4, 0x41, 0x7E, 0x18, 0x50}};
} // namespace tool_class

/// Kinds of the tool classes; the composites' stand under the edit category.
namespace tool_kind {
inline constexpr int Select = 13;
inline constexpr int BasicObject = 14;
inline constexpr int Display = 15;
inline constexpr int FrameBase = 16;
inline constexpr int Shadow = 17;
inline constexpr int ObjectPage = 18;
inline constexpr int DisplayPage = 19;
inline constexpr int Frame = 20;
inline constexpr int ImageShadow = 21;
inline constexpr int TextBase = 22;
inline constexpr int Text = 23;
inline constexpr int TextDisplay = 24;
inline constexpr int TextShadow = 26;
inline constexpr int TextCombo = 13;
inline constexpr int AdaptiveCombo = 15;
} // namespace tool_kind

/// The bus kinds that `GetPanelKind` answers.
namespace panel_kind {
inline constexpr int Composed = kind::ComposedPage;
inline constexpr int Object = kind::ObjectPage;
inline constexpr int BasicTool = 8;
inline constexpr int DisplayTool = 9;
inline constexpr int FrameTool = 10;
inline constexpr int ShadowTool = 11;
inline constexpr int Text = kind::TextPage;
} // namespace panel_kind

/// One tool class, as module and host know it.
struct ToolIdentity {
    const char* pszClass;
    GUID classId;
    GUID baseId; ///< the class that it is built on and whose kinds it answers as well; its own for the root
    GUID groupId;
    GUID category; ///< of the kind
    int nKind;
    int nPanelKind; ///< of the page that it pairs with; 0 for none. One class computes its own.
};

/// Bases stand before what is built on them.
inline constexpr std::array<ToolIdentity, 18> ToolIdentities = {{
    {"CToolCore", tool_class::Core, tool_class::Core, tool_group::Common, CategoryId, kind::Any, 0},
    {"CToolBase", tool_class::Base, tool_class::Core, tool_group::Common, CategoryId, kind::Any, 0},
    {"CObjectTool", tool_class::Object, tool_class::Base, tool_group::Common, CategoryId, kind::Any, 0},
    {"CSelectTool", tool_class::Select, tool_class::Object, tool_group::Select, CategoryId, tool_kind::Select,
     0},
    {"CBasicObjectTool", tool_class::BasicObject, tool_class::Object, tool_group::Common, CategoryId,
     tool_kind::BasicObject, panel_kind::BasicTool},
    {"CObjectPageTool", tool_class::ObjectPage, tool_class::BasicObject, tool_group::Object, CategoryId,
     tool_kind::ObjectPage, panel_kind::Object},
    {"CDisplayTool", tool_class::Display, tool_class::Object, tool_group::Common, CategoryId,
     tool_kind::Display, panel_kind::DisplayTool},
    {"CDisplayPageTool", tool_class::DisplayPage, tool_class::Display, tool_group::Object, CategoryId,
     tool_kind::DisplayPage, panel_kind::Object},
    {"CTextDisplayTool", tool_class::TextDisplay, tool_class::Display, tool_group::Text, CategoryId,
     tool_kind::TextDisplay, panel_kind::Text},
    {"CFrameToolBase", tool_class::FrameBase, tool_class::Object, tool_group::Common, CategoryId,
     tool_kind::FrameBase, panel_kind::FrameTool},
    {"CFrameTool", tool_class::Frame, tool_class::FrameBase, tool_group::Object, CategoryId, tool_kind::Frame,
     panel_kind::Object},
    {"CShadowTool", tool_class::Shadow, tool_class::Object, tool_group::Common, CategoryId, tool_kind::Shadow,
     panel_kind::ShadowTool},
    {"CImageShadowTool", tool_class::ImageShadow, tool_class::Shadow, tool_group::Object, CategoryId,
     tool_kind::ImageShadow, panel_kind::Object},
    {"CTextShadowTool", tool_class::TextShadow, tool_class::Shadow, tool_group::Text, CategoryId,
     tool_kind::TextShadow, panel_kind::Text},
    {"CTextComboTool", tool_class::TextCombo, tool_class::TextShadow, tool_group::Text, EditCategoryId,
     tool_kind::TextCombo, panel_kind::Text},
    {"CAdaptiveComboTool", tool_class::AdaptiveCombo, tool_class::TextShadow, tool_group::Text,
     EditCategoryId, tool_kind::AdaptiveCombo, panel_kind::Composed},
    {"CTextToolBase", tool_class::TextBase, tool_class::BasicObject, tool_group::Common, CategoryId,
     tool_kind::TextBase, panel_kind::BasicTool},
    {"CTextTool", tool_class::Text, tool_class::TextBase, tool_group::Text, CategoryId, tool_kind::Text,
     panel_kind::Text},
}};

/// The row of a class GUID, or null.
inline const ToolIdentity* FindToolIdentity(const GUID& classId) {
    for (const ToolIdentity& identity : ToolIdentities) {
        if (identity.classId == classId) {
            return &identity;
        }
    }
    return nullptr;
}
