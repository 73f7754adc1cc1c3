// What only some property pages offer: the object page's selector, and the text page's attributes.
#pragma once

#include "desk/page_recorder.h"
#include "host/panels.h"

class CObjectPagePart final : public IObjectPage {
  public:
    explicit CObjectPagePart(const CPageRecorder& recorder) : m_recorder(recorder) {}

    int SelectPage(int nPage) override;

  private:
    const CPageRecorder& m_recorder;
};

class CTextPagePart final : public ITextAttributePanel, public ITransparencyPanel, public IShadowDefaults {
  public:
    explicit CTextPagePart(const CPageRecorder& recorder) : m_recorder(recorder) {}

    int SelectPage(int nPage) override;
    int Reserved2() override { return 0; }
    /// Values on which the selected objects agree become the page's own.
    int ShowAttributes(const CString* pFontName, int nSize, int nAlignment, int nStyle, COLORREF crColor,
                       int nColorMixed, int nReserved) override;
    int OnNewText() override;
    int AdjustSize(int* pnSize) override;
    int GetAttributes(CString* pFontName, int* pnSize, int* pnAlignment, int* pnStyle,
                      COLORREF* pcrColor) override;

    int GetTransparency(std::int32_t* pnTransparency) override;

    int IsEnabled(std::int32_t* pnEnabled, int nReserved) override;
    int GetShadow(std::int32_t* pnX, std::int32_t* pnY, COLORREF* pcrColor, std::int32_t* pnSoftness,
                  std::int32_t* pnTransparency, int nReserved) override;

  private:
    const CPageRecorder& m_recorder;
};
