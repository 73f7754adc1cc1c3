#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace platform {

/// One item of a menu as it stood when the menu was shown.
struct PopupItem {
    UINT id = 0;
    std::string text; ///< empty for a separator
    bool separator = false;
    bool grayed = false;
    std::vector<PopupItem> items; ///< of a submenu
};

struct PopupMenu {
    HMENU menu;
    std::vector<PopupItem> items;
    UINT flags;
    POINT screen;
    HWND owner;
};

/// Who shows pop-up menus.
struct IPopupMenu {
    /// Lets a person choose: the id, or 0. An id that the menu does not offer counts as 0. Messages may be
    /// posted and dispatched meanwhile.
    virtual UINT Track(const PopupMenu& menu) = 0;

  protected:
    ~IPopupMenu() = default;
};

/// Not owned. Null, the start value, is nobody: no menu is ever chosen from.
void SetPopupMenu(IPopupMenu* popup);

/// The item of a command id, submenus included; null for none.
const PopupItem* FindItem(const std::vector<PopupItem>& items, UINT id);

} // namespace platform
