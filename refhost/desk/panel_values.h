// What the host's pages answer when the tools ask them.
#pragma once

#include <optional>
#include <string>

#include <windows.h>

struct PanelRange {
    int nMin;
    int nMax;
};

/// The values of the property pages and the object clipboard, as a person has set them. One set serves all
/// pages.
struct CPanelValues {
    /// Offsets allowed when no limit is set, in either direction, document units.
    static constexpr int NoLimit = 1'000'000'000;

    int nPageShown = 0;               ///< 2 is the shadow page
    std::optional<PanelRange> rangeX; ///< shadow offsets, document units; none is no limit
    std::optional<PanelRange> rangeY;
    bool bTextShadow = false; ///< new text gets the shadow below
    int nShadowX = 0;
    int nShadowY = 0;
    int nShadowSoftness = 0;
    int nShadowTransparency = 0;
    COLORREF crShadow = 0;
    int nTransparency = 0; ///< of new text
    std::string fontName = "Arial";
    int nFontPoints = 12;
    int nAlignment = 0; ///< index: 0 left, 1 centre, 2 right
    int nStyle = 0;     ///< bits: 1 bold, 2 italic, 4 underline
    COLORREF crText = RGB(255, 255, 255);
    int nSizeSnap = 0; ///< sizes are rounded down to its multiples; 0 leaves them
    bool bRealClipboard =
        false; ///< the object clipboard works; else it answers the following and copies nothing
    int nCanCopy = 1;
    int nCanPaste = 1;
    int nClipboardResult = 1; ///< what copying and pasting answer
};
