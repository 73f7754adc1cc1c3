// How a tool class answers the bus's questions: one table of kinds and one of interfaces a class.
#pragma once

#include <array>
#include <cstddef>

#include "host/kinds.h"

/// One kind that a class answers.
struct KindRow {
    GUID category;
    int nKind;
};

/// One interface that a class answers, and the way from the object to it.
template <class TTool>
struct InterfaceRow {
    GUID iid;
    void* (*pfnCast)(TTool*);
};

/// The address of an interface within a tool.
template <class TInterface, class TTool>
void* CastToInterface(TTool* pTool) {
    return static_cast<TInterface*>(pTool);
}

template <class TInterface, class TTool>
constexpr InterfaceRow<TTool> RowOf() {
    return {TInterface::Id, &CastToInterface<TInterface, TTool>};
}

/// Clears the outputs and looks the kind up in the table. True, with `*pResult` 1, when a row matches.
template <std::size_t nRows>
bool MatchKind(const std::array<KindRow, nRows>& rows, const GUID& category, int nKind, int* pResult,
               int* pExtra) {
    if (pExtra) {
        *pExtra = 0;
    }
    bool bMatches = false;
    for (const KindRow& row : rows) {
        bMatches = bMatches || (IsEqualGUID(row.category, category) && row.nKind == nKind);
    }
    if (pResult) {
        *pResult = bMatches ? 1 : 0;
    }
    return bMatches;
}

/// Clears the outputs and looks the interface up in the table. True when a row matches.
template <class TTool, std::size_t nRows>
bool MatchInterface(const std::array<InterfaceRow<TTool>, nRows>& rows, TTool* pTool, const GUID& iid,
                    void** ppInterface, int* pExtra) {
    if (pExtra) {
        *pExtra = 0;
    }
    if (!ppInterface) {
        return false;
    }
    *ppInterface = nullptr;
    for (const InterfaceRow<TTool>& row : rows) {
        if (IsEqualGUID(row.iid, iid)) {
            *ppInterface = row.pfnCast(pTool);
            return true;
        }
    }
    return false;
}

/// What a concrete class answers to `IsKindOf`: its own kind, kind 0, then whatever its base answers.
template <class TBase>
int OwnKindOrBase(TBase& base, const KindRow& own, const GUID& category, int nKind, int* pResult,
                  int* pExtra) {
    const std::array<KindRow, 2> rows = {{own, {CategoryId, kind::Any}}};
    if (MatchKind(rows, category, nKind, pResult, pExtra)) {
        return 1;
    }
    return base.TBase::IsKindOf(category, nKind, pResult, pExtra);
}
