#pragma once

// The form of what a module holds in its symbol `ModuleResources`. A resource module is such data alone.

namespace platform {

/// One line of a menu. A submenu's `items` lines stand directly behind it, each followed by its own.
struct MenuLine {
    const char* text; ///< null for a separator
    unsigned id;
    bool grayed;
    unsigned items; ///< 0 for what is no submenu
};

struct MenuResource {
    unsigned id;
    const MenuLine* lines;
    unsigned count; ///< of all lines, those of submenus included
};

constexpr unsigned ResourceVersion = 1;

struct ModuleResourceTable {
    unsigned version;
    const MenuResource* menus;
    unsigned count;
};

} // namespace platform

extern "C" __attribute__((visibility("default"))) const platform::ModuleResourceTable ModuleResources;
