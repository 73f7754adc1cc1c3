#include "richedit/char_format.h"

#include <cstring>

namespace win32 {

// An effect has the same bit in mask and effects; that of the automatic colour is the colour's.
constexpr DWORD EffectBits =
    CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE | CFM_STRIKEOUT | CFM_PROTECTED | CFM_COLOR;
static_assert(CFE_AUTOCOLOR == CFM_COLOR);

constexpr LONG FirstHeight = 200; // Twips: 10 points.

CHARFORMATA FirstFormat() {
    CHARFORMATA format = {};
    format.cbSize = sizeof format;
    format.dwMask = WholeFormat;
    format.dwEffects = CFE_AUTOCOLOR;
    format.yHeight = FirstHeight;
    std::strcpy(format.szFaceName, "Arial");
    return format;
}

namespace {

void CopyFace(CHARFORMATA& to, const CHARFORMATA& from) {
    const size_t length = strnlen(from.szFaceName, sizeof from.szFaceName - 1);
    std::memset(to.szFaceName, 0, sizeof to.szFaceName);
    std::memcpy(to.szFaceName, from.szFaceName, length);
    to.bPitchAndFamily = from.bPitchAndFamily;
}

} // namespace

void ApplyFormat(CHARFORMATA& format, const CHARFORMATA& change) {
    const DWORD effects = change.dwMask & EffectBits;
    format.dwEffects = (format.dwEffects & ~effects) | (change.dwEffects & effects);
    if (change.dwMask & CFM_SIZE) {
        format.yHeight = change.yHeight;
    }
    if (change.dwMask & CFM_OFFSET) {
        format.yOffset = change.yOffset;
    }
    if (change.dwMask & CFM_COLOR) {
        format.crTextColor = change.crTextColor;
    }
    if (change.dwMask & CFM_CHARSET) {
        format.bCharSet = change.bCharSet;
    }
    if (change.dwMask & CFM_FACE) {
        CopyFace(format, change);
    }
}

DWORD FormatDifference(const CHARFORMATA& a, const CHARFORMATA& b) {
    const bool sameFace =
        a.bPitchAndFamily == b.bPitchAndFamily && std::strcmp(a.szFaceName, b.szFaceName) == 0;
    return ((a.dwEffects ^ b.dwEffects) & EffectBits) | (a.yHeight != b.yHeight ? CFM_SIZE : 0) |
           (a.yOffset != b.yOffset ? CFM_OFFSET : 0) | (a.crTextColor != b.crTextColor ? CFM_COLOR : 0) |
           (a.bCharSet != b.bCharSet ? CFM_CHARSET : 0) | (sameFace ? 0 : CFM_FACE);
}

} // namespace win32
