// The text object of the image engine.
#pragma once

#include "host/img_node.h"

/// Alignment codes stored in a text object.
namespace text_align_code {
inline constexpr int Left = 1000;
inline constexpr int Right = 1001;
inline constexpr int Center = 1002;
} // namespace text_align_code

/// A node whose picture was made by the text engine. Its hit test is its box: gaps between letters hit.
class CTextNode : public CImgNode {
  public:
    explicit CTextNode(CImgDoc* pDoc);
    ~CTextNode() override;

    int PtInMask(CPoint point) override;
    CImgNode* Duplicate() override;
    CImgNode* m_fnDuplicateImageNode() override;

    /// The text, lines joined by "\n".
    void m_fnGetText(CString& strText) const;
    /// A newly allocated copy of the face name, to be freed with `delete[]`; null when memory is out.
    char* CloneFontName() const;

    std::int32_t m_nFontSize = 0; ///< pixels at full view scale
    std::int32_t m_nBold = 0;     ///< 1 on, 0 off; so the next two
    std::int32_t m_nItalic = 0;
    std::int32_t m_nUnderline = 0;
    std::int32_t m_nAlignment = text_align_code::Left; ///< one of text_align_code
    COLORREF m_crText = 0;
    CString m_strText;
    CString m_strFontName;
};
