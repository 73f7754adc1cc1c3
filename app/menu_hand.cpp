#include "menu_hand.h"

#include <utility>

CMenuHand::CMenuHand(PressHook press) : m_press(std::move(press)) { platform::SetPopupMenu(this); }

CMenuHand::~CMenuHand() { platform::SetPopupMenu(nullptr); }

bool CMenuHand::Forget() {
    const bool bUsed = !m_choice;
    m_choice.reset();
    return bUsed;
}

UINT CMenuHand::Track(const platform::PopupMenu& menu) {
    m_last = menu;
    const MenuChoice choice = std::exchange(m_choice, std::nullopt).value_or(MenuChoice{});
    if (choice.dismissPress) {
        m_press(*choice.dismissPress);
    }
    return static_cast<UINT>(choice.id);
}
