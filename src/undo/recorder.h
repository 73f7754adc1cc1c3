// Capturing a state before and after a change, and handing the first capture to the undo manager when the two
// differ.
#pragma once

#include <memory>
#include <new>

#include "host/undo.h"

class CObjectTool;

/// The tool's state in a new event of that class, or null when the event cannot be made.
template <class TEvent>
std::unique_ptr<TEvent> CaptureState(CObjectTool* pTool) {
    std::unique_ptr<TEvent> pEvent(new TEvent);
    if (pEvent) {
        pEvent->m_fnSaveState(pTool);
    }
    return pEvent;
}

/// Hands the event to the undo manager, which owns it from then on.
template <class TEvent>
void RecordEvent(std::unique_ptr<TEvent>& pEvent) {
    CUndoEvent* pRecorded = pEvent.release();
    GetUndoMgr()->AddUndoEvent(pRecorded, TRUE);
}

/// One operation's recording, as a local. What is not recorded is deleted.
template <class TEvent>
class [[nodiscard]] CUndoRecorder {
  public:
    explicit CUndoRecorder(CObjectTool* pTool) : m_pTool(pTool) {}

    /// Captures the state before the change. False when the event cannot be made.
    bool CaptureBefore() {
        m_pBefore = CaptureState<TEvent>(m_pTool);
        return m_pBefore != nullptr;
    }

    /// Captures again and records the first capture when the two differ. False when the second cannot be
    /// made; nothing is recorded then.
    bool RecordChange() {
        const std::unique_ptr<TEvent> pAfter = CaptureState<TEvent>(m_pTool);
        if (pAfter && !m_pBefore->m_fnIsSameState(pAfter.get())) {
            RecordEvent(m_pBefore);
        }
        return pAfter != nullptr;
    }

  private:
    CObjectTool* m_pTool;
    std::unique_ptr<TEvent> m_pBefore;
};
