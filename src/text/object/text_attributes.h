// A text with its attributes, as text objects are rebuilt from them.
#pragma once

#include <afxwin.h>

#include "host/text_node.h"
#include "ops/display_values.h"
#include "text/editor/text_style.h"

/// Size in pixels at full view scale, alignment an index, style the bits of text_style.
struct TextAttributes {
    CString strFontName;
    int nPixelSize = 0;
    int nAlignment = text_align::Left;
    int nStyle = 0;
    COLORREF crText = 0;
};

/// Any code that is neither right nor centre counts as left.
inline int AlignmentIndexOf(const CTextNode& node) {
    switch (node.m_nAlignment) {
    case text_align_code::Right: return text_align::Right;
    case text_align_code::Center: return text_align::Center;
    default: return text_align::Left;
    }
}

inline int StyleBitsOf(const CTextNode& node) {
    return (node.m_nBold == 1 ? text_style::Bold : 0) | (node.m_nItalic == 1 ? text_style::Italic : 0) |
           (node.m_nUnderline == 1 ? text_style::Underline : 0);
}

/// The node as a text object; null when it is none.
CTextNode* AsText(CImgNode* pNode);
CString TextOf(const CTextNode& node);
/// Reads the face name. False, the name being empty, when it cannot be read.
bool ReadFontName(const CTextNode& node, CString& strName);
/// What the object was made from. False when its font name cannot be read.
bool ReadAttributes(const CTextNode& node, TextAttributes& attributes);

CSize SizeOf(const CImgNode& node);
CPoint CornerOf(const CImgNode& node);
/// Moves the node alone so that its top-left is at the point (document units).
void MoveCornerTo(CImgNode& node, CPoint ptCorner);
/// Brings the width back to what it was before an effect was drawn, the height scaling with it. Nothing when
/// the size is the same or a width is 0.
void KeepWidth(CImgNode& node, CSize before);
/// Takes over the other's effect and draws it; the width stays what it was.
void CopyEffect(CTextNode& node, const CTextNode& other);
