// The owner of a menu.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "platform/counts.h"

namespace {

TEST(CMenu, OwnsItsMenuAndLendsItsSubmenus) {
    const HMODULE hModule = ::LoadLibraryA("PradixRC.dll");
    {
        CMenu menu;
        EXPECT_FALSE(menu.Attach(nullptr));
        ASSERT_TRUE(menu.Attach(::LoadMenuA(hModule, MAKEINTRESOURCEA(101))));
        CMenu* pPopup = menu.GetSubMenu(0);
        ASSERT_NE(pPopup, nullptr);
        EXPECT_EQ(menu.GetSubMenu(0), pPopup) << "one object a handle";
        EXPECT_EQ(pPopup->GetSubMenu(0), nullptr);
        EXPECT_EQ(pPopup->EnableMenuItem(103, MF_ENABLED), MF_GRAYED);
        CMenu::DeleteTempMap();
        EXPECT_TRUE(::IsMenu(::GetSubMenu(menu.m_hMenu, 0))) << "the lent object destroys nothing";
    }
    EXPECT_EQ(platform::CountLive().menus, 0U);
    CMenu empty;
    EXPECT_FALSE(empty.DestroyMenu());
    ::FreeLibrary(hModule);
}

} // namespace
