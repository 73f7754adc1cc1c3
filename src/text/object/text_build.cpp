#include "text/object/text_build.h"

namespace {

void TakeEffect(CTextNode& text, const CTextNode& like, const LookRule& rule) {
    if (rule.effect == Effect::None) {
        return;
    }
    const CSize before = SizeOf(text);
    text.m_fnCopyTextEffectFrom(&like);
    if (rule.effect == Effect::InTextColor) {
        text.m_fnChangeTextEffectColor(&text.m_crText);
    }
    text.m_fnRegenerateTextEffect();
    if (rule.width == Width::Kept) {
        KeepWidth(text, before);
    }
}

// False when display values that are required are refused.
bool TakeDisplay(CTextNode& text, const CTextNode& like, const LookRule& rule) {
    return rule.display == Display::None || CopyDisplayValues(text, like) || rule.display == Display::Taken;
}

} // namespace

std::unique_ptr<CTextNode> BuildText(CTool& tool, const CString& strText, const TextAttributes& attributes) {
    return std::unique_ptr<CTextNode>(tool.CreateTextNode(strText, attributes.strFontName, attributes.crText,
                                                          attributes.nPixelSize, attributes.nAlignment,
                                                          attributes.nStyle));
}

std::unique_ptr<CTextNode> BuildTextLike(CTool& tool, const CTextNode& like, const CString& strText,
                                         const TextAttributes& attributes, const LookRule& rule) {
    std::unique_ptr<CTextNode> pText = BuildText(tool, strText, attributes);
    if (!pText) {
        return nullptr;
    }
    TakeEffect(*pText, like, rule);
    return TakeDisplay(*pText, like, rule) ? std::move(pText) : nullptr;
}

std::unique_ptr<CTextNode> BuildPlainText(CTool& tool, const CTextNode& like) {
    return BuildPlainText(tool, like, TextOf(like));
}

std::unique_ptr<CTextNode> BuildPlainText(CTool& tool, const CTextNode& like, const CString& strText) {
    TextAttributes attributes;
    return ReadAttributes(like, attributes) ? BuildText(tool, strText, attributes) : nullptr;
}
