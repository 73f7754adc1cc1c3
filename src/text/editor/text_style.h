// Style bits and alignment indices of text attributes.
#pragma once

#include "host/text_node.h"

namespace text_style {
inline constexpr int Bold = 1;
inline constexpr int Italic = 2;
inline constexpr int Underline = 4;
} // namespace text_style

namespace text_align {
inline constexpr int Left = 0;
inline constexpr int Center = 1;
inline constexpr int Right = 2;
inline constexpr int Mixed = 3; ///< shown when the selected objects differ
} // namespace text_align

/// Any index but centre and right counts as left.
constexpr int KnownAlignment(int nIndex) {
    return nIndex == text_align::Center || nIndex == text_align::Right ? nIndex : text_align::Left;
}

constexpr int AlignmentCodeOf(int nIndex) {
    switch (nIndex) {
    case text_align::Center: return text_align_code::Center;
    case text_align::Right: return text_align_code::Right;
    default: return text_align_code::Left;
    }
}
