// The text object of the image engine.
#pragma once

#include "host/img_node.h"

class textObject;

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

    /// Takes the rendered text over: its buffers and attributes; the object is left empty. The node's effect
    /// goes.
    void m_fnAssign(textObject& object);
    /// Moves everything of the other node into this one: picture, text, effect, position, display values,
    /// links, rectangles and shadow parameters. Identity and place in the lists stay; buffers that this node
    /// had are freed and the source is left without a picture and links.
    void m_fnMoveMemberDataFrom(CTextNode* pOther);

    /// Takes over the kind and colour of the other node's effect; nothing is drawn yet. Answers 1, or 0 for
    /// null.
    int m_fnCopyTextEffectFrom(const CTextNode* pOther);
    /// Gives the effect another colour; nothing is drawn yet. Answers 1, or 0 for null.
    int m_fnChangeTextEffectColor(const COLORREF* pcrColor);
    /// Draws the text anew with its effect, which may change the node's size; the text's own pixels stay
    /// where they are. Answers 1, also without an effect, or 0 when memory is out.
    int m_fnRegenerateTextEffect();
    /// 1 when the node has an effect, else 0.
    int m_fnIsTextEffectApplied() const;

    std::int32_t m_nFontSize = 0; ///< pixels at full view scale
    std::int32_t m_nBold = 0;     ///< 1 on, 0 off; so the next two
    std::int32_t m_nItalic = 0;
    std::int32_t m_nUnderline = 0;
    std::int32_t m_nAlignment = text_align_code::Left; ///< one of text_align_code
    COLORREF m_crText = 0;
    CString m_strText;
    CString m_strFontName;

  private:
    friend struct CTextEffectState;

    std::int32_t m_nEffect = 0; ///< the host's number of the effect's kind, 0 for none
    COLORREF m_crEffect = 0;
    HBUF32 m_hTextMask = 0; ///< owned; the text's own coverage, 0 while the picture shows nothing else
    CPoint m_ptText;        ///< where that stands, in pixels of the picture as it was before any scaling
};
