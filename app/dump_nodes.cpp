#include "dump_nodes.h"

#include <cmath>

#include "code_page.h"
#include "host/text_node.h"
#include "image/node_host.h"
#include "text/text_effect.h"

namespace {

const char* TypeName(int nType) {
    switch (nType) {
    case node_type::Picture: return "picture";
    case node_type::Text: return "text";
    case node_type::Frame: return "frame";
    case node_type::Shadow: return "shadow";
    default: return "unknown";
    }
}

/// A number without its fraction when that is nothing.
Json NumberJson(double dValue) {
    const bool bWhole = dValue == std::trunc(dValue) && std::abs(dValue) < 1e15;
    return bWhole ? Json(static_cast<long long>(dValue)) : Json(dValue);
}

Json RectOrNull(const CRect& rect) { return rect.IsRectNull() ? Json(nullptr) : RectJson(rect); }

bool HasShadowParams(const CImgNode& node) {
    const CShadowParam& shadow = node.m_shadow;
    return node.m_pShadowNode || shadow.dOffsetX != 0.0 || shadow.dOffsetY != 0.0 ||
           shadow.dSoftness != 0.0 || shadow.nTransparency != 0 || shadow.crColor != 0;
}

Json ShadowJson(const CImgNode& node) {
    if (!HasShadowParams(node)) {
        return nullptr;
    }
    const CShadowParam& shadow = node.m_shadow;
    return {{"dx", NumberJson(shadow.dOffsetX)},
            {"dy", NumberJson(shadow.dOffsetY)},
            {"softness", NumberJson(shadow.dSoftness)},
            {"transparency", shadow.nTransparency},
            {"color", ColorText(shadow.crColor)}};
}

const char* EffectName(TextEffect effect) {
    switch (effect) {
    case TextEffect::Outline: return "outline";
    case TextEffect::Glow: return "glow";
    case TextEffect::Emboss: return "emboss";
    default: return nullptr;
    }
}

Json EffectJson(const CTextNode& text) {
    const char* pszName = EffectName(CTextEffectState::KindOf(text));
    return pszName ? Json(pszName) : Json(nullptr);
}

Json TextJson(const CImgNode& node) {
    if (node.m_nType != node_type::Text) {
        return nullptr;
    }
    const auto& text = static_cast<const CTextNode&>(node);
    CString strText;
    text.m_fnGetText(strText);
    return {{"text", ToUtf8(static_cast<LPCSTR>(strText))},
            {"font", ToUtf8(static_cast<LPCSTR>(text.m_strFontName))},
            {"px", text.m_nFontSize},
            {"align", text.m_nAlignment},
            {"bold", text.m_nBold},
            {"italic", text.m_nItalic},
            {"underline", text.m_nUnderline},
            {"color", ColorText(text.m_crText)},
            {"effect", EffectJson(text)}};
}

Json NodeJson(CStage& stage, CImgNode& node) {
    CRect rcBound;
    node.GetBoundRect(&rcBound);
    return {{"id", node.m_nId},
            {"name", NameJson(stage, &node)},
            {"type", TypeName(node.m_nType)},
            {"owner", NameJson(stage, CNodeBookkeeping::LiveOwner(node))},
            {"rect", RectJson(rcBound)},
            {"brightness", node.m_nBrightness},
            {"contrast", node.m_nContrast},
            {"transparency", node.m_nTransparency},
            {"frame", NameJson(stage, CNodeBookkeeping::LiveFrame(node))},
            {"shadow", NameJson(stage, CNodeBookkeeping::LiveShadow(node))},
            {"frameRect", RectOrNull(node.m_rcFrame)},
            {"placeholderRect", RectOrNull(node.m_rcPlaceHolder)},
            {"frameFollows", node.m_nFrameFollows},
            {"shadowParams", ShadowJson(node)},
            {"text", TextJson(node)}};
}

} // namespace

Json NameJson(CStage& stage, const CImgNode* pNode) {
    return CNodeBookkeeping::IsLive(pNode) ? Json(ToUtf8(stage.Names().Of(pNode))) : Json(nullptr);
}

Json RectJson(const RECT& rect) { return Json::array({rect.left, rect.top, rect.right, rect.bottom}); }

Json PageJson(CStage& stage) {
    stage.Names().NameNewNodes();
    CVorDoc& doc = *stage.Desk().Document();
    Json nodes = Json::array();
    const CImgNodeList& list = *doc.GetObjList();
    for (POSITION pos = list.GetHeadPosition(); pos;) {
        nodes.push_back(NodeJson(stage, *list.GetNext(pos)));
    }
    return {{"width", doc.PageWidth()},
            {"height", doc.PageHeight()},
            {"modified", doc.IsModified() != FALSE},
            {"nodes", std::move(nodes)}};
}

Json NodesJson(CStage& stage) {
    stage.Names().NameNewNodes();
    Json nodes = Json::array();
    for (CImgNode* pNode : CNodeBookkeeping::NodesById(*stage.Desk().Document())) {
        nodes.push_back(NodeJson(stage, *pNode));
    }
    return nodes;
}
