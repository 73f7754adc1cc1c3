#include "tools/tool_core.h"

#include "ops/areas.h"
#include "ops/base_image.h"
#include "ops/bus.h"
#include "ops/commands/click.h"
#include "ops/commands/context_menu.h"
#include "ops/commands/keys.h"
#include "ops/commands/objects.h"
#include "ops/commands/panels.h"
#include "ops/commands/records.h"
#include "ops/commands/services.h"
#include "ops/cursors.h"
#include "ops/excluded_node.h"
#include "ops/hit_test.h"
#include "ops/marks.h"
#include "ops/nodes.h"
#include "ops/notifications.h"
#include "ops/objects/align.h"
#include "ops/objects/distribute.h"
#include "ops/objects/duplicate.h"
#include "ops/objects/look.h"
#include "ops/objects/match_size.h"
#include "ops/objects/offset.h"
#include "ops/objects/resize.h"
#include "ops/refresh.h"
#include "ops/selection.h"
#include "ops/stacking.h"
#include "shadows/shadow_build.h"
#include "text/object/text_creation.h"
#include "text/object/text_replace.h"
#include "tools/identity.h"

namespace {

// The other tool's marks are removed with its own operations, because its marks may reach further than this
// tool's.
void TakeOverMarks(CTool& tool, CListenerObject* pOther) {
    CRect rcOther(0, 0, 0, 0);
    if (IToolObjectOps* pOtherOps = bus::Query<IToolObjectOps>(pOther)) {
        pOtherOps->GetSelectionRect(&rcOther);
        pOtherOps->ShowSelectionMarks(0);
    }
    tool.ShowSelectionMarks(1);
    CRefresh refresh;
    refresh.Add(rcOther);
    refresh.Add(SelectionRect(tool));
    refresh.Repaint(CCanvas(tool));
}

} // namespace

int CToolCore::QueryState(const GUID&, int) { return 0; }

// The main table.

const GUID* CToolCore::GetGroupIdOverride() { return nullptr; }

int CToolCore::GetToolRect(RECT* pRect) {
    if (pRect) {
        SetRectEmpty(pRect);
    }
    return 0;
}

void CToolCore::OnObjectHook(CImgNode*) {}
int CToolCore::ResetHost() { return panels::ResetHost(*this); }

void CToolCore::OnSetCursor(CPoint* pPoint) {
    if (pPoint) {
        const bool bOverNode = IsOnExcludedNode(*this, *pPoint) || NodeUnderPoint(*this, *pPoint);
        ShowCursor(*this, bOverNode ? cursor_id::Arrow : cursor_id::IBeam);
    }
}

int CToolCore::IsCtrlDown() { return (GetAsyncKeyState(VK_CONTROL) & 0x8000) ? 1 : 0; }
int CToolCore::GetNodeMarkRect(CImgNode* pNode, RECT* pRect) {
    return areas::GetNodeMarkRect(*this, pNode, pRect);
}
int CToolCore::GetNodeOutlineMarkRect(CImgNode* pNode, RECT* pRect) {
    return areas::GetNodeOutlineMarkRect(*this, pNode, pRect);
}
int CToolCore::GetNodeRect(CImgNode* pNode, RECT* pRect) { return areas::GetNodeRect(*this, pNode, pRect); }
int CToolCore::GetNodeOutlineRect(CImgNode* pNode, RECT* pRect) {
    return areas::GetNodeOutlineRect(*this, pNode, pRect);
}
int CToolCore::DrawSelectionMark(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return DrawMarkRect(pDC, pOrigin, pNode);
}
int CToolCore::DrawShadowMark(CDC*, CPoint*, CImgNode*) { return 1; }
int CToolCore::DrawMarkRect(CDC* pDC, CPoint* pOrigin, CImgNode* pNode) {
    return marks::DrawMarkRect(*this, pDC, pOrigin, pNode);
}
int CToolCore::Reserved18(CDC*, CPoint*, CImgNode*) { return 1; }
int CToolCore::InvalidateSelectionMark(CImgNode* pNode) { return InvalidateMarkRect(pNode); }
int CToolCore::InvalidateMarkRect(CImgNode* pNode) { return marks::InvalidateMarkRect(*this, pNode); }
int CToolCore::HitTestSelected(CPoint* pPoint, CImgNode* pNode) { return PtInNodeOutline(pPoint, pNode); }
int CToolCore::PtInNodeOutline(CPoint* pPoint, CImgNode* pNode) {
    return ::PtInNodeOutline(*this, pPoint, pNode);
}
void CToolCore::m_fnBringForward() { stacking::BringForward(*this); }
void CToolCore::m_fnSendBackward() { stacking::SendBackward(*this); }
void CToolCore::m_fnBringToFront() { stacking::BringToFront(*this); }
void CToolCore::m_fnSendToBack() { stacking::SendToBack(*this); }
int CToolCore::m_fnCopy(CPoint point) { return commands::Copy(*this, point); }
int CToolCore::m_fnPaste(CPoint point, int nFlag) { return commands::Paste(*this, point, nFlag); }
void CToolCore::m_fnDelete() { commands::Delete(*this); }
void CToolCore::Empty30() {}
void CToolCore::Empty31() {}
void CToolCore::m_fnRemoveFrame() {}
void CToolCore::m_fnRemoveShadow() { commands::RemoveShadows(*this); }
void CToolCore::m_fnEditTextAt(CPoint point) { commands::EditTextAt(*this, point); }
void CToolCore::m_fnRemoveTextEffect(CPoint point) { commands::RemoveTextEffect(*this, point); }
void CToolCore::m_fnAlignLeft() { align::Left(*this); }
void CToolCore::m_fnAlignTop() { align::Top(*this); }
void CToolCore::m_fnAlignRight() { align::Right(*this); }
void CToolCore::m_fnAlignBottom() { align::Bottom(*this); }
void CToolCore::m_fnAlignMiddle() { align::Middle(*this); }
void CToolCore::m_fnAlignCenter() { align::Center(*this); }
void CToolCore::m_fnAlignCenters() { align::Centers(*this); }
void CToolCore::m_fnDistributeVertically() { distribute::Vertically(*this); }
void CToolCore::m_fnDistributeHorizontally() { distribute::Horizontally(*this); }
void CToolCore::m_fnSameWidth() { match_size::Width(*this); }
void CToolCore::m_fnSameHeight() { match_size::Height(*this); }
void CToolCore::m_fnSameSize() { match_size::Both(*this); }
void CToolCore::Reserved48(CPoint) {}
void CToolCore::Reserved49(CPoint) {}
void CToolCore::OnNodeResized(CImgNode*) {}

// Identity.

const GUID& CToolCore::GetToolClassId() { return tool_class::Core; }

const GUID& CToolCore::GetToolGroupId() {
    const GUID* pOverride = GetGroupIdOverride();
    return pOverride ? *pOverride : IdentityOf(*this).groupId;
}

// The object operations.

int CToolCore::OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) {
    if (nActivate != 1) {
        if (nRedraw == 1) {
            FlushSelectionArea();
            RedrawSelectionArea();
        }
        return 1;
    }
    const CCanvas canvas(*this);
    if (canvas && canvas.HasSelection() && nRedraw == 1) {
        TakeOverMarks(*this, pOther);
    }
    if (CImgNode* pOnly = canvas ? canvas.OnlySelected() : nullptr) {
        HookNode(pOnly);
    }
    SyncAttributePanels();
    return 1;
}

int CToolCore::ClearSelection() { return selection::ClearSelection(*this); }
int CToolCore::DeselectAll(int nRedraw) { return selection::DeselectAll(*this, nRedraw); }
int CToolCore::AddToSelection(CNodeRefList& nodes) { return selection::AddToSelection(*this, nodes); }
int CToolCore::SetSelection(CNodeRefList& nodes, int nToggle) {
    return selection::SetSelection(*this, nodes, nToggle);
}
int CToolCore::ShowSelectionMarks(int nShow) { return marks::ShowSelectionMarks(*this, nShow); }
int CToolCore::RefreshNodeShadow(CImgNode* pNode, int nRedraw) {
    return ::RefreshNodeShadow(*this, pNode, nRedraw);
}
int CToolCore::FlushSelectionArea() { return marks::FlushSelectionArea(*this); }
int CToolCore::RedrawSelectionArea() { return marks::RedrawSelectionArea(*this); }
int CToolCore::GetSelectionRect(RECT* pRect) { return areas::GetSelectionRect(*this, pRect); }
int CToolCore::GetSelectionOutlineRect(RECT* pRect) { return areas::GetSelectionOutlineRect(*this, pRect); }
int CToolCore::FlushViewRect(const RECT* pRect) { return marks::FlushViewRect(*this, pRect); }
int CToolCore::RedrawRect(const RECT* pRect) { return marks::RedrawRect(*this, pRect); }
int CToolCore::KeepNodeInView(CImgNode*) { return 0; }
int CToolCore::GetNodesRect(CNodeRefList& nodes, RECT* pRect) {
    return areas::GetNodesRect(*this, nodes, pRect);
}
int CToolCore::GetNodeMarkArea(CImgNode* pNode, RECT* pRect) {
    return areas::GetNodeMarkArea(*this, pNode, pRect);
}
int CToolCore::ClassifySelection() { return selection::ClassifySelection(*this); }
CTextNode* CToolCore::CreateTextNode(const CString& strText, const CString& strFontName, COLORREF crColor,
                                     int nPixelSize, int nAlignment, int nStyle) {
    return text_objects::CreateTextNode(*this, strText, strFontName, crColor, nPixelSize, nAlignment, nStyle);
}
CTextNode* CToolCore::RecolorTextNode(CTextNode* pNode, COLORREF crColor) {
    return text_objects::RecolorTextNode(*this, pNode, crColor);
}
int CToolCore::ReplaceTextNode(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) {
    return text_objects::ReplaceTextNode(*this, pOld, pRebuilt, nRedraw);
}
int CToolCore::RebuildTextNodeInPlace(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) {
    return text_objects::RebuildTextNodeInPlace(*this, pOld, pRebuilt, nRedraw);
}
int CToolCore::SyncAttributePanels() { return panels::SyncAttributePanels(*this); }

int CToolCore::SetSharedValue(int nValue) {
    static int s_nShared = 0;
    if (s_nShared != nValue) {
        s_nShared = nValue;
    }
    return s_nShared;
}

int CToolCore::CopyNodeLook(CImgNode* pSource, CImgNode* pTarget) {
    return look::CopyNodeLook(*this, pSource, pTarget);
}
int CToolCore::HookNode(CImgNode* pNode) { return OnObjectHook(pNode), 1; }
int CToolCore::RecordSelectionUndo() { return records::RecordSelectionUndo(*this); }
int CToolCore::RecordAttributeUndoForSelection(UINT nDescriptionId) {
    return records::RecordAttributeUndoForSelection(*this, nDescriptionId);
}
int CToolCore::RecordAttributeUndo(CNodeRefList& nodes, UINT nDescriptionId) {
    return records::RecordAttributeUndo(*this, nodes, nDescriptionId);
}
int CToolCore::RecordAddObjectUndo() { return records::RecordAddObjectUndo(*this); }
int CToolCore::NotifyObjectsChanged() { return notifications::NotifyObjectsChanged(*this); }
int CToolCore::NotifyObjectsRedrawn() { return notifications::NotifyObjectsRedrawn(*this); }
int CToolCore::ClassifyNodes(CNodeRefList& nodes) { return selection::ClassifyNodes(nodes); }
int CToolCore::SyncToolPanel() { return panels::SyncToolPanel(*this); }
int CToolCore::ShowNodeFrame(CImgNode* pNode, int nShow) { return marks::ShowNodeFrame(*this, pNode, nShow); }
RECT* CToolCore::GetNodeRectOf(RECT* pRect, CImgNode* pNode) {
    return areas::GetNodeRectOf(*this, pRect, pNode);
}
RECT* CToolCore::GetNodeMarkAreaOf(RECT* pRect, CImgNode* pNode) {
    return areas::GetNodeMarkAreaOf(*this, pRect, pNode);
}
int CToolCore::CanRunCommand() { return 1; }
int CToolCore::MakePlaceholderFrame(CImgNode*, const RECT*) { return 0; }

// Input.

int CToolCore::OnLButtonDblClk(UINT nFlags, CPoint point) { return OnLButtonDown(nFlags, point); }
int CToolCore::OnLButtonDown(UINT nFlags, CPoint point) { return click::OnLButtonDown(*this, nFlags, point); }
int CToolCore::OnLButtonUp(UINT nFlags, CPoint point) { return click::OnLButtonUp(*this, nFlags, point); }
int CToolCore::OnMouseMove(UINT, CPoint point) { return OnSetCursor(&point), 0; }
int CToolCore::OnRButtonDown(UINT, CPoint point) { return context_menu::OnRButtonDown(*this, point); }
int CToolCore::Reserved6(UINT, CPoint) { return 0; }
int CToolCore::Reserved7(UINT, CPoint) { return 0; }
int CToolCore::OnKeyDown(UINT nChar, UINT, UINT) { return keys::OnKeyDown(*this, nChar); }
int CToolCore::OnKeyUp(UINT nChar, UINT, UINT) { return keys::OnKeyUp(*this, nChar); }
int CToolCore::Reserved10(int) { return 0; }

// Links and services.

int CToolCore::MergeIntoBaseImage(HBUF32 hImage, HBUF32 hMask, int nPercent, int nRedraw,
                                  std::int32_t* pError) {
    return base_image::MergeIntoBaseImage(*this, hImage, hMask, nPercent, nRedraw, pError);
}
int CToolCore::DuplicateNode(CImgNode* pNode, CImgNode** ppCopy, int nAdd, std::int32_t* pError) {
    return services::DuplicateNode(*this, pNode, ppCopy, nAdd, pError);
}
int CToolCore::IsPointOnSelection(CPoint* pPoint, std::int32_t* pnAnswer, std::int32_t* pError) {
    return services::IsPointOnSelection(*this, pPoint, pnAnswer, pError);
}
int CToolCore::CreateNodeShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, COLORREF* pcrColor,
                                int nSoftness, int nTransparency, std::int32_t* pError) {
    return services::CreateNodeShadow(*this, pNode, nOffsetX, nOffsetY, pcrColor, nSoftness, nTransparency,
                                      pError);
}

// The shared operations by their names.

int CToolCore::m_fnOffsetObject(CImgNode* pNode, CSize offset) { return OffsetObject(pNode, offset); }
int CToolCore::m_fnResizeObject(CImgNode* pNode, const CRect& rcTarget) {
    return ResizeObject(*this, pNode, rcTarget);
}
CImgNode* CToolCore::m_fnDuplicateObject(CImgNode* pNode, int nAdd) {
    return DuplicateObject(*this, pNode, nAdd);
}
CImgNode* CToolCore::m_fnPickReference(const CNodeRefList& nodes, int nRule) {
    return align::PickReference(*this, nodes, nRule);
}
void CToolCore::m_fnCopySelection(CNodeRefList& nodes) { selection::CopySelection(*this, nodes); }
void CToolCore::m_fnSortByStacking(CNodeRefList& nodes) { stacking::SortByStacking(*this, nodes); }
int CToolCore::m_fnIsSelectionAtFront() { return stacking::IsSelectionAtFront(*this); }
int CToolCore::m_fnIsSelectionAtBack() { return stacking::IsSelectionAtBack(*this); }
void CToolCore::m_fnPrepareContextSelection(CPoint point) {
    context_menu::PrepareContextSelection(*this, point);
}
void CToolCore::m_fnEnableContextMenu(CMenu& menu, CPoint point) {
    context_menu::EnableContextMenu(*this, menu, point);
}
void CToolCore::m_fnKeepExcludedNodeInFront() { KeepExcludedNodeInFront(*this); }
int CToolCore::m_fnCreateShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, const COLORREF* pcrColor,
                                int nSoftness, int nTransparency) {
    return CreateShadow(*this, pNode, nOffsetX, nOffsetY, pcrColor, nSoftness, nTransparency);
}
int CToolCore::m_fnRemoveShadowOf(CImgNode* pNode) { return RemoveShadow(*this, pNode); }
int CToolCore::m_fnRegenerateShadow(CImgNode* pNode) { return RegenerateShadow(*this, pNode); }
HBUF32 CToolCore::m_fnMakeSoftMask(HBUF32 hMask, int nSoftness, CTxParam& block, CSize offset, CPoint ptBase,
                                   CPoint& ptShadow) {
    return MakeSoftMask(hMask, nSoftness, block, offset, ptBase, ptShadow);
}
int CToolCore::m_fnRebuildTextAtSize(CImgNode* pNode, int nPixelSize, const CPoint* pptCorner) {
    return RebuildTextAtSize(*this, pNode, nPixelSize, pptCorner);
}
