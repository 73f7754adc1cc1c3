// What the resource module holds: the context menu.
#include <iterator>

#include "ops/commands/menu_table.h"
#include "platform/resources.h"

namespace {

using platform::MenuLine;

constexpr MenuLine Separator = {nullptr, 0, false, 0};

constexpr MenuLine Command(int nId) {
    const MenuRow& row = *FindMenuRow(nId);
    return {row.pszText, static_cast<unsigned>(nId), StartsGreyed(row.rule), 0};
}

constexpr MenuLine Submenu(const char* pszText, bool bGreyed, unsigned nItems) {
    return {pszText, 0, bGreyed, nItems};
}

// The two submenus stand at the positions that the tools know.
constexpr MenuLine ContextMenuLines[] = {
    Submenu("Context", false, 13),
    Command(103),
    Command(104),
    Command(105),
    Separator,
    Submenu("Arrange", true, 4),
    Command(109),
    Command(110),
    Command(111),
    Command(112),
    Separator,
    Command(114),
    Separator,
    Submenu("Align", true, 12),
    Command(116),
    Command(117),
    Command(118),
    Command(119),
    Command(120),
    Command(121),
    Command(122),
    Command(123),
    Command(124),
    Command(125),
    Command(126),
    Command(127),
    Separator,
    Command(108),
    Command(113),
    Command(115),
};

constexpr platform::MenuResource Menus[] = {
    {context_menu::ResourceId, ContextMenuLines, static_cast<unsigned>(std::size(ContextMenuLines))},
};

} // namespace

const platform::ModuleResourceTable ModuleResources = {platform::ResourceVersion, Menus,
                                                       static_cast<unsigned>(std::size(Menus))};
