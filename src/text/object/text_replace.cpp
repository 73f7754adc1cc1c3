#include "text/object/text_replace.h"

#include "ops/canvas.h"
#include "ops/groups.h"
#include "ops/refresh.h"
#include "shadows/shadow_build.h"
#include "text/object/text_build.h"
#include "text/object/text_place.h"

namespace {

// A companion is never replaced.
bool IsReplaceable(CTextNode* pNode) { return AsText(pNode) && !pNode->m_pOwner; }

void CenterOn(CImgNode& node, CImgNode& other) {
    CRect rc;
    other.GetBoundRect(&rc);
    node.Move((rc.Width() - node.m_tx.nWidth) / 2 - node.m_tx.nX + rc.left,
              (rc.Height() - node.m_tx.nHeight) / 2 - node.m_tx.nY + rc.top);
}

void ShowReplaced(CTool& tool, const CRefresh& refresh, int nRedraw) {
    const CCanvas canvas(tool);
    if (nRedraw != 1) {
        refresh.FlushRepaint(canvas);
    } else if (canvas) {
        refresh.FlushMarkRepaint(canvas, tool);
        canvas.View().RepaintViewRect(canvas.ClientRect(), 1);
    }
}

// It was shown round the old text's middle, which is repainted here: callers know its last place alone.
void MoveRebuilt(CTool& tool, CTextNode& node, CPoint ptCorner) {
    CRefresh refresh;
    refresh.Add(MarkArea(tool, &node));
    MoveGroup(node, ptCorner - node.m_fnGetBoundRectWithFrame().TopLeft());
    refresh.FlushRepaint(CCanvas(tool));
}

bool ReplaceAtSize(CTool& tool, CTextNode& text, int nPixelSize) {
    TextAttributes attributes;
    if (!ReadAttributes(text, attributes)) {
        return false;
    }
    attributes.nPixelSize = nPixelSize;
    std::unique_ptr<CTextNode> pRebuilt =
        BuildTextLike(tool, text, TextOf(text), attributes, {Effect::Same, Width::AsDrawn, Display::Taken});
    if (!pRebuilt || !tool.ReplaceTextNode(&text, pRebuilt.get(), 0)) {
        return false;
    }
    pRebuilt.release();
    return true;
}

} // namespace

int RebuildTextAtSize(CTool& tool, CImgNode* pNode, int nPixelSize, const CPoint* pptCorner) {
    CTextNode* const pText = AsText(pNode);
    if (!pText) {
        return 0;
    }
    if (pText->m_nFontSize == nPixelSize) {
        return 1;
    }
    CWaitCursor wait;
    const CShadowParam shadow = pText->m_shadow;
    if (!ReplaceAtSize(tool, *pText, nPixelSize)) {
        return 0;
    }
    if (pptCorner) {
        MoveRebuilt(tool, *pText, *pptCorner);
    }
    if (pText->m_pShadowNode) {
        pText->m_shadow = shadow;
        RegenerateShadow(tool, pText);
    }
    return 1;
}

int text_objects::ReplaceTextNode(CTool& tool, CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) {
    if (!IsReplaceable(pOld) || !IsReplaceable(pRebuilt) || pOld == pRebuilt) {
        return 0;
    }
    CRefresh refresh;
    refresh.Add(MarkArea(tool, pOld));
    CenterOn(*pRebuilt, *pOld);
    pRebuilt->m_rcFrame = pOld->m_rcFrame;
    pRebuilt->m_rcPlaceHolder = pOld->m_rcPlaceHolder;
    TakePlace(tool, *pOld, *pRebuilt, {FrameRule::Centered, ShadowRule::Rebuilt, DisplayRule::FromRebuilt});
    delete pRebuilt;
    tool.KeepNodeInView(pOld);
    refresh.Add(MarkArea(tool, pOld));
    ShowReplaced(tool, refresh, nRedraw);
    return 1;
}

int text_objects::RebuildTextNodeInPlace(CTool& tool, CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) {
    if (!IsReplaceable(pOld) || !IsReplaceable(pRebuilt)) {
        return 0;
    }
    if (SizeOf(*pOld) != SizeOf(*pRebuilt)) {
        const std::unique_ptr<CTextNode> pFresh = BuildPlainText(tool, *pRebuilt);
        if (!pFresh) {
            return 0;
        }
        KeepWidth(*pRebuilt, SizeOf(*pFresh));
    }
    return tool.ReplaceTextNode(pOld, pRebuilt, nRedraw);
}

CTextNode* text_objects::RecolorTextNode(CTool& tool, CTextNode* pNode, COLORREF crColor) {
    TextAttributes attributes;
    if (!AsText(pNode) || pNode->m_crText == crColor || TextOf(*pNode).IsEmpty() ||
        !ReadAttributes(*pNode, attributes)) {
        return nullptr;
    }
    attributes.crText = crColor;
    std::unique_ptr<CTextNode> pRebuilt = BuildTextLike(tool, *pNode, TextOf(*pNode), attributes,
                                                        {Effect::Same, Width::AsDrawn, Display::Required});
    if (!pRebuilt || !tool.RebuildTextNodeInPlace(pNode, pRebuilt.get(), 1)) {
        return nullptr;
    }
    pRebuilt.release();
    return pNode;
}
