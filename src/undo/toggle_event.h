// What the events share that keep one saved state and swap it with the live one: redo is undo once more.
#pragma once

#include <unordered_map>

#include "host/undo.h"

class CObjectTool;

/// `TRecord` is what is saved of one node; `TArg` is how the list takes it. Members stand in this order:
/// saved state, owner tool, undone flag.
template <class TRecord, class TArg = const TRecord&>
class CToggleUndoEvent : public CUndoEvent {
  public:
    BOOL Accumulate(CUndoEvent*) override { return TRUE; }
    BOOL Redo() override { return Undo(); }
    void Cancel() override { Free(); }
    BOOL ToolTipNeedText(tagNMTTDISPIFNOA*) override { return TRUE; }

    BOOL IsUndone() const { return m_bUndone; }
    CObjectTool* OwnerTool() const { return m_pOwnerTool; }

  protected:
    using SavedList = CList<TRecord, TArg>;

    /// TRUE when the other event has the same owner, as many records, and for each of this event's records an
    /// equal one. `keyOf` gives a record's node and `equal` compares two records.
    template <class TKeyOf, class TEqual>
    BOOL HasSameRecords(const CToggleUndoEvent* pOther, TKeyOf keyOf, TEqual equal) const;

    void ReplaceSaved(const SavedList& live) {
        m_saved.RemoveAll();
        for (POSITION position = live.GetHeadPosition(); position;) {
            m_saved.AddTail(live.GetNext(position));
        }
    }

    SavedList m_saved;
    CObjectTool* m_pOwnerTool = nullptr; ///< not owned
    BOOL m_bUndone = FALSE;
};

// Both lists mostly hold the same nodes in the same order, so each search starts where the last match stood.
// Only when that fails are the other event's records looked up by node, which keeps the comparison linear.
template <class TRecord, class TArg>
template <class TKeyOf, class TEqual>
BOOL CToggleUndoEvent<TRecord, TArg>::HasSameRecords(const CToggleUndoEvent* pOther, TKeyOf keyOf,
                                                     TEqual equal) const {
    if (!pOther || m_pOwnerTool != pOther->m_pOwnerTool || m_saved.GetCount() != pOther->m_saved.GetCount()) {
        return FALSE;
    }
    std::unordered_multimap<const void*, POSITION> places;
    POSITION next = pOther->m_saved.GetHeadPosition();
    for (POSITION position = m_saved.GetHeadPosition(); position;) {
        const TRecord& record = m_saved.GetNext(position);
        if (next && equal(record, pOther->m_saved.GetNext(next))) {
            continue;
        }
        if (places.empty()) {
            for (POSITION other = pOther->m_saved.GetHeadPosition(); other;) {
                const POSITION place = other;
                places.emplace(keyOf(pOther->m_saved.GetNext(other)), place);
            }
        }
        const auto [first, last] = places.equal_range(keyOf(record));
        bool bFound = false;
        for (auto it = first; it != last && !bFound; ++it) {
            bFound = equal(record, pOther->m_saved.GetAt(it->second));
        }
        if (!bFound) {
            return FALSE;
        }
    }
    return TRUE;
}
