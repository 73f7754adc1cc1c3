// What the host shows of the tools' undo events beyond the library's own fields.
#pragma once

#include "host/undo.h"

class CListenerObject;

/// The owner and state of a recorded event.
struct RecordedEvent {
    CListenerObject* pTool = nullptr; ///< the tool that recorded it; not owned
    bool bUndone = false;             ///< which of its two states the event holds
};

/// Reads an event of the tools by its class; false for a class without these fields.
bool ReadRecordedEvent(const CUndoEvent& event, RecordedEvent& record);
