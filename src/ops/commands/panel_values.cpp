#include "ops/commands/panel_values.h"

#include "host/panels.h"
#include "host/text_node.h"
#include "ops/bus.h"
#include "ops/nodes.h"
#include "ops/saturate.h"
#include "ops/shared_value.h"
#include "text/editor/inplace_editor.h"
#include "text/object/text_attributes.h"

namespace {

constexpr int MixedSize = -1;
constexpr int MixedDisplay = -1;
constexpr int MixedOffset = -99999;
constexpr int MixedSoftness = -1;
constexpr int MixedTransparency = -1;
constexpr COLORREF MixedColor = 0x808080;

/// What the selected texts have in common.
struct TextValues {
    CSharedValue<CString> fontName;
    CSharedValue<int> size;
    CSharedValue<int> alignment;
    CSharedValue<COLORREF> color;
    int nStyle = text_style::Bold | text_style::Italic | text_style::Underline;

    void Add(const CTextNode& node) {
        fontName.Add(node.m_strFontName);
        size.Add(CInplaceEditor::m_fnConvertFontPixelToNearestPoint(node.m_nFontSize));
        alignment.Add(AlignmentIndexOf(node));
        color.Add(node.m_crText);
        nStyle &= StyleBitsOf(node);
    }
};

/// What the selected shadows have in common, and how many objects have one.
struct ShadowValues {
    CSharedValue<double> x;
    CSharedValue<double> y;
    CSharedValue<double> softness;
    CSharedValue<int> transparency;
    CSharedValue<COLORREF> color;
    int nShadowed = 0;

    void Add(const CImgNode& node) {
        if (!node.m_pShadowNode) {
            return;
        }
        ++nShadowed;
        x.Add(node.m_shadow.dOffsetX);
        y.Add(node.m_shadow.dOffsetY);
        softness.Add(node.m_shadow.dSoftness);
        transparency.Add(node.m_shadow.nTransparency);
        color.Add(node.m_shadow.crColor);
    }
};

template <class TValues>
TValues Gather(const CImgNodeList& selection) {
    TValues values;
    for (const CImgNode* pNode : Each(selection)) {
        values.Add(*pNode);
    }
    return values;
}

bool HasRemovableFrame(const CImgNode& node) { return node.m_pFrameNode && node.m_nFrameFollows == 0; }

} // namespace

bool panel_values::ShowText(CListenerObject& page, const CImgNodeList& selection) {
    ITextAttributePanel* pPanel = bus::Query<ITextAttributePanel>(&page);
    if (!pPanel) {
        return false;
    }
    TextValues values;
    for (const CImgNode* pNode : Each(selection)) {
        if (pNode->m_nType == node_type::Text) {
            values.Add(*static_cast<const CTextNode*>(pNode));
        }
    }
    const CString strFontName = values.fontName.Or(CString());
    pPanel->ShowAttributes(&strFontName, values.size.Or(MixedSize), values.alignment.Or(text_align::Mixed),
                           values.nStyle, values.color.Or(MixedColor), values.color.IsMixed() ? 1 : 0, 0);
    return true;
}

void panel_values::ShowDisplay(CListenerObject& page, const CImgNodeList& selection) {
    IDisplayPanel* pPanel = bus::Query<IDisplayPanel>(&page);
    if (!pPanel) {
        return;
    }
    CSharedValue<int> brightness;
    CSharedValue<int> contrast;
    CSharedValue<int> transparency;
    for (const CImgNode* pNode : Each(selection)) {
        brightness.Add(pNode->m_nBrightness);
        contrast.Add(pNode->m_nContrast);
        transparency.Add(pNode->m_nTransparency);
        pPanel->ShowDisplay(brightness.Or(MixedDisplay), contrast.Or(MixedDisplay),
                            transparency.Or(MixedDisplay), 0);
    }
}

void panel_values::ShowShadow(CListenerObject& page, const CImgNodeList& selection) {
    IShadowPanel* pPanel = bus::Query<IShadowPanel>(&page);
    if (!pPanel) {
        return;
    }
    const ShadowValues values = Gather<ShadowValues>(selection);
    if (values.nShadowed == 0) {
        pPanel->SetHasShadow(0, 0);
        pPanel->ShowNone();
        return;
    }
    if (values.nShadowed < selection.GetCount()) {
        pPanel->SetHasShadow(0, 0);
        return;
    }
    pPanel->SetHasShadow(1, 0);
    COLORREF crColor = values.color.Or(MixedColor);
    pPanel->ShowShadow(values.x.Or(MixedOffset), values.y.Or(MixedOffset), &crColor,
                       values.softness.Or(MixedSoftness), values.transparency.Or(MixedTransparency),
                       values.color.IsMixed() ? 1 : 0, 0);
}

bool panel_values::ShowFrame(CListenerObject& page, const CImgNodeList& selection) {
    IFramePanel* pPanel = bus::Query<IFramePanel>(&page);
    if (!pPanel) {
        return false;
    }
    bool bRemovable = false;
    for (const CImgNode* pNode : Each(selection)) {
        bRemovable = bRemovable || HasRemovableFrame(*pNode);
    }
    pPanel->SetRemovable(bRemovable ? 1 : 0);
    return true;
}
