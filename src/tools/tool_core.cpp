#include "tools/tool_core.h"

#include "host/panels.h"
#include "host/tool_ids.h"
#include "ops/bus.h"
#include "ops/cursors.h"
#include "tools/identity_tables.h"

namespace {

constexpr std::array<KindRow, 1> Kinds = {{{CategoryId, kind::Any}}};

constexpr UINT DeleteKey = 46;

void ClearOutputs(void** ppInterface, int* pExtra) {
    if (ppInterface) {
        *ppInterface = nullptr;
    }
    if (pExtra) {
        *pExtra = 0;
    }
}

} // namespace

int CToolCore::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    if (MatchKind(Kinds, category, nKind, pResult, pExtra)) {
        return 1;
    }
    return CToolListener::IsKindOf(category, nKind, pResult, pExtra);
}

int CToolCore::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    ClearOutputs(ppInterface, pExtra);
    return CToolListener::QueryInterface(iid, ppInterface, pExtra);
}

int CToolCore::QueryState(const GUID&, int) { return 0; }

const GUID* CToolCore::GetGroupIdOverride() { return nullptr; }

int CToolCore::GetToolRect(RECT* pRect) {
    if (pRect) {
        SetRectEmpty(pRect);
    }
    return 0;
}

void CToolCore::OnObjectHook(CImgNode*) {}

int CToolCore::ResetHost() {
    if (IHostReset* pReset = bus::FindService<IHostReset>(*this, kind::PropertyArea)) {
        pReset->Reset(0);
    }
    return 1;
}

int CToolCore::IsCtrlDown() { return (GetAsyncKeyState(VK_CONTROL) & 0x8000) ? 1 : 0; }

void CToolCore::Reserved48(CPoint) {}

void CToolCore::Reserved49(CPoint) {}

void CToolCore::OnNodeResized(CImgNode*) {}

const GUID& CToolCore::GetToolClassId() { return tool_class::Core; }

const GUID& CToolCore::GetToolGroupId() { return GroupIdOr(tool_group::Common); }

const GUID& CToolCore::GroupIdOr(const GUID& classGroup) {
    const GUID* pOverride = GetGroupIdOverride();
    return pOverride ? *pOverride : classGroup;
}

int CToolCore::OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) {
    if (nActivate != 1) {
        if (nRedraw == 1) {
            FlushSelectionArea();
            RedrawSelectionArea();
        }
        return 1;
    }
    CCanvas canvas(*this);
    if (canvas && !canvas.Selection().IsEmpty()) {
        if (nRedraw == 1) {
            TakeOverMarks(pOther);
        }
        if (CImgNode* pOnly = OnlySelectedNode(canvas)) {
            HookNode(pOnly);
        }
    }
    SyncAttributePanels();
    return 1;
}

// The other tool's marks are removed with its own operations, because its marks may reach further than this
// tool's.
void CToolCore::TakeOverMarks(CListenerObject* pOther) {
    CRect rcOther(0, 0, 0, 0);
    if (IToolObjectOps* pOtherOps = bus::Query<IToolObjectOps>(pOther)) {
        pOtherOps->GetSelectionRect(&rcOther);
        pOtherOps->ShowSelectionMarks(0);
    }
    ShowSelectionMarks(1);
    CRect rcOwn(0, 0, 0, 0);
    GetSelectionRect(&rcOwn);
    CRect rcUnion;
    rcUnion.UnionRect(&rcOther, &rcOwn);
    RedrawRect(&rcUnion);
}

void CToolCore::OnSetCursor(CPoint* pPoint) {
    if (!pPoint) {
        return;
    }
    const bool bOverNode = IsOnExcludedNode(*pPoint) || NodeUnderPoint(*pPoint);
    ShowCursor(bOverNode ? cursor_id::Arrow : cursor_id::IBeam);
}

void CToolCore::ShowCursor(int nCursorId) {
    CCanvas canvas(*this);
    if (!canvas) {
        return;
    }
    HCURSOR hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(nCursorId));
    SetCursor(hCursor);
    SetClassLongPtrA(canvas.View().m_hWnd, GCLP_HCURSOR, reinterpret_cast<LONG_PTR>(hCursor));
}

int CToolCore::OnMouseMove(UINT, CPoint point) {
    OnSetCursor(&point);
    return 0;
}

int CToolCore::OnRButtonDown(UINT, CPoint) { return 0; }

int CToolCore::Reserved6(UINT, CPoint) { return 0; }

int CToolCore::Reserved7(UINT, CPoint) { return 0; }

int CToolCore::OnKeyDown(UINT nChar, UINT, UINT) {
    CCanvas canvas(*this);
    if (nChar == DeleteKey && canvas.HasDocument() && !canvas.Selection().IsEmpty()) {
        m_fnDelete();
    }
    return 0;
}

int CToolCore::Reserved10(int) { return 0; }

int CToolCore::HookNode(CImgNode* pNode) {
    OnObjectHook(pNode);
    return 1;
}

int CToolCore::SetSharedValue(int nValue) {
    static int s_nShared = 0;
    if (s_nShared != nValue) {
        s_nShared = nValue;
    }
    return s_nShared;
}

int CToolCore::CanRunCommand() { return 1; }
