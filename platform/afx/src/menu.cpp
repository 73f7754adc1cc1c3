#include "afxmenu.h"

#include "afxwnd.h"
#include "handle_map.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

// Never torn down: objects of static life leave it as the process ends.
auto& Map() {
    static auto& map = *new afx::CHandleMap<CMenu, &CMenu::m_hMenu>;
    return map;
}

} // namespace

CMenu* CMenu::FromHandle(HMENU hMenu) { return Map().FromHandle(hMenu); }

void CMenu::DeleteTempMap() { Map().Temporary().FreeAll(); }

BOOL CMenu::Attach(HMENU hMenu) { return Map().Attach(hMenu, this); }

HMENU CMenu::Detach() { return Map().Detach(this); }

BOOL CMenu::DestroyMenu() {
    const HMENU hMenu = Detach();
    return hMenu && ::DestroyMenu(hMenu);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}
