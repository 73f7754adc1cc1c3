#include "ops/commands/context_menu.h"

#include <bitset>

#include "ops/canvas.h"
#include "ops/commands/menu_table.h"
#include "ops/excluded_node.h"
#include "ops/hit_test.h"
#include "ops/nodes.h"
#include "ops/object_clipboard.h"
#include "ops/resource_module.h"
#include "ops/selection.h"
#include "ops/selection_class.h"
#include "ops/stacking.h"
#include "text/object/text_attributes.h"
#include "undo/recorder.h"
#include "undo/sel_changed_event.h"

namespace {

/// Which rules hold, and whether the submenus are offered.
struct MenuFacts {
    std::bitset<MenuRuleCount> holds;
    bool bArrange = false;
    bool bAlign = false;

    bool Holds(MenuRule rule) const { return holds[static_cast<std::size_t>(rule)]; }
    void Set(MenuRule rule, bool bHolds) { holds[static_cast<std::size_t>(rule)] = bHolds; }
};

bool HasEffect(CImgNode* pNode) {
    const CTextNode* const pText = AsText(pNode);
    return pText && pText->m_fnIsTextEffectApplied() == 1;
}

// An object that is not selected is asked alone, and for it a frame counts even where it follows the object.
void FindRemovables(const CCanvas& canvas, CImgNode& object, MenuFacts& facts) {
    if (!canvas.IsSelected(&object)) {
        facts.Set(MenuRule::Shadow, object.m_pShadowNode != nullptr);
        facts.Set(MenuRule::Frame, object.m_pFrameNode != nullptr);
        facts.Set(MenuRule::TextEffect, HasEffect(&object));
        return;
    }
    bool bShadow = false;
    bool bFrame = false;
    bool bEffect = false;
    for (CImgNode* pNode : Each(canvas.Selection())) {
        bShadow = bShadow || pNode->m_pShadowNode;
        bFrame = bFrame || (pNode->m_pFrameNode && pNode->m_nFrameFollows == 0);
        bEffect = bEffect || HasEffect(pNode);
    }
    facts.Set(MenuRule::Shadow, bShadow);
    facts.Set(MenuRule::Frame, bFrame);
    facts.Set(MenuRule::TextEffect, bEffect);
}

// Where everything is selected there is nothing to arrange it against.
void FindArrangement(CTool& tool, const CCanvas& canvas, MenuFacts& facts) {
    facts.Set(MenuRule::NotInFront, true);
    facts.Set(MenuRule::NotAtBack, true);
    if (!canvas.HasSelection()) {
        return;
    }
    const CExcludedNodeScope excluded(canvas.Objects(), tool.GetExcludedNode());
    facts.bArrange = canvas.Selection().GetCount() < CountObjects(canvas.Objects());
    if (facts.bArrange) {
        facts.Set(MenuRule::NotInFront, !stacking::IsSelectionAtFront(tool));
        facts.Set(MenuRule::NotAtBack, !stacking::IsSelectionAtBack(tool));
    }
}

void FindClipboardFacts(CTool& tool, CPoint point, MenuFacts& facts) {
    if (IObjectClipboard* pClipboard = FindClipboard(tool)) {
        facts.Set(MenuRule::ClipboardCopies, pClipboard->CanCopy(point) == 1);
        facts.Set(MenuRule::ClipboardPastes, pClipboard->CanPaste(point) == 1);
    }
}

MenuFacts FindFacts(CTool& tool, const CCanvas& canvas, CPoint point) {
    MenuFacts facts;
    CImgNode* const pObject = ClickedNode(tool, point);
    const INT_PTR nSelected = canvas.Selection().GetCount();
    if (pObject) {
        FindRemovables(canvas, *pObject, facts);
    }
    facts.Set(MenuRule::Selection, nSelected > 0);
    FindArrangement(tool, canvas, facts);
    FindClipboardFacts(tool, point, facts);
    facts.Set(MenuRule::OneText, AsText(pObject) && nSelected == 1);
    facts.bAlign = nSelected > 1;
    facts.Set(MenuRule::NotTwo, nSelected != 2);
    const int nClass = tool.ClassifySelection();
    facts.Set(MenuRule::OtherObjects,
              nClass == selection_class::OneOther || nClass == selection_class::SeveralOthers);
    return facts;
}

void EnableItem(CMenu& menu, const MenuRow& row, bool bHolds) {
    const bool bTouched = row.rule == MenuRule::OtherObjects || bHolds == StartsGreyed(row.rule);
    if (row.rule != MenuRule::Start && bTouched) {
        menu.EnableMenuItem(static_cast<UINT>(row.nId), bHolds ? MF_ENABLED : MF_GRAYED);
    }
}

// The press with which a person dismissed the menu is swallowed on empty ground and on a selected text, so
// that it neither deselects nor opens the text; elsewhere it acts as any press.
void SwallowQueuedPress(CTool& tool) {
    const CCanvas canvas(tool);
    MSG message;
    if (!canvas ||
        !PeekMessageA(&message, canvas.View().m_hWnd, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_NOREMOVE)) {
        return;
    }
    const CPoint point(static_cast<short>(LOWORD(message.lParam)),
                       static_cast<short>(HIWORD(message.lParam)));
    CImgNode* const pObject = ClickedNode(tool, point);
    if (!pObject || (AsText(pObject) && canvas.IsSelected(pObject))) {
        PeekMessageA(&message, canvas.View().m_hWnd, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE);
    }
}

int Track(const CCanvas& canvas, CMenu& popup, CPoint point) {
    canvas.View().ClientToScreen(&point);
    return popup.TrackPopupMenu(TPM_RETURNCMD | TPM_RIGHTBUTTON, point.x, point.y, &canvas.View());
}

void Dispatch(CTool& tool, int nId, CPoint point) {
    if (const MenuRow* pRow = FindMenuRow(nId)) {
        pRow->pfnRun(tool, point);
    }
}

} // namespace

int context_menu::OnRButtonDown(CTool& tool, CPoint point) {
    CMenu menu;
    const CCanvas canvas(tool);
    if (!canvas || !menu.Attach(::LoadMenuA(ResourceModule(), MAKEINTRESOURCEA(ResourceId)))) {
        return 0;
    }
    if (CMenu* const pPopup = menu.GetSubMenu(0)) {
        PrepareContextSelection(tool, point);
        EnableContextMenu(tool, *pPopup, point);
        const int nId = Track(canvas, *pPopup, point);
        SwallowQueuedPress(tool);
        Dispatch(tool, nId, point);
        tool.SyncAttributePanels();
    }
    menu.DestroyMenu();
    return 0;
}

void context_menu::PrepareContextSelection(CTool& tool, CPoint point) {
    CUndoRecorder<CSelChangedUndoEvent> recorder;
    if (IsOnSelection(tool, point) || !recorder.CaptureBefore(tool)) {
        return;
    }
    SelectOnly(tool, ClickedNode(tool, point));
    if (recorder.RecordChange(tool) != Recorded::NoCapture) {
        tool.SyncAttributePanels();
    }
}

void context_menu::EnableContextMenu(CTool& tool, CMenu& menu, CPoint point) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return;
    }
    const MenuFacts facts = FindFacts(tool, canvas, point);
    for (const MenuRow& row : MenuTable) {
        EnableItem(menu, row, facts.Holds(row.rule));
    }
    if (facts.bArrange) {
        menu.EnableMenuItem(ArrangePosition, MF_BYPOSITION | MF_ENABLED);
    }
    if (facts.bAlign) {
        menu.EnableMenuItem(AlignPosition, MF_BYPOSITION | MF_ENABLED);
    }
}
