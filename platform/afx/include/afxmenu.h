#pragma once

// Menus.

#include "afx.h"

class CWnd;

/// The owner of a menu. FromHandle answers the handle's object, or a temporary one that is good until the
/// next DeleteTempMap.
class CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)

    HMENU m_hMenu = nullptr;

    CMenu() = default;
    /// Destroys the menu.
    ~CMenu() override { DestroyMenu(); }

    /// Null for null.
    static CMenu* FromHandle(HMENU hMenu);
    static void DeleteTempMap();

    /// FALSE for null, and when memory is short.
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    /// FALSE without a menu.
    BOOL DestroyMenu();
    /// The submenu at the position, or null. The menu stays its owner.
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    /// The state that the item had, or -1 when there is none.
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    /// At a screen point, owned by `pWnd`. With TPM_RETURNCMD the chosen id, 0 for none.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
};
