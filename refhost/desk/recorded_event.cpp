#include "desk/recorded_event.h"

#include <array>
#include <cstring>

#include <afxtempl.h>

namespace {

/// The classes that keep one list of saved state, then the owner tool, then the undone flag.
constexpr std::array<const char*, 5> OneListClasses = {
    "CSelChangedUndoEvent",    "CMoveChangedUndoEvent",       "CResizeChangedUndoEvent",
    "CShadowChangedUndoEvent", "CShadowMoveChangedUndoEvent",
};

/// Lists of every element type have one size and one start, so the type does not matter here.
class COneListEvent : public CUndoEvent {
  public:
    CList<void*, void*> m_saved;
    CListenerObject* m_pOwnerTool;
    BOOL m_bUndone;
};

bool KeepsOneList(const CUndoEvent& event) {
    const char* pszClass = event.GetRuntimeClass()->m_lpszClassName;
    for (const char* pszKnown : OneListClasses) {
        if (std::strcmp(pszClass, pszKnown) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

bool ReadRecordedEvent(const CUndoEvent& event, RecordedEvent& record) {
    if (!KeepsOneList(event)) {
        return false;
    }
    const auto& fields = static_cast<const COneListEvent&>(event);
    record = {fields.m_pOwnerTool, fields.m_bUndone != FALSE};
    return true;
}
