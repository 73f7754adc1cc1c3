// What the text engine and the effects make pictures of.
#pragma once

#include <windows.h>

#include "buffer/buffer_host.h"
#include "text/text_effect.h"

/// A 24-bit field of one colour in the mask's size; 0 when memory is out.
HBUF32 MakeFlatImage(const buffer_host::View& mask, COLORREF color);

/// A text with its effect.
struct EffectPicture {
    CBufferPtr image;
    CBufferPtr mask;
    POINT ptText{}; ///< where the text's own pixels start; as far from the other two edges
};

struct EffectColors {
    COLORREF text;
    COLORREF effect;
};

/// Draws the text of that coverage with the effect round it, whose reach goes by the font's size in pixels.
/// False when memory is out or the picture would be too large.
bool DrawTextEffect(TextEffect effect, const EffectColors& colors, const buffer_host::View& text,
                    int nFontSize, EffectPicture& picture);
