#include "ops/commands/objects.h"

#include "host/panels.h"
#include "ops/canvas.h"
#include "ops/current_tool.h"
#include "ops/groups.h"
#include "ops/hit_test.h"
#include "ops/nodes.h"
#include "ops/object_clipboard.h"
#include "ops/objects/offset.h"
#include "ops/refresh.h"
#include "ops/selection.h"
#include "shadows/shadow_build.h"
#include "text/object/text_build.h"
#include "text/object/text_place.h"

namespace {

// False when a step fails: what was done up to there stays.
bool RemoveEffect(CTool& tool, CTextNode& text, CRefresh& area) {
    const CPoint ptMiddle = text.m_fnGetBoundRectWithFrame().CenterPoint();
    area.Add(MarkArea(tool, &text));
    const std::unique_ptr<CTextNode> pPlain = BuildPlainText(tool, text);
    if (!pPlain) {
        return false;
    }
    MoveCornerTo(*pPlain, CornerOf(text));
    if (!TakePlace(tool, text, *pPlain, {FrameRule::Centered, ShadowRule::Rebuilt, DisplayRule::Kept})) {
        return false;
    }
    OffsetObject(&text, ptMiddle - text.m_fnGetBoundRectWithFrame().CenterPoint());
    tool.KeepNodeInView(&text);
    area.Add(MarkArea(tool, &text));
    return true;
}

bool RemoveEffects(CTool& tool, const CNodeRefList& nodes, CRefresh& area) {
    for (CImgNode* pNode : Each(nodes)) {
        CTextNode* const pText = AsText(pNode);
        if (pText && !TextOf(*pText).IsEmpty() && !RemoveEffect(tool, *pText, area)) {
            return false;
        }
    }
    return true;
}

} // namespace

int commands::Copy(CTool& tool, CPoint point) {
    IObjectClipboard* pClipboard = FindClipboard(tool);
    return pClipboard ? pClipboard->Copy(point) : 0;
}

int commands::Paste(CTool& tool, CPoint point, int nFlag) {
    IObjectClipboard* pClipboard = FindClipboard(tool);
    return pClipboard ? pClipboard->Paste(point, nFlag) : 0;
}

void commands::Delete(CTool& tool) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return;
    }
    CRefresh refresh;
    refresh.Add(SelectionOutlineRect(tool));
    CNodeRefList selected;
    CopyList(canvas.Selection(), selected);
    for (CImgNode* pNode : Each(selected)) {
        if (!pNode->m_pOwner) {
            TakeGroupOut(canvas.Objects(), *pNode);
            Deselect(canvas, pNode);
        }
    }
    refresh.FlushMarkRepaint(canvas, tool);
    if (IPropertyArea* pArea = bus::FindService<IPropertyArea>(tool, kind::PropertyArea)) {
        pArea->OnObjectsChanged(1);
        NotifyChangedThenRedrawn(tool);
    }
}

void commands::RemoveShadows(CTool& tool) {
    const CCanvas canvas(tool);
    if (!canvas) {
        return;
    }
    CTouchedArea area(tool);
    CNodeRefList nodes;
    CopyList(canvas.Selection(), nodes);
    for (CImgNode* pNode : Each(nodes)) {
        RemoveShadow(tool, pNode);
    }
    area.After().FlushMarkRepaint(canvas, tool);
    NotifyChangedThenRedrawn(tool);
}

void commands::EditTextAt(CTool& tool, CPoint point) {
    CTextNode* const pText = AsText(ClickedNode(tool, point));
    ITextAttributePanel* const pPanel =
        pText ? bus::FindService<ITextAttributePanel>(tool, kind::TextPage) : nullptr;
    if (!pPanel) {
        return;
    }
    pPanel->SelectPage(0);
    CListenerObject* const pCurrent = CurrentTool(tool);
    if (IToolObjectOps* pOps = bus::Query<IToolObjectOps>(pCurrent)) {
        pOps->HookNode(pText);
    }
    if (ITextEditEntry* pEntry = bus::Query<ITextEditEntry>(pCurrent)) {
        pEntry->EditTextNode(pText, &point);
    }
}

void commands::RemoveTextEffect(CTool& tool, CPoint point) {
    const CCanvas canvas(tool);
    CImgNode* const pNode = canvas ? ClickedNode(tool, point) : nullptr;
    if (!pNode || !canvas.IsSelected(pNode)) {
        return;
    }
    CWaitCursor wait;
    CRefresh refresh;
    CNodeRefList nodes;
    CopyList(canvas.Selection(), nodes);
    if (RemoveEffects(tool, nodes, refresh)) {
        refresh.FlushMarkRepaint(canvas, tool);
        NotifyChangedThenRedrawn(tool);
    }
}
