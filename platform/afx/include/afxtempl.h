#pragma once

// Lists of values, and typed faces of the lists of pointers.

#include "afxcoll.h"

/// A list of values; ARG_TYPE is how an element is passed. Find needs TYPE's operator ==.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CListCore<TYPE, ARG_TYPE> {
  public:
    explicit CList(int nBlockSize = 10) : CListCore<TYPE, ARG_TYPE>(nBlockSize) {}
};

/// A CPtrList or CObList (or a list below one) whose elements are all of the pointer type TYPE. Elements come
/// back by value; SetAt changes one.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS {
  public:
    explicit CTypedPtrList(int nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }

    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }

    TYPE GetNext(POSITION& rPosition) const { return static_cast<TYPE>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const { return static_cast<TYPE>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION position, TYPE newElement) { BASE_CLASS::SetAt(position, newElement); }

    POSITION InsertBefore(POSITION position, TYPE newElement) {
        return BASE_CLASS::InsertBefore(position, newElement);
    }
    POSITION InsertAfter(POSITION position, TYPE newElement) {
        return BASE_CLASS::InsertAfter(position, newElement);
    }
    POSITION Find(TYPE searchValue, POSITION startAfter = nullptr) const {
        return BASE_CLASS::Find(searchValue, startAfter);
    }
};
