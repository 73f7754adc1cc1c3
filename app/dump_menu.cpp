#include "dump_menu.h"

#include <map>

namespace {

using platform::PopupItem;

constexpr std::size_t SubmenuPositions[] = {4, 8};

const char* StateText(bool bGreyed) { return bGreyed ? "grayed" : "enabled"; }

// By id, each item's own state whatever its submenu's.
void GatherStates(const std::vector<PopupItem>& items, std::map<UINT, bool>& greyed) {
    for (const PopupItem& item : items) {
        if (!item.items.empty()) {
            GatherStates(item.items, greyed);
        } else if (!item.separator) {
            greyed[item.id] = item.grayed;
        }
    }
}

Json ItemsJson(const platform::PopupMenu& menu) {
    std::map<UINT, bool> greyed;
    GatherStates(menu.items, greyed);
    Json json = Json::object();
    for (const auto& [id, bGreyed] : greyed) {
        json[std::to_string(id)] = StateText(bGreyed);
    }
    return json;
}

Json PositionsJson(const platform::PopupMenu& menu) {
    Json json = Json::object();
    for (const std::size_t nPosition : SubmenuPositions) {
        if (nPosition < menu.items.size()) {
            json[std::to_string(nPosition)] = StateText(menu.items[nPosition].grayed);
        }
    }
    return json;
}

} // namespace

Json MenuJson(CStage& stage) {
    const std::optional<platform::PopupMenu>& menu = stage.LastMenu();
    if (!menu) {
        return nullptr;
    }
    return {{"items", ItemsJson(*menu)},
            {"positions", PositionsJson(*menu)},
            {"flags", menu->flags},
            {"screen", Json::array({menu->screen.x, menu->screen.y})},
            {"destroyed", ::IsMenu(menu->menu) == FALSE}};
}
