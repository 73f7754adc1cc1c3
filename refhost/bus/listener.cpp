#include "host/listener.h"

#include <algorithm>
#include <new>

#include "bus/masks.h"
#include "platform/faults.h"

void CListener::SetCommunicateObjectType(const GUID& category, int nKind, int* pResult) {
    m_filterCategory = category;
    m_nFilterKind = nKind;
    m_nSearchPos = 0;
    if (pResult) {
        *pResult = 1;
    }
}

void* CListenerObject::operator new(std::size_t nSize) noexcept {
    return platform::FaultTrips("tool") ? nullptr : ::operator new(nSize, std::nothrow);
}

void CListenerObject::operator delete(void* pObject) noexcept { ::operator delete(pObject); }

CListenerObject::CListenerObject() = default;

CListenerObject::~CListenerObject() {
    while (!m_targets.empty()) {
        m_fnRemoveTargetObject(m_targets.back());
    }
    while (!m_linkedFrom.empty()) {
        m_linkedFrom.back()->m_fnRemoveTargetObject(this);
    }
}

int CListenerObject::IsKindOf(const GUID& /*category*/, int /*nKind*/, int* pResult, int* pExtra) {
    if (pExtra) {
        *pExtra = 0;
    }
    if (pResult) {
        *pResult = 0;
    }
    return 0;
}

int CListenerObject::QueryInterface(const GUID& /*iid*/, void** ppInterface, int* pExtra) {
    if (pExtra) {
        *pExtra = 0;
    }
    if (ppInterface) {
        *ppInterface = nullptr;
    }
    return 0;
}

int CListenerObject::QueryState(const GUID& /*category*/, int /*nState*/) { return 0; }

void CListenerObject::m_fnSetCommunicateObjectType(const GUID& category, int nKind) {
    SetCommunicateObjectType(category, nKind, nullptr);
}

CListenerObject* CListenerObject::m_fnFirst() {
    m_nSearchPos = 0;
    return m_fnNext();
}

CListenerObject* CListenerObject::m_fnNext() {
    if (bus::IsKindMasked(m_filterCategory, m_nFilterKind)) {
        return nullptr;
    }
    while (m_nSearchPos < m_targets.size()) {
        CListenerObject* pTarget = m_targets[m_nSearchPos++];
        int nResult = 0;
        pTarget->IsKindOf(m_filterCategory, m_nFilterKind, &nResult, nullptr);
        if (nResult != 0) {
            return pTarget;
        }
    }
    return nullptr;
}

void CListenerObject::m_fnAddTargetObject(CListenerObject* pTarget) {
    if (!pTarget || std::find(m_targets.begin(), m_targets.end(), pTarget) != m_targets.end()) {
        return;
    }
    try {
        m_targets.push_back(pTarget);
        pTarget->m_linkedFrom.push_back(this);
    } catch (const std::bad_alloc&) {
        // Both sides know the link or neither does: each, at its end, takes itself out of the other.
        if (!m_targets.empty() && m_targets.back() == pTarget) {
            m_targets.pop_back();
        }
    }
}

void CListenerObject::m_fnRemoveTargetObject(CListenerObject* pTarget) {
    const auto place = std::find(m_targets.begin(), m_targets.end(), pTarget);
    if (place == m_targets.end()) {
        return;
    }
    // A search that is under way goes on with the target it would have come to.
    if (static_cast<std::size_t>(place - m_targets.begin()) < m_nSearchPos) {
        --m_nSearchPos;
    }
    m_targets.erase(place);
    std::vector<CListenerObject*>& linkedFrom = pTarget->m_linkedFrom;
    linkedFrom.erase(std::find(linkedFrom.begin(), linkedFrom.end(), this));
}

CGlobalObjectManager* CGlobalObjectManager::m_fnGetGlobalObjectManager() {
    static CGlobalObjectManager manager;
    return &manager;
}

void CGlobalObjectManager::m_fnSetCommunicateObjectCurrentSearchPosAt(CListenerObject* pObject) {
    const auto place = std::find(m_targets.begin(), m_targets.end(), pObject);
    if (place != m_targets.end()) {
        m_nSearchPos = static_cast<std::size_t>(place - m_targets.begin()) + 1;
    }
}
