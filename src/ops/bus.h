// Finding services on the object bus, and broadcasting through the global manager.
#pragma once

#include "host/kinds.h"
#include "host/listener.h"

namespace bus {

/// The first target of `seeker` of that kind, or null. Nothing is kept: every use searches again.
inline CListenerObject* FindObject(CListenerObject& seeker, const GUID& category, int nKind) {
    seeker.m_fnSetCommunicateObjectType(category, nKind);
    return seeker.m_fnFirst();
}

/// The object's interface, or null; a null object has none.
template <class TInterface>
TInterface* Query(CListenerObject* pObject) {
    if (!pObject) {
        return nullptr;
    }
    void* pInterface = nullptr;
    pObject->QueryInterface(TInterface::Id, &pInterface, nullptr);
    return static_cast<TInterface*>(pInterface);
}

/// The interface of the first target of that kind (under the common category), or null.
template <class TInterface>
TInterface* FindService(CListenerObject& seeker, int nKind) {
    return Query<TInterface>(FindObject(seeker, CategoryId, nKind));
}

/// Whether the object is of that kind under the common category.
inline bool IsOfKind(CListenerObject& object, int nKind) {
    int nResult = 0;
    return object.IsKindOf(CategoryId, nKind, &nResult, nullptr) == 1;
}

/// Calls `call` with the interface of every global object of that kind that has it. A called object may
/// search with the manager itself, so the filter and the place are set again after each call.
template <class TInterface, class TCall>
void Broadcast(int nKind, TCall call) {
    CGlobalObjectManager* pManager = CGlobalObjectManager::m_fnGetGlobalObjectManager();
    pManager->m_fnSetCommunicateObjectType(CategoryId, nKind);
    CListenerObject* pObject = pManager->m_fnFirst();
    while (pObject) {
        if (TInterface* pInterface = Query<TInterface>(pObject)) {
            call(*pInterface);
        }
        pManager->m_fnSetCommunicateObjectType(CategoryId, nKind);
        pManager->m_fnSetCommunicateObjectCurrentSearchPosAt(pObject);
        pObject = pManager->m_fnNext();
    }
}

} // namespace bus
