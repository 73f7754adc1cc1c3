#include "tools/tool_listener.h"

#include "host/document_service.h"
#include "ops/bus.h"
#include "tools/identity_tables.h"

namespace {

constexpr std::array<KindRow, 2> Kinds = {{{CategoryId, kind::Tool}, {CategoryId, kind::Any}}};

constexpr std::array<InterfaceRow<CToolListener>, 5> Interfaces = {{
    RowOf<IToolIdentity, CToolListener>(),
    RowOf<IToolObjectOps, CToolListener>(),
    RowOf<IToolLink, CToolListener>(),
    RowOf<IToolInput, CToolListener>(),
    RowOf<IToolAux, CToolListener>(),
}};

constexpr std::int32_t ErrorFailed = 3;

int Refuse(std::int32_t* pError) {
    if (pError) {
        *pError = ErrorFailed;
    }
    return 0;
}

} // namespace

int CToolListener::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    if (MatchKind(Kinds, category, nKind, pResult, pExtra)) {
        return 1;
    }
    return CListenerObject::IsKindOf(category, nKind, pResult, pExtra);
}

int CToolListener::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (MatchInterface(Interfaces, this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CListenerObject::QueryInterface(iid, ppInterface, pExtra);
}

int CToolListener::QueryState(const GUID& category, int nState) {
    if (!IsEqualGUID(category, CategoryId) || nState != kind::CurrentTool) {
        return 0;
    }
    return IsCurrentTool() ? 1 : 0;
}

int CToolListener::SetExcludedNode(CImgNode* pNode) {
    m_pExcludedNode = pNode;
    return 1;
}

CImgNode* CToolListener::GetExcludedNode() { return m_pExcludedNode; }

int CToolListener::DuplicateNode(CImgNode*, CImgNode**, int, std::int32_t* pError) { return Refuse(pError); }

int CToolListener::IsPointOnSelection(CPoint*, std::int32_t* pnAnswer, std::int32_t*) {
    if (pnAnswer) {
        *pnAnswer = 0;
    }
    return 0;
}

int CToolListener::DuplicateNodeScaled(CImgNode*, CImgNode**, double, std::int32_t* pError) {
    return Refuse(pError);
}

int CToolListener::CreateNodeShadow(CImgNode*, int, int, COLORREF*, int, int, std::int32_t* pError) {
    return Refuse(pError);
}

int CToolListener::BlendBaseImage(int, std::int32_t* pError) { return Refuse(pError); }

CListenerObject* CToolListener::CurrentTool() {
    ICurrentToolService* pService = bus::FindService<ICurrentToolService>(*this, kind::Document);
    return pService ? pService->GetCurrentTool() : nullptr;
}
