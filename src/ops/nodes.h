// Walking lists, and plain copies of lists of nodes.
#pragma once

#include <iterator>

#include "host/img_node_list.h"

enum class ListOrder { FromHead, FromTail };

/// The elements of a list for a range loop. The place moves on before an element is handed out, so the loop's
/// body may take that element out of the list.
template <class TList, ListOrder order>
class CListRange {
  public:
    class CIterator {
      public:
        CIterator(TList& list, POSITION place) : m_list(list), m_next(place) { ++*this; }
        decltype(auto) operator*() const { return m_list.GetAt(m_current); }
        CIterator& operator++() {
            m_current = m_next;
            if (m_next) {
                order == ListOrder::FromHead ? m_list.GetNext(m_next) : m_list.GetPrev(m_next);
            }
            return *this;
        }
        bool operator==(std::default_sentinel_t) const { return !m_current; }

      private:
        TList& m_list;
        POSITION m_current = nullptr;
        POSITION m_next;
    };

    explicit CListRange(TList& list) : m_list(list) {}
    CIterator begin() const {
        return {m_list, order == ListOrder::FromHead ? m_list.GetHeadPosition() : m_list.GetTailPosition()};
    }
    std::default_sentinel_t end() const { return {}; }

  private:
    TList& m_list;
};

/// From the head, which of a page is its front.
template <class TList>
CListRange<TList, ListOrder::FromHead> Each(TList& list) {
    return CListRange<TList, ListOrder::FromHead>(list);
}

template <class TList>
CListRange<TList, ListOrder::FromTail> Backwards(TList& list) {
    return CListRange<TList, ListOrder::FromTail>(list);
}

/// Replaces `to` by the elements of `from`, in order.
template <class TFrom, class TTo>
void CopyList(const TFrom& from, TTo& to) {
    to.RemoveAll();
    for (const auto& element : Each(from)) {
        to.AddTail(element);
    }
}

/// Takes the node out of the list, if it is in it.
inline void TakeOut(CImgNodeList& nodes, const CImgNode* pNode) {
    if (POSITION place = pNode ? nodes.Find(pNode) : nullptr) {
        nodes.RemoveAt(place);
    }
}

/// The page's top-level objects in the list.
inline INT_PTR CountObjects(const CImgNodeList& nodes) {
    INT_PTR nObjects = 0;
    for (const CImgNode* pNode : Each(nodes)) {
        nObjects += pNode->m_pOwner ? 0 : 1;
    }
    return nObjects;
}
