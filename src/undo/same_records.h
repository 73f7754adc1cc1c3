// When two captures hold the same state.
#pragma once

#include <type_traits>
#include <unordered_map>

#include "ops/nodes.h"

/// The node of a record, or the node itself where nothing else is saved.
template <class TRecord>
const CImgNode* NodeOf(const TRecord& record) {
    if constexpr (std::is_pointer_v<TRecord>) {
        return record;
    } else {
        return record.node;
    }
}

/// The rectangles' intersection is as wide and as high as their union.
inline bool CoverEachOther(const CRect& rc, const CRect& rcOther) {
    CRect rcCommon;
    CRect rcWhole;
    rcCommon.IntersectRect(&rc, &rcOther);
    rcWhole.UnionRect(&rc, &rcOther);
    return rcCommon.Width() == rcWhole.Width() && rcCommon.Height() == rcWhole.Height();
}

/// Whether there are as many records, and for each an equal one somewhere among the others.
///
/// Both lists mostly hold the same nodes in the same order, so each search starts where the last match stood.
/// Only when that fails are the others looked up by node, which keeps the comparison linear.
template <class TList>
bool HasSameRecords(const TList& records, const TList& others) {
    if (records.GetCount() != others.GetCount()) {
        return false;
    }
    std::unordered_multimap<const CImgNode*, POSITION> places;
    POSITION next = others.GetHeadPosition();
    for (const auto& record : Each(records)) {
        if (next && record == others.GetNext(next)) {
            continue;
        }
        for (POSITION other = places.empty() ? others.GetHeadPosition() : nullptr; other;) {
            const POSITION place = other;
            places.emplace(NodeOf(others.GetNext(other)), place);
        }
        const auto [first, last] = places.equal_range(NodeOf(record));
        bool bFound = false;
        for (auto it = first; it != last && !bFound; ++it) {
            bFound = record == others.GetAt(it->second);
        }
        if (!bFound) {
            return false;
        }
    }
    return true;
}

/// TRUE when the other event has the same owner and the same records in that list.
template <class TEvent, class TList>
BOOL IsSameState(const TEvent& event, const TEvent* pOther, TList TEvent::*pRecords) {
    return pOther && event.OwnerTool() == pOther->OwnerTool() &&
           HasSameRecords(event.*pRecords, pOther->*pRecords);
}
