#pragma once

#include "afxwnd.h"

namespace afx {

/// While one lives, the first message to a window without an object binds that window to the object given
/// here; null binds none, and keeps an outer creation's object from being bound.
class [[nodiscard]] CCreationScope {
  public:
    explicit CCreationScope(CWnd* pWnd);
    ~CCreationScope();
    CCreationScope(const CCreationScope&) = delete;
    CCreationScope& operator=(const CCreationScope&) = delete;

    bool IsBound() const { return m_pWnd == nullptr; }
    /// Binds the object that waits for its window; null when none does.
    static CWnd* Bind(HWND hWnd);

  private:
    CWnd* m_pWnd;
    CCreationScope* m_pOuter;
};

} // namespace afx
