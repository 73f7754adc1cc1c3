#pragma once

#include "handles.h"

#include <string>
#include <vector>

namespace win32 {

struct MenuItem {
    std::string text; ///< empty for a separator
    UINT id = 0;
    bool grayed = false;
    HMENU submenu = nullptr; ///< Owned.
};

struct Menu {
    std::vector<MenuItem> items;
};

extern CHandleTable<Menu, HandleKind::Menu> g_menus;

} // namespace win32
