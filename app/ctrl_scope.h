// Holding Ctrl while a command's messages are dispatched.
#pragma once

#include "platform/input.h"
#include "stage.h"

/// Holds Ctrl in both key states for the messages of one command, and leaves a Ctrl that was held before.
class [[nodiscard]] CCtrlScope {
  public:
    explicit CCtrlScope(Ctrl ctrl)
        : m_bAsync(ctrl == Ctrl::Down && ::GetAsyncKeyState(VK_CONTROL) >= 0),
          m_bSync(ctrl == Ctrl::Down && ::GetKeyState(VK_CONTROL) >= 0) {
        Set(true);
    }
    ~CCtrlScope() { Set(false); }
    CCtrlScope(const CCtrlScope&) = delete;
    CCtrlScope& operator=(const CCtrlScope&) = delete;

  private:
    void Set(bool bDown) {
        if (m_bAsync) {
            platform::SetAsyncKey(VK_CONTROL, bDown);
        }
        if (m_bSync) {
            platform::SetSyncKey(VK_CONTROL, bDown);
        }
    }

    bool m_bAsync;
    bool m_bSync;
};
