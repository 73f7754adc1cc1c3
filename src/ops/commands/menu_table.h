// The commands of the context menu, a row each: what dispatch, enabling and the menu's own texts read.
#pragma once

#include <array>

#include "host/tool.h"

/// The menu in the resource module, and the places of its two submenus within the pop-up, which have no ids.
namespace context_menu {
inline constexpr int ResourceId = 101;
inline constexpr int ArrangePosition = 4;
inline constexpr int AlignPosition = 8;
} // namespace context_menu

/// When a command can be chosen. "Start" is what the menu itself gives: the rules of the first group only
/// ever enable an item, which therefore starts greyed; all others start enabled.
enum class MenuRule {
    // Enabled when it holds.
    ClipboardCopies, ///< the object clipboard can copy at the point
    ClipboardPastes, ///< it can paste there
    Selection,       ///< something is selected
    Frame,           ///< there is a frame to take off
    Shadow,          ///< there is a shadow to take off
    OneText,         ///< a text is under the point and one object is selected
    TextEffect,      ///< there is a text effect to take off
    // Greyed when it does not hold, else left as it was.
    NotInFront, ///< the selection is not what is front-most already
    NotAtBack,
    NotTwo, ///< more or fewer than two objects are selected
    // Enabled or greyed as it holds or not.
    OtherObjects, ///< the selection is of objects other than texts
    // Never touched.
    Start,
};

inline constexpr std::size_t MenuRuleCount = static_cast<std::size_t>(MenuRule::Start) + 1;

constexpr bool StartsGreyed(MenuRule rule) { return rule < MenuRule::NotInFront; }

/// One command. `point` is the click's client pixel.
struct MenuRow {
    int nId;
    const char* pszText; ///< null for a command that the menu does not show
    MenuRule rule;
    void (*pfnRun)(CTool& tool, CPoint point);
};

namespace menu_run {
template <void (CTool::*pfnOperation)()>
void Plain(CTool& tool, CPoint) {
    (tool.*pfnOperation)();
}
template <void (CTool::*pfnOperation)(CPoint)>
void AtPoint(CTool& tool, CPoint point) {
    (tool.*pfnOperation)(point);
}
inline void Copy(CTool& tool, CPoint point) { tool.m_fnCopy(point); }
inline void Paste(CTool& tool, CPoint point) { tool.m_fnPaste(point, 0); }
} // namespace menu_run

// clang-format off
inline constexpr std::array<MenuRow, 27> MenuTable = {{
    {103, "Copy", MenuRule::ClipboardCopies, &menu_run::Copy},
    {104, "Paste", MenuRule::ClipboardPastes, &menu_run::Paste},
    {105, "Delete", MenuRule::Selection, &menu_run::Plain<&CTool::m_fnDelete>},
    {106, nullptr, MenuRule::Start, &menu_run::Plain<&CTool::Empty30>},
    {107, nullptr, MenuRule::Start, &menu_run::Plain<&CTool::Empty31>},
    {108, "Remove Frame", MenuRule::Frame, &menu_run::Plain<&CTool::m_fnRemoveFrame>},
    {109, "Bring Forward", MenuRule::NotInFront, &menu_run::Plain<&CTool::m_fnBringForward>},
    {110, "Send Backward", MenuRule::NotAtBack, &menu_run::Plain<&CTool::m_fnSendBackward>},
    {111, "Bring to Front", MenuRule::NotInFront, &menu_run::Plain<&CTool::m_fnBringToFront>},
    {112, "Send to Back", MenuRule::NotAtBack, &menu_run::Plain<&CTool::m_fnSendToBack>},
    {113, "Remove Shadow", MenuRule::Shadow, &menu_run::Plain<&CTool::m_fnRemoveShadow>},
    {114, "Edit Text", MenuRule::OneText, &menu_run::AtPoint<&CTool::m_fnEditTextAt>},
    {115, "Remove Text Effect", MenuRule::TextEffect, &menu_run::AtPoint<&CTool::m_fnRemoveTextEffect>},
    {116, "Left", MenuRule::Start, &menu_run::Plain<&CTool::m_fnAlignLeft>},
    {117, "Top", MenuRule::Start, &menu_run::Plain<&CTool::m_fnAlignTop>},
    {118, "Right", MenuRule::Start, &menu_run::Plain<&CTool::m_fnAlignRight>},
    {119, "Bottom", MenuRule::Start, &menu_run::Plain<&CTool::m_fnAlignBottom>},
    {120, "Middle", MenuRule::Start, &menu_run::Plain<&CTool::m_fnAlignMiddle>},
    {121, "Center", MenuRule::Start, &menu_run::Plain<&CTool::m_fnAlignCenter>},
    {122, "Centers", MenuRule::Start, &menu_run::Plain<&CTool::m_fnAlignCenters>},
    {123, "Distribute Vertically", MenuRule::NotTwo, &menu_run::Plain<&CTool::m_fnDistributeVertically>},
    {124, "Distribute Horizontally", MenuRule::NotTwo, &menu_run::Plain<&CTool::m_fnDistributeHorizontally>},
    {125, "Same Width", MenuRule::OtherObjects, &menu_run::Plain<&CTool::m_fnSameWidth>},
    {126, "Same Height", MenuRule::OtherObjects, &menu_run::Plain<&CTool::m_fnSameHeight>},
    {127, "Same Size", MenuRule::OtherObjects, &menu_run::Plain<&CTool::m_fnSameSize>},
    {128, nullptr, MenuRule::Start, &menu_run::AtPoint<&CTool::Reserved48>},
    {129, nullptr, MenuRule::Start, &menu_run::AtPoint<&CTool::Reserved49>},
}};
// clang-format on

/// The row of a command id, or null.
constexpr const MenuRow* FindMenuRow(int nId) {
    const int nRow = nId - MenuTable.front().nId;
    return nRow >= 0 && nRow < static_cast<int>(MenuTable.size()) ? &MenuTable[static_cast<std::size_t>(nRow)]
                                                                  : nullptr;
}
