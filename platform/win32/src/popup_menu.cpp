#include "platform/popup_menu.h"

#include "menus.h"
#include "platform/faults.h"
#include "window_tree.h"

namespace win32 {
namespace {

platform::IPopupMenu* g_popup = nullptr;

std::vector<platform::PopupItem> CopyItems(HMENU handle) {
    std::vector<platform::PopupItem> items;
    if (const Menu* menu = g_menus.Find(handle)) {
        for (const MenuItem& item : menu->items) {
            items.push_back({item.id, item.text, item.text.empty(), item.grayed, CopyItems(item.submenu)});
        }
    }
    return items;
}

// Whether a person can get at the command: neither it nor a submenu above it is greyed.
bool IsOffered(const std::vector<platform::PopupItem>& items, UINT id) {
    for (const platform::PopupItem& item : items) {
        const bool here = item.items.empty() ? !item.separator && item.id == id : IsOffered(item.items, id);
        if (here && !item.grayed) {
            return true;
        }
    }
    return false;
}

UINT Choose(const platform::PopupMenu& menu) {
    const UINT id = g_popup && !platform::FaultTrips("menu-track") ? g_popup->Track(menu) : 0;
    return id != 0 && IsOffered(menu.items, id) ? id : 0;
}

} // namespace
} // namespace win32

using namespace win32;

void platform::SetPopupMenu(IPopupMenu* popup) { g_popup = popup; }

const platform::PopupItem* platform::FindItem(const std::vector<PopupItem>& items, UINT id) {
    for (const PopupItem& item : items) {
        const PopupItem* found = item.items.empty() ? &item : FindItem(item.items, id);
        if (found && !found->separator && found->id == id) {
            return found;
        }
    }
    return nullptr;
}

BOOL TrackPopupMenu(HMENU handle, UINT flags, int x, int y, int, HWND owner, const RECT*) {
    if (!g_menus.Find(handle)) {
        return FailWith(ERROR_INVALID_MENU_HANDLE);
    }
    if (!FindWindow(owner)) {
        return FALSE;
    }
    const UINT id = Choose({handle, CopyItems(handle), flags, {x, y}, owner});
    if (flags & TPM_RETURNCMD) {
        return static_cast<BOOL>(id);
    }
    if (id != 0) {
        PostMessageA(owner, WM_COMMAND, id, 0);
    }
    return TRUE;
}
