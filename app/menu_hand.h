// What a person does with a context menu.
#pragma once

#include <functional>
#include <optional>

#include <afxwin.h>

#include "platform/popup_menu.h"

/// A command by its id, or none; none also by pressing the left button somewhere else.
struct MenuChoice {
    int id = 0;                         ///< 0 dismisses the menu
    std::optional<CPoint> dismissPress; ///< client pixel of the view
};

/// Chooses as it was told beforehand and remembers the menu that it saw last.
class CMenuHand final : public platform::IPopupMenu {
  public:
    using PressHook = std::function<void(CPoint)>;

    /// `press` posts a click at a client pixel of the view.
    explicit CMenuHand(PressHook press);
    ~CMenuHand();
    CMenuHand(const CMenuHand&) = delete;
    CMenuHand& operator=(const CMenuHand&) = delete;

    void Intend(const MenuChoice& choice) { m_choice = choice; }
    /// What was intended and had no menu to act on is dropped. Answers whether a menu was seen meanwhile.
    bool Forget();
    UINT Track(const platform::PopupMenu& menu) override;

    /// The last menu as it stood when it was shown.
    const std::optional<platform::PopupMenu>& Last() const { return m_last; }

  private:
    PressHook m_press;
    std::optional<MenuChoice> m_choice;
    std::optional<platform::PopupMenu> m_last;
};
