#include "tools/tool_listener.h"

#include "ops/current_tool.h"
#include "ops/service_error.h"
#include "tools/identity.h"

int CToolListener::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    const bool bTool = IsEqualGUID(category, CategoryId) && (nKind == kind::Tool || nKind == kind::Any);
    if (!bTool && !IsOfToolKind(*this, category, nKind)) {
        return CTool::IsKindOf(category, nKind, pResult, pExtra);
    }
    if (pExtra) {
        *pExtra = 0;
    }
    if (pResult) {
        *pResult = 1;
    }
    return 1;
}

int CToolListener::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (AnswerInterface<IToolIdentity, IToolObjectOps, IToolLink, IToolInput, IToolAux>(
            this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CTool::QueryInterface(iid, ppInterface, pExtra);
}

int CToolListener::QueryState(const GUID& category, int nState) {
    return IsEqualGUID(category, CategoryId) && nState == kind::CurrentTool && IsCurrentTool(*this) ? 1 : 0;
}

int CToolListener::SetExcludedNode(CImgNode* pNode) {
    m_pExcludedNode = pNode;
    return 1;
}

CImgNode* CToolListener::GetExcludedNode() { return m_pExcludedNode; }

int CToolListener::DuplicateNode(CImgNode*, CImgNode**, int, std::int32_t* pError) {
    return AnswerWith(service_error::Failed, pError);
}

int CToolListener::IsPointOnSelection(CPoint*, std::int32_t* pnAnswer, std::int32_t*) {
    if (pnAnswer) {
        *pnAnswer = 0;
    }
    return 0;
}

int CToolListener::DuplicateNodeScaled(CImgNode*, CImgNode**, double, std::int32_t* pError) {
    return AnswerWith(service_error::Failed, pError);
}

int CToolListener::CreateNodeShadow(CImgNode*, int, int, COLORREF*, int, int, std::int32_t* pError) {
    return AnswerWith(service_error::Failed, pError);
}

int CToolListener::BlendBaseImage(int, std::int32_t* pError) {
    return AnswerWith(service_error::Failed, pError);
}
