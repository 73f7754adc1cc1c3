#include "desk/page_parts.h"

#include <algorithm>

#include "host/kinds.h"

namespace {

constexpr int MixedSize = -1;
constexpr int MixedAlignment = 3;

template <class Out, class Value>
void Put(Out* pOut, const Value& value) {
    if (pOut) {
        *pOut = static_cast<Out>(value);
    }
}

} // namespace

int CObjectPagePart::SelectPage(int nPage) {
    m_recorder.Told(IObjectPage::Id, 1, {nPage});
    m_recorder.PageSelected(kind::ObjectPage, nPage);
    return 1;
}

int CTextPagePart::SelectPage(int nPage) {
    m_recorder.Told(ITextAttributePanel::Id, 1, {nPage});
    m_recorder.PageSelected(kind::TextPage, nPage);
    return 1;
}

int CTextPagePart::ShowAttributes(const CString* pFontName, int nSize, int nAlignment, int nStyle,
                                  COLORREF crColor, int nColorMixed, int nReserved) {
    const std::string font = pFontName ? static_cast<LPCSTR>(*pFontName) : "";
    m_recorder.Told(ITextAttributePanel::Id, 3,
                    {font, nSize, nAlignment, nStyle, trace::Color{crColor}, nColorMixed, nReserved});
    CPanelValues& values = m_recorder.Values();
    if (!font.empty()) {
        values.fontName = font;
    }
    if (nSize != MixedSize) {
        values.nFontPoints = nSize;
    }
    if (nAlignment != MixedAlignment) {
        values.nAlignment = nAlignment;
    }
    values.nStyle = nStyle;
    if (!nColorMixed) {
        values.crText = crColor;
    }
    return 1;
}

int CTextPagePart::OnNewText() {
    m_recorder.Told(ITextAttributePanel::Id, 4, {});
    return 1;
}

int CTextPagePart::AdjustSize(int* pnSize) {
    if (!pnSize) {
        return 0;
    }
    m_recorder.Told(ITextAttributePanel::Id, 5, {*pnSize});
    const int nSnap = m_recorder.Values().nSizeSnap;
    if (nSnap > 0) {
        *pnSize = std::max(nSnap, *pnSize - *pnSize % nSnap);
    }
    return 1;
}

int CTextPagePart::GetAttributes(CString* pFontName, int* pnSize, int* pnAlignment, int* pnStyle,
                                 COLORREF* pcrColor) {
    const CPanelValues& values = m_recorder.Values();
    m_recorder.Told(
        ITextAttributePanel::Id, 6,
        {values.fontName, values.nFontPoints, values.nAlignment, values.nStyle, trace::Color{values.crText}});
    if (pFontName) {
        *pFontName = values.fontName.c_str();
    }
    Put(pnSize, values.nFontPoints);
    Put(pnAlignment, values.nAlignment);
    Put(pnStyle, values.nStyle);
    Put(pcrColor, values.crText);
    return 1;
}

int CTextPagePart::GetTransparency(std::int32_t* pnTransparency) {
    const int nTransparency = m_recorder.Values().nTransparency;
    m_recorder.Told(ITransparencyPanel::Id, 1, {nTransparency});
    Put(pnTransparency, nTransparency);
    return 1;
}

int CTextPagePart::IsEnabled(std::int32_t* pnEnabled, int nReserved) {
    const int nEnabled = m_recorder.Values().bTextShadow ? 1 : 0;
    m_recorder.Told(IShadowDefaults::Id, 1, {nEnabled, nReserved});
    Put(pnEnabled, nEnabled);
    return 1;
}

int CTextPagePart::GetShadow(std::int32_t* pnX, std::int32_t* pnY, COLORREF* pcrColor,
                             std::int32_t* pnSoftness, std::int32_t* pnTransparency, int nReserved) {
    const CPanelValues& values = m_recorder.Values();
    m_recorder.Told(IShadowDefaults::Id, 2,
                    {values.nShadowX, values.nShadowY, trace::Color{values.crShadow}, values.nShadowSoftness,
                     values.nShadowTransparency, nReserved});
    Put(pnX, values.nShadowX);
    Put(pnY, values.nShadowY);
    Put(pcrColor, values.crShadow);
    Put(pnSoftness, values.nShadowSoftness);
    Put(pnTransparency, values.nShadowTransparency);
    return 1;
}
