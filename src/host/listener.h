// The object bus: listeners linked to each other as targets, found by kind, asked for interfaces by GUID.
#pragma once

#include <cstddef>
#include <vector>

#include <windows.h>

class CListenerObject;

/// The search state every listener has: the filter (category and kind) and the place reached.
class CListener {
  public:
    /// Sets the search filter and restarts the search. `pResult` may be null; receives 1 otherwise.
    void SetCommunicateObjectType(const GUID& category, int nKind, int* pResult);

  protected:
    GUID m_filterCategory{};
    int m_nFilterKind = 0;
    std::size_t m_nSearchPos = 0; ///< index of the target at which the next search step starts
};

/// A party on the bus. Targets are not owned; the destructor removes this object from its targets' lists.
class CListenerObject : public CListener {
  public:
    /// Answers null when the allocation fails, so that `new` yields a null pointer.
    static void* operator new(std::size_t nSize) noexcept;
    static void operator delete(void* pObject) noexcept;

    CListenerObject();
    CListenerObject(const CListenerObject&) = delete;
    CListenerObject& operator=(const CListenerObject&) = delete;

    /// Answers 1 and sets `*pResult` to 1 when the object is of that kind, else both 0. `pExtra` may be null
    /// and is cleared when given.
    virtual int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra);
    /// Sets `*ppInterface` to the object's interface of that GUID, or null. Answers 1 when there is one, else
    /// 0. `pExtra` may be null and is cleared when given.
    virtual int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra);
    /// Answers whether the object is in the state (category, number): 1 or 0.
    virtual int QueryState(const GUID& category, int nState);
    virtual ~CListenerObject();

    /// Sets this listener's search filter and restarts its search.
    void m_fnSetCommunicateObjectType(const GUID& category, int nKind);
    /// The first target that answers the filter, or null.
    CListenerObject* m_fnFirst();
    /// The next target that answers the filter, or null.
    CListenerObject* m_fnNext();
    /// Adds one link from this listener to `pTarget`; a link that exists is not made twice.
    void m_fnAddTargetObject(CListenerObject* pTarget);
    /// Removes the link from this listener to `pTarget`, if there is one.
    void m_fnRemoveTargetObject(CListenerObject* pTarget);

  protected:
    std::vector<CListenerObject*> m_targets;    ///< in the order of linking
    std::vector<CListenerObject*> m_linkedFrom; ///< listeners that have this one as a target
};

/// The one global manager: a listener whose targets are the host's global objects.
class CGlobalObjectManager : public CListenerObject {
  public:
    /// Never null.
    static CGlobalObjectManager* m_fnGetGlobalObjectManager();
    /// Puts the search position on `pObject`, so that `m_fnNext` continues after it.
    void m_fnSetCommunicateObjectCurrentSearchPosAt(CListenerObject* pObject);
};
