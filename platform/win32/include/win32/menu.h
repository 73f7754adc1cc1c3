#pragma once

// Menus, their states, and the pop-up, which a person sees through platform/popup_menu.h.

#include "win32/types.h"

constexpr UINT MF_ENABLED = 0x0000;
constexpr UINT MF_GRAYED = 0x0001;
constexpr UINT MF_BYCOMMAND = 0x0000;
constexpr UINT MF_BYPOSITION = 0x0400;

constexpr UINT TPM_RIGHTBUTTON = 0x0002;
constexpr UINT TPM_RETURNCMD = 0x0100;

/// A new menu from the resources of a module (see platform/resources.h), which the caller destroys. `name` is
/// a MAKEINTRESOURCE id. Null and error 1812 (the module has no resources) or 1814 (no such menu).
HMENU LoadMenuA(HINSTANCE module, LPCSTR name);
BOOL IsMenu(HMENU menu);
/// The submenu at the position, which stays the menu's; null where there is none.
HMENU GetSubMenu(HMENU menu, int position);
/// Enables or greys an item: by its id, which is found in submenus too, or by its position, separators
/// counted. Answers the state that it had, or -1 when there is no such item.
BOOL EnableMenuItem(HMENU menu, UINT item, UINT flags);
/// Shows the menu at a screen point until a person has chosen. With TPM_RETURNCMD the answer is the id that
/// was chosen, 0 for none; else WM_COMMAND is posted to the owner and the answer is whether the menu was
/// shown. Error 1401 (no menu) or 1400 (no owner).
BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner, const RECT* ignored);
/// Destroys the menu with its submenus. FALSE and error 1401 when it is none.
BOOL DestroyMenu(HMENU menu);
