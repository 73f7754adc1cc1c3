// Capture, change, capture, compare, record: the first capture goes to the undo manager when the two differ.
#pragma once

#include <memory>

#include "host/tool.h"
#include "host/undo.h"

/// What became of a change: its second capture could not be made, nothing changed, or it is recorded.
enum class Recorded { NoCapture, Same, Recorded };

/// The tool's state in a new event of that class, or null when the event cannot be made.
template <class TEvent>
std::unique_ptr<TEvent> CaptureState(CTool& tool) {
    std::unique_ptr<TEvent> pEvent(new TEvent);
    if (pEvent) {
        pEvent->m_fnSaveState(&tool);
    }
    return pEvent;
}

/// Hands the event to the undo manager, which owns it from then on.
template <class TEvent>
void RecordEvent(std::unique_ptr<TEvent>& pEvent) {
    CUndoEvent* pRecorded = pEvent.release();
    GetUndoMgr()->AddUndoEvent(pRecorded, TRUE);
}

/// Captures the tool's state and records it as it is. 1, or 0 when the event cannot be made.
template <class TEvent>
int RecordState(CTool& tool) {
    std::unique_ptr<TEvent> pEvent = CaptureState<TEvent>(tool);
    if (!pEvent) {
        return 0;
    }
    RecordEvent(pEvent);
    return 1;
}

/// The recording of one change: a local of an operation, a member of a gesture. A capture that is not
/// recorded stays until it is replaced or dropped, or goes with the recorder.
template <class TEvent>
class [[nodiscard]] CUndoRecorder {
  public:
    bool HasCapture() const { return m_pBefore != nullptr; }
    /// Captures the state before the change in place of what was captured. False when the event cannot be
    /// made.
    bool CaptureBefore(CTool& tool) {
        m_pBefore = CaptureState<TEvent>(tool);
        return HasCapture();
    }
    /// Captures again and records the first capture when there is one and the two differ.
    Recorded RecordChange(CTool& tool) {
        std::unique_ptr<TEvent> pAfter;
        return RecordChange(tool, pAfter);
    }
    /// The same; `pAfter` keeps the second capture.
    Recorded RecordChange(CTool& tool, std::unique_ptr<TEvent>& pAfter) {
        pAfter = CaptureState<TEvent>(tool);
        if (!pAfter) {
            return Recorded::NoCapture;
        }
        if (!m_pBefore || m_pBefore->m_fnIsSameState(pAfter.get())) {
            return Recorded::Same;
        }
        RecordEvent(m_pBefore);
        return Recorded::Recorded;
    }
    void Drop() { m_pBefore.reset(); }

  private:
    std::unique_ptr<TEvent> m_pBefore;
};
