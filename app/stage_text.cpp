#include "stage.h"

#include <memory>

#include "host/text_node.h"
#include "image/node_host.h"

namespace {

constexpr COLORREF EffectColor = RGB(0, 0, 0);

CString ToCString(const std::string& bytes) { return {bytes.data(), static_cast<int>(bytes.size())}; }

bool GiveEffect(CTextNode& node, TextEffect effect) {
    if (effect == TextEffect::None) {
        return true;
    }
    CTextEffectState::Set(node, effect, EffectColor);
    return node.m_fnRegenerateTextEffect() != 0;
}

void StandInFor(CImgNodeList& list, const CImgNode* pNode, CImgNode* pOther) {
    if (POSITION position = list.Find(pNode)) {
        list.InsertAfter(position, pOther);
    }
}

/// One of the current tool's setters; 0 when it has no text attributes.
template <class Value>
int Set(const CStage& stage, int (ITextAttributeTarget::*pfnSet)(Value), std::type_identity_t<Value> value) {
    ITextAttributeTarget* pTarget = stage.ToolInterface<ITextAttributeTarget>();
    return pTarget ? (pTarget->*pfnSet)(value) : 0;
}

} // namespace

void CStage::Adopt(CImgNode* pNode) {
    if (pNode && !CNodeBookkeeping::DocumentOf(*pNode)) {
        CNodeBookkeeping::Register(*pNode, m_desk.Document());
    }
}

// The module's own kind of text object cannot outlive its code. Identity, name and places stay.
void CStage::TakeTextsOver() {
    CVorDoc& doc = *m_desk.Document();
    m_names.NameNewNodes();
    for (CImgNode* pNode : CNodeBookkeeping::NodesById(doc)) {
        if (pNode->m_nType != node_type::Text) {
            continue;
        }
        const std::uint32_t nId = pNode->m_nId;
        auto* pOwn = new CTextNode(&doc);
        if (pOwn) {
            StandInFor(*doc.GetObjList(), pNode, pOwn);
            StandInFor(*doc.GetActList(), pNode, pOwn);
            pOwn->m_fnMoveMemberDataFrom(static_cast<CTextNode*>(pNode));
        }
        delete pNode;
        if (pOwn) {
            pOwn->m_nId = nId;
        }
    }
}

CTextNode* CStage::MakeText(const std::string& text, const TextOptions& options) {
    const std::vector<CListenerObject*>& tools = m_desk.Tools();
    CListenerObject* pTool = CurrentTool() || tools.empty() ? CurrentTool() : tools.front();
    IToolObjectOps* pOps = CDesk::Query<IToolObjectOps>(pTool);
    CTextNode* pNode = pOps ? pOps->CreateTextNode(ToCString(text), ToCString(options.font), options.color,
                                                   options.pixels, options.alignment, options.style)
                            : nullptr;
    Adopt(pNode);
    return pNode;
}

CImgNode* CStage::AddText(const std::string& name, const std::string& text, int nX, int nY,
                          const TextOptions& options) {
    trace::CQuietScope quiet;
    std::unique_ptr<CTextNode> pNode(MakeText(text, options));
    if (!pNode || !GiveEffect(*pNode, options.effect)) {
        return nullptr;
    }
    pNode->Move(nX - pNode->m_tx.nX, nY - pNode->m_tx.nY);
    if (options.offPage) {
        m_names.Give(name, pNode.get());
        return pNode.release();
    }
    return PlaceNode(name, pNode.release());
}

int CStage::SetTextFont(const std::string& name) {
    return Set(*this, &ITextAttributeTarget::SetFontName, ToCString(name));
}

int CStage::SetTextSize(int nPoints) { return Set(*this, &ITextAttributeTarget::SetFontSize, nPoints); }

int CStage::SetTextAlignment(int nIndex) { return Set(*this, &ITextAttributeTarget::SetAlignment, nIndex); }

int CStage::SetTextStyle(int nBits) { return Set(*this, &ITextAttributeTarget::SetStyle, nBits); }

int CStage::SetTextColor(COLORREF crText) { return Set(*this, &ITextAttributeTarget::SetColor, crText); }

int CStage::EditText(const std::string& name, CPoint point) {
    ITextEditEntry* pEntry = ToolInterface<ITextEditEntry>();
    return pEntry ? pEntry->EditTextNode(Node(name), &point) : 0;
}
