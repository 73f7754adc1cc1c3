#include "menus.h"

#include "platform/faults.h"
#include "platform/resources.h"

#include <algorithm>
#include <span>
#include <utility>

namespace win32 {

constinit CHandleTable<Menu, HandleKind::Menu> g_menus;

namespace {

using Lines = std::span<const platform::MenuLine>;

HMENU NullWith(DWORD code) {
    FailWith(code);
    return nullptr;
}

const platform::ModuleResourceTable* ResourcesOf(HINSTANCE module) {
    const auto* table = reinterpret_cast<const platform::ModuleResourceTable*>(
        reinterpret_cast<const void*>(module ? GetProcAddress(module, "ModuleResources") : nullptr));
    return table && table->version == platform::ResourceVersion ? table : nullptr;
}

HMENU BuildMenu(Lines& lines, std::size_t count);

// Takes the line, with those of its submenu, off the front.
MenuItem BuildItem(Lines& lines) {
    const platform::MenuLine& line = lines.front();
    lines = lines.subspan(1);
    MenuItem item;
    item.text = line.text ? line.text : "";
    item.id = line.id;
    item.grayed = line.grayed;
    item.submenu = line.items > 0 ? BuildMenu(lines, line.items) : nullptr;
    return item;
}

// A menu whose lines end early has what there is.
HMENU BuildMenu(Lines& lines, std::size_t count) {
    auto menu = std::make_unique<Menu>();
    while (count > 0 && !lines.empty()) {
        menu->items.push_back(BuildItem(lines));
        --count;
    }
    return reinterpret_cast<HMENU>(g_menus.Add(std::move(menu)));
}

MenuItem* ItemOf(HMENU handle, UINT id) {
    Menu* menu = g_menus.Find(handle);
    if (!menu) {
        return nullptr;
    }
    for (MenuItem& item : menu->items) {
        MenuItem* found = item.submenu ? ItemOf(item.submenu, id) : item.id == id ? &item : nullptr;
        if (found) {
            return found;
        }
    }
    return nullptr;
}

MenuItem* ItemAt(HMENU handle, UINT position) {
    Menu* menu = g_menus.Find(handle);
    return menu && position < menu->items.size() ? &menu->items[position] : nullptr;
}

} // namespace

} // namespace win32

using namespace win32;

HMENU LoadMenuA(HINSTANCE module, LPCSTR name) {
    const platform::ModuleResourceTable* table = ResourcesOf(module);
    if (!table) {
        return NullWith(ERROR_RESOURCE_DATA_NOT_FOUND);
    }
    const std::span menus(table->menus, table->count);
    const auto found = std::find_if(menus.begin(), menus.end(), [name](const platform::MenuResource& menu) {
        return IS_INTRESOURCE(name) && menu.id == LOWORD(reinterpret_cast<UINT_PTR>(name));
    });
    if (found == menus.end() || platform::FaultTrips("menu")) {
        return NullWith(ERROR_RESOURCE_NAME_NOT_FOUND);
    }
    Lines lines(found->lines, found->count);
    return BuildMenu(lines, lines.size());
}

BOOL IsMenu(HMENU menu) { return g_menus.Find(menu) != nullptr; }

HMENU GetSubMenu(HMENU menu, int position) {
    const MenuItem* item = position >= 0 ? ItemAt(menu, static_cast<UINT>(position)) : nullptr;
    return item ? item->submenu : nullptr;
}

BOOL EnableMenuItem(HMENU menu, UINT id, UINT flags) {
    MenuItem* item = flags & MF_BYPOSITION ? ItemAt(menu, id) : ItemOf(menu, id);
    if (!item) {
        return -1;
    }
    const bool before = std::exchange(item->grayed, (flags & MF_GRAYED) != 0);
    return static_cast<BOOL>(before ? MF_GRAYED : MF_ENABLED);
}

BOOL DestroyMenu(HMENU handle) {
    const std::unique_ptr<Menu> menu = g_menus.Remove(handle);
    if (!menu) {
        return FailWith(ERROR_INVALID_MENU_HANDLE);
    }
    for (const MenuItem& item : menu->items) {
        if (item.submenu) {
            DestroyMenu(item.submenu);
        }
    }
    return TRUE;
}
