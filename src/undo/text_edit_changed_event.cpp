#include "undo/text_edit_changed_event.h"

#include "ops/canvas.h"
#include "ops/refresh.h"
#include "ops/saturate.h"
#include "text/object/text_style.h"
#include "tools/object_tool.h"

IMPLEMENT_DYNCREATE(CTextEditChangedUndoEvent, CUndoEvent)

namespace {

CTextNode* FirstSelectedText(const CCanvas& canvas) {
    if (!canvas.HasDocument() || canvas.Selection().IsEmpty()) {
        return nullptr;
    }
    CImgNode* pNode = canvas.Selection().GetHead();
    return pNode->m_nType == node_type::Text ? static_cast<CTextNode*>(pNode) : nullptr;
}

CRect BoxOf(const CTextNode& node) {
    const CTxParam& tx = node.m_tx;
    return CRect(tx.nX, tx.nY, Saturated(static_cast<long long>(tx.nX) + tx.nWidth),
                 Saturated(static_cast<long long>(tx.nY) + tx.nHeight));
}

} // namespace

void CTextEditChangedUndoEvent::m_fnSaveState(CObjectTool* pTool) {
    m_pOwnerTool = pTool;
    if (pTool) {
        if (const CTextNode* pText = FirstSelectedText(CCanvas(*pTool))) {
            pText->m_fnGetText(m_strText);
            m_rcBox = BoxOf(*pText);
        }
    }
    SetAccumulate(FALSE);
}

BOOL CTextEditChangedUndoEvent::Accumulate(CUndoEvent*) { return FALSE; }

BOOL CTextEditChangedUndoEvent::Undo() {
    CUndoEvent::Undo();
    m_bUndone = !m_bUndone;
    CTextNode* pText = m_pOwnerTool ? FirstSelectedText(CCanvas(*m_pOwnerTool)) : nullptr;
    if (!pText) {
        return FALSE;
    }
    m_pOwnerTool->SyncToolPanel();
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    m_pOwnerTool->GetNodeMarkArea(pText, &rc);
    refresh.Add(rc);
    const std::unique_ptr<CTextNode> pBuilt = BuildSavedText(*pText);
    if (!pBuilt) {
        return FALSE;
    }
    SwapWith(*pText, *pBuilt);
    if (pText->m_pShadowNode) {
        m_pOwnerTool->RefreshNodeShadow(pText, 0);
    }
    m_pOwnerTool->GetNodeMarkArea(pText, &rc);
    refresh.Add(rc);
    m_pOwnerTool->FlushViewRect(&refresh.Area());
    m_pOwnerTool->ShowSelectionMarks(TRUE);
    m_pOwnerTool->RedrawRect(&refresh.Area());
    m_pOwnerTool->SyncAttributePanels();
    NotifyChangedThenRedrawn(*m_pOwnerTool);
    return TRUE;
}

// The saved text with the other's attributes, effect and display values, in the saved box. Null when it
// cannot be built.
std::unique_ptr<CTextNode> CTextEditChangedUndoEvent::BuildSavedText(const CTextNode& like) {
    const std::unique_ptr<char[]> pszFontName(like.CloneFontName());
    if (!pszFontName) {
        return nullptr;
    }
    std::unique_ptr<CTextNode> pBuilt(
        m_pOwnerTool->CreateTextNode(m_strText, CString(pszFontName.get()), like.m_crText, like.m_nFontSize,
                                     AlignmentIndexOf(like), StyleBitsOf(like)));
    if (!pBuilt) {
        return nullptr;
    }
    pBuilt->m_fnCopyTextEffectFrom(&like);
    pBuilt->m_fnRegenerateTextEffect();
    pBuilt->m_fnUpdateBCAndT(like.m_nBrightness, like.m_nContrast, like.m_nTransparency);
    pBuilt->m_fnResize(m_rcBox);
    return pBuilt;
}

// Moving the data also moves the built text's empty links; the node's shadow is put back, its frame is not.
void CTextEditChangedUndoEvent::SwapWith(CTextNode& node, CTextNode& built) {
    CString strText;
    node.m_fnGetText(strText);
    const CRect rcBox = BoxOf(node);
    CImgNode* pShadowNode = node.m_pShadowNode;
    const CShadowParam shadow = node.m_shadow;
    node.m_fnMoveMemberDataFrom(&built);
    node.m_pShadowNode = pShadowNode;
    node.m_shadow = shadow;
    m_strText = strText;
    m_rcBox = rcBox;
}

BOOL CTextEditChangedUndoEvent::Redo() { return Undo(); }

void CTextEditChangedUndoEvent::Free() {}

void CTextEditChangedUndoEvent::Cancel() { Free(); }

BOOL CTextEditChangedUndoEvent::ToolTipNeedText(tagNMTTDISPIFNOA*) { return TRUE; }
