#include "bus/bus_object.h"

#include <algorithm>

#include "bus/masks.h"

int CBusObject::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    const auto matches = [&](const KindRow& row) { return row.nKind == nKind && row.category == category; };
    if (std::none_of(m_kinds.begin(), m_kinds.end(), matches)) {
        return CListenerObject::IsKindOf(category, nKind, pResult, pExtra);
    }
    if (pExtra) {
        *pExtra = 0;
    }
    if (pResult) {
        *pResult = 1;
    }
    return 1;
}

int CBusObject::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    const auto matches = [&](const InterfaceRow& row) { return row.id == iid; };
    const auto row = std::find_if(m_interfaces.begin(), m_interfaces.end(), matches);
    if (row == m_interfaces.end() || Lacks(iid)) {
        return CListenerObject::QueryInterface(iid, ppInterface, pExtra);
    }
    if (pExtra) {
        *pExtra = 0;
    }
    if (ppInterface) {
        *ppInterface = row->pInterface;
    }
    return 1;
}

bool CBusObject::Lacks(const GUID& iid) const {
    if (!bus::HasInterfaceMasks()) {
        return false;
    }
    const auto masked = [&](const KindRow& row) {
        return bus::IsInterfaceMasked(row.category, row.nKind, iid);
    };
    return std::any_of(m_kinds.begin(), m_kinds.end(), masked);
}

void CBusObject::AddKind(const GUID& category, int nKind) {
    RemoveKind(category, nKind);
    m_kinds.push_back({category, nKind});
}

void CBusObject::RemoveKind(const GUID& category, int nKind) {
    std::erase_if(m_kinds,
                  [&](const KindRow& row) { return row.nKind == nKind && row.category == category; });
}
