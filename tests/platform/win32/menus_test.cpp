// Menus and the pop-up, with the menu of the resource module.
#include "platform/popup_menu.h"

#include "platform/counts.h"
#include "platform/faults.h"
#include "stage.h"

namespace {

constexpr UINT Copy = 103;    ///< starts greyed
constexpr UINT Forward = 109; ///< enabled, in a submenu that starts greyed
constexpr UINT SameSize = 127;
constexpr int Arrange = 4; ///< the submenu's position
constexpr int Menus = 4;   ///< the outer one, the pop-up, its two submenus

/// A person who always wants one thing.
class CHand final : public platform::IPopupMenu {
  public:
    CHand() { platform::SetPopupMenu(this); }
    ~CHand() { platform::SetPopupMenu(nullptr); }
    UINT Track(const platform::PopupMenu& menu) override {
        shown = menu;
        return wanted;
    }

    UINT wanted = 0;
    platform::PopupMenu shown{};
};

class Menu : public WindowStage {
  protected:
    Menu()
        : m_module(LoadLibraryA("PradixRC.dll")), m_menu(LoadMenuA(m_module, MAKEINTRESOURCEA(101))),
          m_popup(GetSubMenu(m_menu, 0)), m_owner(Top("A")) {}
    ~Menu() override {
        platform::ClearFaults();
        DestroyMenu(m_menu);
        FreeLibrary(m_module);
    }
    int Choose(UINT id) {
        m_hand.wanted = id;
        return TrackPopupMenu(m_popup, TPM_RETURNCMD | TPM_RIGHTBUTTON, 7, -3, 0, m_owner, nullptr);
    }

    HMODULE m_module;
    HMENU m_menu;
    HMENU m_popup;
    HWND m_owner;
    CHand m_hand;
};

TEST_F(Menu, LivesWithItsSubmenusUntilItIsDestroyed) {
    EXPECT_EQ(platform::CountLive().menus, static_cast<unsigned>(Menus));
    const HMENU submenu = GetSubMenu(m_popup, Arrange);
    EXPECT_TRUE(IsMenu(submenu));
    EXPECT_EQ(GetSubMenu(m_popup, 3), nullptr) << "a separator counts as a position";
    EXPECT_EQ(GetSubMenu(m_popup, -1), nullptr);

    EXPECT_TRUE(DestroyMenu(m_menu));

    EXPECT_EQ(platform::CountLive().menus, 0U);
    EXPECT_FALSE(IsMenu(submenu));
    EXPECT_FALSE(DestroyMenu(m_menu));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_MENU_HANDLE);
}

TEST_F(Menu, ItemsAreFoundByIdInSubmenusAndByPosition) {
    EXPECT_EQ(EnableMenuItem(m_popup, Copy, MF_ENABLED), static_cast<BOOL>(MF_GRAYED));
    EXPECT_EQ(EnableMenuItem(m_popup, Copy, MF_GRAYED), static_cast<BOOL>(MF_ENABLED));
    EXPECT_EQ(EnableMenuItem(m_popup, SameSize, MF_GRAYED), static_cast<BOOL>(MF_ENABLED));
    EXPECT_EQ(EnableMenuItem(m_popup, Arrange, MF_BYPOSITION | MF_ENABLED), static_cast<BOOL>(MF_GRAYED));
    EXPECT_EQ(EnableMenuItem(m_popup, 106, MF_ENABLED), -1);
    EXPECT_EQ(EnableMenuItem(m_popup, 13, MF_BYPOSITION | MF_ENABLED), -1);
    EXPECT_EQ(EnableMenuItem(nullptr, Copy, MF_ENABLED), -1);
}

TEST_F(Menu, OnlyWhatIsOfferedIsChosen) {
    EXPECT_EQ(Choose(Forward), 0) << "its submenu is greyed";
    EXPECT_EQ(Choose(Copy), 0) << "it is greyed itself";
    EXPECT_EQ(Choose(999), 0);
    EnableMenuItem(m_popup, Arrange, MF_BYPOSITION | MF_ENABLED);
    EnableMenuItem(m_popup, Copy, MF_ENABLED);

    EXPECT_EQ(Choose(Forward), static_cast<int>(Forward));
    EXPECT_EQ(Choose(Copy), static_cast<int>(Copy));
    EXPECT_EQ(m_hand.shown.screen.x, 7);
    EXPECT_EQ(m_hand.shown.screen.y, -3);
    EXPECT_EQ(m_hand.shown.flags, 0x102U);
    EXPECT_EQ(platform::FindItem(m_hand.shown.items, Forward)->text, "Bring Forward");

    platform::ArmFault("menu-track", false, 0);
    EXPECT_EQ(Choose(Copy), 0);
    platform::SetPopupMenu(nullptr);
    platform::ClearFaults();
    EXPECT_EQ(Choose(Copy), 0) << "nobody is there to choose";
}

TEST_F(Menu, IsMissingWhereTheModuleHasNone) {
    EXPECT_EQ(LoadMenuA(m_module, MAKEINTRESOURCEA(102)), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_RESOURCE_NAME_NOT_FOUND);
    EXPECT_EQ(LoadMenuA(nullptr, MAKEINTRESOURCEA(101)), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_RESOURCE_DATA_NOT_FOUND);
    EXPECT_EQ(LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(101)), nullptr);
    platform::ArmFault("menu", true, 0);
    EXPECT_EQ(LoadMenuA(m_module, MAKEINTRESOURCEA(101)), nullptr);
}

} // namespace
