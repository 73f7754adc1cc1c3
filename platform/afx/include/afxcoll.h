#pragma once

// Doubly linked lists whose nodes come from blocks, and the lists of pointers.

#include "afx.h"
#include "afxplex_.h"

/// The list behind CPtrList, CObList and CList. Everything but Find and FindIndex takes constant time.
/// Operations that name an element need one: positions are not null, heads and tails are those of a list that
/// is not empty. When the last element goes the blocks go too.
template <class TYPE, class ARG_TYPE>
class CListCore : public CObject {
  public:
    /// `nBlockSize`, above 0, is the number of nodes allocated together.
    explicit CListCore(int nBlockSize = 10) : m_nBlockSize(nBlockSize) { ASSERT(nBlockSize > 0); }
    ~CListCore() override { RemoveAll(); }

    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return m_pNodeHead->data; }
    TYPE GetHead() const { return m_pNodeHead->data; }
    TYPE& GetTail() { return m_pNodeTail->data; }
    TYPE GetTail() const { return m_pNodeTail->data; }

    TYPE RemoveHead() { return Take(m_pNodeHead); }
    TYPE RemoveTail() { return Take(m_pNodeTail); }

    /// The new element's position; null, the list unchanged, when memory is short.
    POSITION AddHead(ARG_TYPE newElement) { return Insert(nullptr, m_pNodeHead, newElement); }
    POSITION AddTail(ARG_TYPE newElement) { return Insert(m_pNodeTail, nullptr, newElement); }
    /// Copies of the other list's elements, in its order; stops where memory runs short.
    void AddHead(CListCore* pNewList);
    void AddTail(CListCore* pNewList);

    void RemoveAll();

    POSITION GetHeadPosition() const { return PositionOf(m_pNodeHead); }
    POSITION GetTailPosition() const { return PositionOf(m_pNodeTail); }
    /// The element at the position, which then moves on, to null behind the last.
    TYPE& GetNext(POSITION& rPosition) { return Step(rPosition, &CNode::pNext)->data; }
    TYPE GetNext(POSITION& rPosition) const { return Step(rPosition, &CNode::pNext)->data; }
    TYPE& GetPrev(POSITION& rPosition) { return Step(rPosition, &CNode::pPrev)->data; }
    TYPE GetPrev(POSITION& rPosition) const { return Step(rPosition, &CNode::pPrev)->data; }

    TYPE& GetAt(POSITION position) { return NodeAt(position)->data; }
    TYPE GetAt(POSITION position) const { return NodeAt(position)->data; }
    void SetAt(POSITION position, ARG_TYPE newElement) { NodeAt(position)->data = newElement; }
    void RemoveAt(POSITION position);

    /// A null position means the head for InsertBefore, the tail for InsertAfter. Null when memory is short.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// The first equal element behind `startAfter` (null: from the head); null when there is none.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /// The element number `nIndex`, counted from 0; null outside the list.
    POSITION FindIndex(int nIndex) const;

  protected:
    struct CNode {
        CNode* pNext;
        CNode* pPrev;
        TYPE data;
    };

    static CNode* NodeAt(POSITION position) { return reinterpret_cast<CNode*>(position); }
    static POSITION PositionOf(CNode* pNode) { return reinterpret_cast<POSITION>(pNode); }

    CNode* m_pNodeHead = nullptr;
    CNode* m_pNodeTail = nullptr;
    int m_nCount = 0;

  private:
    struct CFreeNode {
        CFreeNode* pNext;
    };

    static CNode* Step(POSITION& rPosition, CNode* CNode::*pLink) {
        CNode* const pNode = NodeAt(rPosition);
        rPosition = PositionOf(pNode->*pLink);
        return pNode;
    }

    BOOL AddBlock();
    POSITION Insert(CNode* pPrev, CNode* pNext, ARG_TYPE newElement);
    TYPE Take(CNode* pNode);
    void Unlink(CNode* pNode);
    void FreeNode(CNode* pNode);

    CFreeNode* m_pNodeFree = nullptr;
    CPlex* m_pBlocks = nullptr;
    int m_nBlockSize;
};

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::AddHead(CListCore* pNewList) {
    CNode* pNode = pNewList->m_pNodeTail;
    // Counted, so that a list added to itself ends.
    for (int n = pNewList->m_nCount; n > 0; --n, pNode = pNode->pPrev) {
        if (!AddHead(pNode->data)) {
            return;
        }
    }
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::AddTail(CListCore* pNewList) {
    CNode* pNode = pNewList->m_pNodeHead;
    for (int n = pNewList->m_nCount; n > 0; --n, pNode = pNode->pNext) {
        if (!AddTail(pNode->data)) {
            return;
        }
    }
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::RemoveAll() {
    for (CNode* pNode = m_pNodeHead; pNode;) {
        CNode* const pNext = pNode->pNext;
        pNode->~CNode();
        pNode = pNext;
    }
    m_pNodeHead = m_pNodeTail = nullptr;
    m_nCount = 0;
    m_pNodeFree = nullptr;
    if (m_pBlocks) {
        m_pBlocks->FreeDataChain();
    }
    m_pBlocks = nullptr;
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::RemoveAt(POSITION position) {
    CNode* const pNode = NodeAt(position);
    Unlink(pNode);
    FreeNode(pNode);
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement) {
    if (!position) {
        return AddHead(newElement);
    }
    CNode* const pNext = NodeAt(position);
    return Insert(pNext->pPrev, pNext, newElement);
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement) {
    if (!position) {
        return AddTail(newElement);
    }
    CNode* const pPrev = NodeAt(position);
    return Insert(pPrev, pPrev->pNext, newElement);
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const {
    CNode* pNode = !startAfter ? m_pNodeHead : NodeAt(startAfter)->pNext;
    while (pNode && !(pNode->data == searchValue)) {
        pNode = pNode->pNext;
    }
    return PositionOf(pNode);
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::FindIndex(int nIndex) const {
    if (nIndex < 0 || nIndex >= m_nCount) {
        return nullptr;
    }
    CNode* pNode = m_pNodeHead;
    while (nIndex-- > 0) {
        pNode = pNode->pNext;
    }
    return PositionOf(pNode);
}

template <class TYPE, class ARG_TYPE>
BOOL CListCore<TYPE, ARG_TYPE>::AddBlock() {
    CPlex* const pBlock = CPlex::Create(m_pBlocks, static_cast<UINT>(m_nBlockSize), sizeof(CNode));
    if (!pBlock) {
        return FALSE;
    }
    auto* const pStorage = static_cast<std::byte*>(pBlock->data());
    for (std::size_t n = static_cast<std::size_t>(m_nBlockSize); n > 0; --n) {
        m_pNodeFree = ::new (pStorage + (n - 1) * sizeof(CNode)) CFreeNode{m_pNodeFree};
    }
    return TRUE;
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::Insert(CNode* pPrev, CNode* pNext, ARG_TYPE newElement) {
    if (!m_pNodeFree && !AddBlock()) {
        return nullptr;
    }
    CFreeNode* const pStorage = m_pNodeFree;
    m_pNodeFree = pStorage->pNext;
    CNode* const pNode = ::new (static_cast<void*>(pStorage)) CNode{pNext, pPrev, TYPE(newElement)};
    (pPrev ? pPrev->pNext : m_pNodeHead) = pNode;
    (pNext ? pNext->pPrev : m_pNodeTail) = pNode;
    ++m_nCount;
    return PositionOf(pNode);
}

template <class TYPE, class ARG_TYPE>
TYPE CListCore<TYPE, ARG_TYPE>::Take(CNode* pNode) {
    ASSERT(pNode != nullptr);
    TYPE element(static_cast<TYPE&&>(pNode->data));
    Unlink(pNode);
    FreeNode(pNode);
    return element;
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::Unlink(CNode* pNode) {
    (pNode->pPrev ? pNode->pPrev->pNext : m_pNodeHead) = pNode->pNext;
    (pNode->pNext ? pNode->pNext->pPrev : m_pNodeTail) = pNode->pPrev;
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::FreeNode(CNode* pNode) {
    pNode->~CNode();
    m_pNodeFree = ::new (static_cast<void*>(pNode)) CFreeNode{m_pNodeFree};
    if (--m_nCount == 0) {
        RemoveAll();
    }
}

/// A list of pointers to anything; what they point to is not owned.
class CPtrList : public CListCore<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)

    explicit CPtrList(int nBlockSize = 10) : CListCore(nBlockSize) {}
};

/// A list of pointers to objects, which are not owned.
class CObList : public CListCore<CObject*, CObject*> {
    DECLARE_DYNCREATE(CObList)

    explicit CObList(int nBlockSize = 10) : CListCore(nBlockSize) {}
};
