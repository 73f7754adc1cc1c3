#include <algorithm>
#include <bit>
#include <cstdlib>
#include <new>
#include <utility>
#include <vector>

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

/// out[x] becomes the stronger of itself and in[x]. Neither overlaps the other.
void TakeStronger(std::uint8_t* pOut, const std::uint8_t* pIn, int nCount) {
    for (int x = 0; x < nCount; ++x) {
        pOut[x] = std::max(pOut[x], pIn[x]);
    }
}

/// A pixel of a row that is not dark.
struct Lit {
    int x;
    std::uint8_t value;
};

/// The rows' pixels that have a weaker neighbour. What the others would spread over is as strong already, by
/// themselves or by one of these on the way.
std::vector<std::vector<Lit>> EdgesOf(const View& text) {
    std::vector<std::vector<Lit>> edges(static_cast<std::size_t>(text.height));
    for (int y = 0; y < text.height; ++y) {
        const std::uint8_t* pRow = text.Row(y);
        const auto at = [&](int nX, int nY) {
            return nX < 0 || nY < 0 || nX >= text.width || nY >= text.height ? 0 : text.Row(nY)[nX];
        };
        for (int x = 0; x < text.width; ++x) {
            const std::uint8_t value = pRow[x];
            if (value != 0 && std::min({at(x - 1, y), at(x + 1, y), at(x, y - 1), at(x, y + 1)}) < value) {
                edges[static_cast<std::size_t>(y)].push_back({x, value});
            }
        }
    }
    return edges;
}

/// Spreads values over spans of one row. A span is entered as the two runs, each of a power of two in length,
/// that cover it; all runs are then brought down to single pixels in one pass a length.
class CSpanRow {
  public:
    CSpanRow(int nWidth, int nLongest) : m_nWidth(nWidth) {
        m_runs.resize(static_cast<std::size_t>(std::bit_width(static_cast<unsigned>(nLongest))));
        for (std::vector<std::uint8_t>& runs : m_runs) {
            runs.assign(static_cast<std::size_t>(nWidth), 0);
        }
    }

    /// Each of the pixels over itself and its neighbours nBeside to both sides, which lie within the row when
    /// they are moved by nShift.
    void Add(const std::vector<Lit>& pixels, int nShift, int nBeside) {
        const int nLength = 2 * nBeside + 1;
        const int nPower = std::bit_width(static_cast<unsigned>(nLength)) - 1;
        std::uint8_t* const pRuns = m_runs[static_cast<std::size_t>(nPower)].data() + nShift - nBeside;
        const int nSecond = nLength - (1 << nPower);
        for (const Lit& pixel : pixels) {
            std::uint8_t* const pFirst = pRuns + pixel.x;
            pFirst[0] = std::max(pFirst[0], pixel.value);
            pFirst[nSecond] = std::max(pFirst[nSecond], pixel.value);
        }
    }

    /// Adds what was entered to the row, and forgets it.
    void BringDown(std::uint8_t* pOut) {
        for (std::size_t nPower = m_runs.size() - 1; nPower > 0; --nPower) {
            const int nHalf = 1 << (nPower - 1);
            std::uint8_t* const pHalves = m_runs[nPower - 1].data();
            TakeStronger(pHalves, m_runs[nPower].data(), m_nWidth);
            TakeStronger(pHalves + nHalf, m_runs[nPower].data(), m_nWidth - nHalf);
            std::fill(m_runs[nPower].begin(), m_runs[nPower].end(), std::uint8_t{0});
        }
        TakeStronger(pOut, m_runs[0].data(), m_nWidth);
        std::fill(m_runs[0].begin(), m_runs[0].end(), std::uint8_t{0});
    }

  private:
    int m_nWidth;
    std::vector<std::vector<std::uint8_t>> m_runs; ///< by the power: the values of the runs that start there
};

/// The half widths of a disc's rows, from its middle downwards.
std::vector<int> DiscRows(int nRadius) {
    std::vector<int> rows(static_cast<std::size_t>(nRadius) + 1);
    int dx = nRadius;
    for (int dy = 0; dy <= nRadius; ++dy) {
        while (dx * dx + dy * dy > nRadius * nRadius + nRadius) {
            --dx;
        }
        rows[static_cast<std::size_t>(dy)] = dx;
    }
    return rows;
}

/// The text, which is put at the margin, spread over a disc. Takes time with the pixels, for only the edges
/// of letters are spread, whose number times the reach grows as the letters' area does.
void SpreadOverDisc(const View& mask, const View& text, int nMargin, int nRadius) {
    const std::vector<std::vector<Lit>> edges = EdgesOf(text);
    const std::vector<int> disc = DiscRows(nRadius);
    CSpanRow spans(mask.width, 2 * nRadius + 1);
    for (int y = nMargin - nRadius; y < mask.height - nMargin + nRadius; ++y) {
        const int nMiddle = y - nMargin;
        const int nLast = std::min(text.height - 1, nMiddle + nRadius);
        for (int nRow = std::max(0, nMiddle - nRadius); nRow <= nLast; ++nRow) {
            spans.Add(edges[static_cast<std::size_t>(nRow)], nMargin,
                      disc[static_cast<std::size_t>(std::abs(nRow - nMiddle))]);
        }
        spans.BringDown(mask.Row(y));
        if (nMiddle >= 0 && nMiddle < text.height) {
            TakeStronger(mask.Row(y) + nMargin, text.Row(nMiddle), text.width);
        }
    }
}

/// A wider mask with the text spread over it; none when memory is out.
CBufferPtr SpreadMask(const View& text, int nMargin, int nRadius) {
    CBufferPtr mask = WiderMask(text, nMargin);
    try {
        if (mask) {
            SpreadOverDisc(Look(mask.Get()), text, nMargin, nRadius);
        }
    } catch (const std::bad_alloc&) {
        mask.Reset();
    }
    return mask;
}

/// Replaces the mask by one that fades over so many pixels.
bool Soften(CBufferPtr& mask, int nSoftness) {
    CTxParam block;
    block.hMask = mask.Get();
    if (!sel32SoftEdgeMakeMask(&block, 0, nSoftness, 0, 0, 0, 0)) {
        return false;
    }
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
            if (pIn[x] != 0) {
                BlendPixel(pImage + 3 * x, pMask[x], pixel, pIn[x]);
            }
        }
    }
}

/// Lit from the top left: a light edge there, the effect's colour on the other side.
void AddEmboss(const EffectPicture& picture, const EffectColors& colors, const View& text, int nReach) {
    AddLayer(picture, text, 0, 0, Lighter(colors.text));
    AddLayer(picture, text, 2 * nReach, 2 * nReach, colors.effect);
}

bool AddOutline(const EffectPicture& picture, COLORREF color, const View& text, int nReach) {
    const CBufferPtr layer = SpreadMask(text, nReach, nReach);
    if (!layer) {
        return false;
    }
    AddLayer(picture, Look(layer.Get()), 0, 0, color);
    return true;
}

bool AddGlow(const EffectPicture& picture, COLORREF color, const View& text, int nReach) {
    // Half of the reach is solid, the rest fades.
    CBufferPtr layer = SpreadMask(text, nReach, nReach / 2);
    if (!layer || !Soften(layer, nReach - nReach / 2)) {
        return false;
    }
    AddLayer(picture, Look(layer.Get()), 0, 0, color);
    return true;
}

} // namespace

HBUF32 MakeFlatImage(const View& mask, COLORREF color) {
    HBUF32 hImage = 0;
    if (!buf32Alloc(&hImage, 24, mask.width, mask.height, 0, nullptr)) {
        return 0;
    }
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
    if (!picture.mask) {
        return false;
    }
    const bool bPlain = effect == TextEffect::None;
    picture.image = CBufferPtr(MakeFlatImage(Look(picture.mask.Get()), bPlain ? colors.text : colors.effect));
    if (!picture.image) {
        return false;
    }
    if (effect == TextEffect::Outline && !AddOutline(picture, colors.effect, text, nReach)) {
        return false;
    }
    if (effect == TextEffect::Glow && !AddGlow(picture, colors.effect, text, nReach)) {
        return false;
    }
    if (effect == TextEffect::Emboss) {
        AddEmboss(picture, colors, text, nReach);
    }
    AddLayer(picture, text, nReach, nReach, colors.text);
    return true;
}
