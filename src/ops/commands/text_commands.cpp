// The commands on text objects that the context menu offers.
#include <memory>

#include "frames/frame_place.h"
#include "host/document_service.h"
#include "host/kinds.h"
#include "host/panels.h"
#include "ops/bus.h"
#include "ops/refresh.h"
#include "text/object/text_attributes.h"
#include "tools/tool_core.h"

void CToolCore::m_fnEditTextAt(CPoint point) {
    CTextNode* const pText = AsText(ClickedNode(point));
    ITextAttributePanel* const pPanel =
        pText ? bus::FindService<ITextAttributePanel>(*this, kind::TextPage) : nullptr;
    if (!pPanel) {
        return;
    }
    pPanel->SelectPage(0);
    CListenerObject* const pTool = CurrentTool();
    if (IToolObjectOps* pOps = bus::Query<IToolObjectOps>(pTool)) {
        pOps->HookNode(pText);
    }
    if (ITextEditEntry* pEntry = bus::Query<ITextEditEntry>(pTool)) {
        pEntry->EditTextNode(pText, &point);
    }
}

void CToolCore::m_fnRemoveTextEffect(CPoint point) {
    CCanvas canvas(*this);
    CImgNode* const pNode = canvas ? ClickedNode(point) : nullptr;
    if (!pNode || !canvas.IsSelected(pNode)) {
        return;
    }
    CWaitCursor wait;
    CRefresh refresh;
    CNodeRefList nodes;
    m_fnCopySelection(canvas, nodes);
    for (POSITION position = nodes.GetHeadPosition(); position;) {
        CTextNode* const pText = AsText(nodes.GetNext(position));
        if (pText && !TextOf(*pText).IsEmpty() && !RemoveEffect(*pText, refresh)) {
            return;
        }
    }
    refresh.FlushMarkRepaint(canvas.View(), *this);
    NotifyChangedThenRedrawn(*this);
}

// False when a step fails: what was done up to there stays.
bool CToolCore::RemoveEffect(CTextNode& node, CRefresh& refresh) {
    const CPoint ptMiddle = node.m_fnGetBoundRectWithFrame().CenterPoint();
    AddMarkArea(&node, refresh);
    const std::unique_ptr<CTextNode> pPlain(m_fnCreateTextLike(node));
    if (!pPlain) {
        return false;
    }
    const bool bShadow = node.m_pShadowNode != nullptr;
    const CShadowParam shadow = node.m_shadow;
    m_fnRemoveShadowOf(&node);
    MoveCornerTo(*pPlain, CornerOf(node));
    const DisplayValues display = DisplayValuesOf(node);
    const FrameLink frame = FrameLinkOf(node);
    node.m_fnMoveMemberDataFrom(pPlain.get());
    node.m_shadow = shadow;
    RestoreFrameLink(node, frame);
    CenterFrame(node);
    if (!SetDisplayValues(node, display) || (bShadow && !m_fnCreateShadow(&node, shadow))) {
        return false;
    }
    m_fnOffsetObject(&node, ptMiddle - node.m_fnGetBoundRectWithFrame().CenterPoint());
    KeepNodeInView(&node);
    AddMarkArea(&node, refresh);
    return true;
}
