// How a tool answers the bus's questions: its row of the tool classes, and a table of interfaces a class.
#pragma once

#include <array>
#include <cstddef>

#include "host/tool.h"
#include "host/tool_ids.h"

/// The row of the tool's class GUID; that of the core for a class without one.
const ToolIdentity& IdentityOf(CTool& tool);
/// Whether the tool's class or one that it is built on is of that kind.
bool IsOfToolKind(CTool& tool, const GUID& category, int nKind);

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

/// Clears the outputs and looks the interface up among those named. True when the class answers it.
template <class... TInterfaces, class TTool>
bool AnswerInterface(TTool* pTool, const GUID& iid, void** ppInterface, int* pExtra) {
    static constexpr std::array<InterfaceRow<TTool>, sizeof...(TInterfaces)> Rows = {
        {RowOf<TInterfaces, TTool>()...}};
    if (pExtra) {
        *pExtra = 0;
    }
    if (!ppInterface) {
        return false;
    }
    *ppInterface = nullptr;
    for (const InterfaceRow<TTool>& row : Rows) {
        if (IsEqualGUID(row.iid, iid)) {
            *ppInterface = row.pfnCast(pTool);
            return true;
        }
    }
    return false;
}
