// Operations on objects with their companions, and the services that hand them to the host.
#include <memory>

#include "ops/groups.h"
#include "tools/tool_core.h"

namespace {

constexpr std::int32_t ErrorNone = 0;
constexpr std::int32_t ErrorNullArgument = 1;
constexpr std::int32_t ErrorFailed = 3;

int Answer(std::int32_t* pError, std::int32_t nError) {
    if (pError) {
        *pError = nError;
    }
    return nError == ErrorNone ? 1 : 0;
}

} // namespace

int CToolCore::m_fnOffsetObject(CImgNode* pNode, CSize offset) {
    if (!pNode) {
        return 1;
    }
    if (pNode->IsShadowNode() || pNode->IsFrameNode()) {
        return 0;
    }
    pNode->Move(offset.cx, offset.cy);
    if (pNode->m_pFrameNode) {
        pNode->m_pFrameNode->Move(offset.cx, offset.cy);
    }
    if (pNode->m_pShadowNode) {
        pNode->m_pShadowNode->Move(offset.cx, offset.cy);
    }
    return 1;
}

CImgNode* CToolCore::m_fnDuplicateObject(CImgNode* pNode, int nAdd) {
    CCanvas canvas(*this);
    if (!pNode || !canvas.HasDocument()) {
        return nullptr;
    }
    CImgNode* pCopy = CopyObject(*pNode, &CImgNode::Duplicate);
    if (pCopy && nAdd == 1) {
        AddGroupAtHead(canvas.Objects(), pCopy);
        m_fnKeepExcludedNodeInFront(canvas);
    }
    return pCopy;
}

int CToolCore::DuplicateNode(CImgNode* pNode, CImgNode** ppCopy, int nAdd, std::int32_t* pError) {
    if (!pNode || !ppCopy) {
        return Answer(pError, ErrorNullArgument);
    }
    *ppCopy = m_fnDuplicateObject(pNode, nAdd);
    return Answer(pError, *ppCopy ? ErrorNone : ErrorFailed);
}

int CToolCore::IsPointOnSelection(CPoint* pPoint, std::int32_t* pnAnswer, std::int32_t* pError) {
    if (!pPoint || !pnAnswer) {
        return Answer(pError, ErrorNullArgument);
    }
    *pnAnswer = IsOnSelection(*pPoint) ? 1 : 0;
    return Answer(pError, ErrorNone);
}

int CToolCore::CreateNodeShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, COLORREF* pcrColor,
                                int nSoftness, int nTransparency, std::int32_t* pError) {
    const int nMade = m_fnCreateShadow(pNode, nOffsetX, nOffsetY, pcrColor, nSoftness, nTransparency);
    return Answer(pError, nMade ? ErrorNone : ErrorFailed);
}

int CToolCore::KeepNodeInView(CImgNode*) { return 0; }
