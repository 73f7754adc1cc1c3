#include <algorithm>
#include <cstring>
#include <utility>

#include "host/mask.h"
#include "text/text_picture.h"

namespace {

using buffer_host::Look;
using buffer_host::View;

/// How far the effects reach, as shares of the font's size.
constexpr int OutlineShare = 16;
constexpr int GlowShare = 5;
constexpr int EmbossShare = 20;

int Reach(TextEffect effect, int nFontSize) {
    switch (effect) {
    case TextEffect::Outline: return std::max(1, nFontSize / OutlineShare);
    case TextEffect::Glow: return std::max(2, nFontSize / GlowShare);
    case TextEffect::Emboss: return std::max(1, nFontSize / EmbossShare);
    default: return 0;
    }
}

/// An empty mask that is larger than the text's on all sides.
CBufferPtr WiderMask(const View& text, int nMargin) {
    HBUF32 hMask = 0;
    buf32Alloc(&hMask, 8, text.width + 2 * nMargin, text.height + 2 * nMargin, 1, nullptr);
    return CBufferPtr(hMask);
}

/// The stronger of what is there and the text, which is put at (nLeft, nTop).
void Stamp(const View& mask, const View& text, int nLeft, int nTop) {
    for (int y = 0; y < text.height; ++y) {
        const std::uint8_t* pIn = text.Row(y);
        std::uint8_t* pOut = mask.Row(y + nTop) + nLeft;
        for (int x = 0; x < text.width; ++x)
            pOut[x] = std::max(pOut[x], pIn[x]);
    }
}

/// The text spread over a disc.
void StampDisc(const View& mask, const View& text, int nMargin, int nRadius) {
    for (int dy = -nRadius; dy <= nRadius; ++dy) {
        for (int dx = -nRadius; dx <= nRadius; ++dx) {
            if (dx * dx + dy * dy <= nRadius * nRadius + nRadius)
                Stamp(mask, text, nMargin + dx, nMargin + dy);
        }
    }
}

/// Replaces the mask by one that fades over so many pixels.
bool Soften(CBufferPtr& mask, int nSoftness) {
    CTxParam block;
    block.hMask = mask.Get();
    if (!sel32SoftEdgeMakeMask(&block, 0, nSoftness, 0, 0, 0, 0))
        return false;
    mask.Reset(block.hMask);
    return true;
}

struct Pixel {
    int blue;
    int green;
    int red;
};

Pixel PixelOf(COLORREF color) { return {GetBValue(color), GetGValue(color), GetRValue(color)}; }

/// Halfway to white.
COLORREF Lighter(COLORREF color) {
    return RGB((GetRValue(color) + 255) / 2, (GetGValue(color) + 255) / 2, (GetBValue(color) + 255) / 2);
}

/// The layer's colour over the picture's by the coverages; what both cover together becomes the picture's.
void BlendPixel(std::uint8_t* pImage, std::uint8_t& covered, const Pixel& color, int nCover) {
    const int nUnder = covered * (255 - nCover);
    const int nWhole = nCover * 255 + nUnder;
    const auto mix = [&](int nOver, int nBelow) {
        return static_cast<std::uint8_t>((nOver * nCover * 255 + nBelow * nUnder + nWhole / 2) / nWhole);
    };
    pImage[0] = mix(color.blue, pImage[0]);
    pImage[1] = mix(color.green, pImage[1]);
    pImage[2] = mix(color.red, pImage[2]);
    covered = static_cast<std::uint8_t>((nWhole + 127) / 255);
}

/// Puts a layer, that starts at (nLeft, nTop) of the picture, over it.
void AddLayer(const EffectPicture& picture, const View& layer, int nLeft, int nTop, COLORREF color) {
    const View image = Look(picture.image.Get());
    const View mask = Look(picture.mask.Get());
    const Pixel pixel = PixelOf(color);
    for (int y = 0; y < layer.height; ++y) {
        const std::uint8_t* pIn = layer.Row(y);
        std::uint8_t* pImage = image.Row(y + nTop) + 3 * nLeft;
        std::uint8_t* pMask = mask.Row(y + nTop) + nLeft;
        for (int x = 0; x < layer.width; ++x) {
            if (pIn[x] != 0)
                BlendPixel(pImage + 3 * x, pMask[x], pixel, pIn[x]);
        }
    }
}

/// Lit from the top left: a light edge there, the effect's colour on the other side.
void AddEmboss(const EffectPicture& picture, const EffectColors& colors, const View& text, int nReach) {
    AddLayer(picture, text, 0, 0, Lighter(colors.text));
    AddLayer(picture, text, 2 * nReach, 2 * nReach, colors.effect);
}

bool AddOutline(const EffectPicture& picture, COLORREF color, const View& text, int nReach) {
    const CBufferPtr layer = WiderMask(text, nReach);
    if (!layer)
        return false;
    StampDisc(Look(layer.Get()), text, nReach, nReach);
    AddLayer(picture, Look(layer.Get()), 0, 0, color);
    return true;
}

bool AddGlow(const EffectPicture& picture, COLORREF color, const View& text, int nReach) {
    CBufferPtr layer = WiderMask(text, nReach);
    if (!layer)
        return false;
    // Half of the reach is solid, the rest fades.
    StampDisc(Look(layer.Get()), text, nReach, nReach / 2);
    if (!Soften(layer, nReach - nReach / 2))
        return false;
    AddLayer(picture, Look(layer.Get()), 0, 0, color);
    return true;
}

} // namespace

HBUF32 MakeFlatImage(const View& mask, COLORREF color) {
    HBUF32 hImage = 0;
    if (!buf32Alloc(&hImage, 24, mask.width, mask.height, 0, nullptr))
        return 0;
    const View image = Look(hImage);
    std::uint8_t* const pEnd = image.Row(image.height);
    for (std::uint8_t* pOut = image.pixels; pOut != pEnd; pOut += 3) {
        pOut[0] = GetBValue(color);
        pOut[1] = GetGValue(color);
        pOut[2] = GetRValue(color);
    }
    return hImage;
}

bool DrawTextEffect(TextEffect effect, const EffectColors& colors, const View& text, int nFontSize,
                    EffectPicture& picture) {
    const int nReach = Reach(effect, nFontSize);
    picture.ptText = {nReach, nReach};
    picture.mask = WiderMask(text, nReach);
    if (!picture.mask)
        return false;
    const bool bPlain = effect == TextEffect::None;
    picture.image = CBufferPtr(MakeFlatImage(Look(picture.mask.Get()), bPlain ? colors.text : colors.effect));
    if (!picture.image)
        return false;
    if (effect == TextEffect::Outline && !AddOutline(picture, colors.effect, text, nReach))
        return false;
    if (effect == TextEffect::Glow && !AddGlow(picture, colors.effect, text, nReach))
        return false;
    if (effect == TextEffect::Emboss)
        AddEmboss(picture, colors, text, nReach);
    AddLayer(picture, text, nReach, nReach, colors.text);
    return true;
}
