#include "desk/recorded_event.h"

#include <array>
#include <cstring>

#include <afxtempl.h>

namespace {

/// Lists of every element type have one size and one start, so the type does not matter here.
using AnyList = CList<void*, void*>;

/// One list of saved state, then the owner tool, then the undone flag.
class COneListEvent : public CUndoEvent {
  public:
    AnyList m_saved;
    CListenerObject* m_pOwnerTool;
    BOOL m_bUndone;
};

/// The owner tool, then lists, then the undone flag.
template <std::size_t nLists>
class COwnerFirstEvent : public CUndoEvent {
  public:
    CListenerObject* m_pOwnerTool;
    std::array<AnyList, nLists> m_saved;
    BOOL m_bUndone;
};

class CDisplayEvent : public CUndoEvent {
  public:
    CListenerObject* m_pOwnerTool;
    AnyList m_records;
    std::int32_t m_newValues[3];
    BOOL m_bUndone;
};

class CTextEditEvent : public CUndoEvent {
  public:
    CListenerObject* m_pOwnerTool;
    CString m_text;
    CRect m_box;
    BOOL m_bUndone;
};

template <class TEvent>
RecordedEvent Read(const CUndoEvent& event) {
    const auto& fields = static_cast<const TEvent&>(event);
    return {fields.m_pOwnerTool, fields.m_bUndone != FALSE};
}

struct LayoutRow {
    const char* pszClass;
    RecordedEvent (*pfnRead)(const CUndoEvent& event);
};

constexpr std::array<LayoutRow, 14> Layouts = {{
    {"CSelChangedUndoEvent", Read<COneListEvent>},
    {"CMoveChangedUndoEvent", Read<COneListEvent>},
    {"CResizeChangedUndoEvent", Read<COneListEvent>},
    {"CShadowChangedUndoEvent", Read<COneListEvent>},
    {"CShadowMoveChangedUndoEvent", Read<COneListEvent>},
    {"CuArrangeUndoEvent", Read<COneListEvent>},
    {"CuAlignUndoEvent", Read<COneListEvent>},
    {"CAddObjectUndoEvent", Read<COwnerFirstEvent<6>>},
    {"CDuplicateObjectUndoEvent", Read<COwnerFirstEvent<6>>},
    {"CuDeleteNodeUndoEvent", Read<COwnerFirstEvent<6>>},
    {"CuRemoveShadowUndoEvent", Read<COwnerFirstEvent<1>>},
    {"CObjectAttributeChangedUndoEvent", Read<COwnerFirstEvent<2>>},
    {"CuDisplayUndoEvent", Read<CDisplayEvent>},
    {"CTextEditChangedUndoEvent", Read<CTextEditEvent>},
}};

} // namespace

bool ReadRecordedEvent(const CUndoEvent& event, RecordedEvent& record) {
    const char* pszClass = event.GetRuntimeClass()->m_lpszClassName;
    for (const LayoutRow& row : Layouts) {
        if (std::strcmp(pszClass, row.pszClass) == 0) {
            record = row.pfnRead(event);
            return true;
        }
    }
    return false;
}
