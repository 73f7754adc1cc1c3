#include "image/blend.h"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace blend {
namespace {

constexpr int ChunkPixels = 128;

/// A 24-bit pixel, read as one word together with the byte behind it.
std::uint32_t PixelAt(const std::uint8_t* pSource) {
    std::uint32_t word;
    std::memcpy(&word, pSource, sizeof word);
    return word & 0x00FFFFFF;
}

/// Both sides are spread to four bytes a pixel first; the arithmetic then is one loop over bytes that the
/// compiler turns into vector instructions. (t + 1 + t / 256) / 256 is t / 255 for every t that occurs.
void MixChunk(std::uint32_t* pTarget, const std::uint8_t* pSource, const std::uint8_t* pMask, int nCount) {
    std::uint32_t source[ChunkPixels];
    std::uint32_t mask[ChunkPixels];
    CopyRow(source, pSource, nCount);
    for (int i = 0; i < nCount; ++i) {
        mask[i] = pMask[i] * 0x01010101U;
    }
    const std::uint8_t* pFrom = reinterpret_cast<const std::uint8_t*>(source);
    const std::uint8_t* pShare = reinterpret_cast<const std::uint8_t*>(mask);
    std::uint8_t* pTo = reinterpret_cast<std::uint8_t*>(pTarget);
    for (int i = 0; i < nCount * 4; ++i) {
        const std::uint16_t share = pShare[i];
        const std::uint16_t sum = static_cast<std::uint16_t>(pTo[i] * (255 - share) + pFrom[i] * share + 127);
        pTo[i] = static_cast<std::uint8_t>(static_cast<std::uint16_t>(sum + 1 + (sum >> 8)) >> 8);
    }
}

void MixRow(std::uint32_t* pTarget, const std::uint8_t* pSource, const std::uint8_t* pMask, int nCount) {
    for (int at = 0; at < nCount; at += ChunkPixels) {
        MixChunk(pTarget + at, pSource + at * 3, pMask + at, std::min(ChunkPixels, nCount - at));
    }
}

/// Whether a machine word of one plain value starts at `at`.
bool IsPlainAt(const std::uint8_t* pMask, int at, int nCount) {
    std::uint64_t word = 1;
    if (at + 8 <= nCount) {
        std::memcpy(&word, pMask + at, sizeof word);
    }
    return word == 0 || word == ~std::uint64_t{0};
}

/// The end of the run that starts at `at`: of one plain value, or of values that are mixed. Plain runs are
/// long, so they are followed a machine word at a time; short ones, as between the stems of letters, are
/// mixed with what stands round them.
int RunEnd(const std::uint8_t* pMask, int at, int nCount, bool bPlain) {
    const std::uint8_t first = pMask[at];
    if (!bPlain) {
        while (++at < nCount && !IsPlainAt(pMask, at, nCount)) {}
        return at;
    }
    while (IsPlainAt(pMask, at, nCount) && pMask[at] == first) {
        at += 8;
    }
    while (at < nCount && pMask[at] == first) {
        ++at;
    }
    return at;
}

} // namespace

void CopyRow(std::uint32_t* pTarget, const std::uint8_t* pSource, int nCount) {
    int i = 0;
#if defined(__SSE2__)
    // Sixteen bytes hold four pixels and the four bytes behind them that may be read.
    const __m128i colors = _mm_set1_epi32(0x00FFFFFF);
    for (; i + 4 <= nCount; i += 4) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pSource + i * 3));
        const __m128i front = _mm_unpacklo_epi32(bytes, _mm_srli_si128(bytes, 3));
        const __m128i back = _mm_unpacklo_epi32(_mm_srli_si128(bytes, 6), _mm_srli_si128(bytes, 9));
        const __m128i pixels = _mm_and_si128(_mm_unpacklo_epi64(front, back), colors);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pTarget + i), pixels);
    }
#endif
    for (; i < nCount; ++i) {
        pTarget[i] = PixelAt(pSource + i * 3);
    }
}

void MaskRow(std::uint32_t* pTarget, const std::uint8_t* pSource, const std::uint8_t* pMask, int nCount) {
    for (int at = 0, end = 0; at < nCount; at = end) {
        const bool bPlain = IsPlainAt(pMask, at, nCount);
        end = RunEnd(pMask, at, nCount, bPlain);
        if (!bPlain) {
            MixRow(pTarget + at, pSource + at * 3, pMask + at, end - at);
        } else if (pMask[at] == 255) {
            CopyRow(pTarget + at, pSource + at * 3, end - at);
        }
    }
}

void FillRow(std::uint32_t* pTarget, std::uint32_t pixel, int nCount) { std::fill_n(pTarget, nCount, pixel); }

void ApplyTable(const Table& table, const std::uint8_t* pIn, std::uint8_t* pOut, int nBytes) {
    for (int i = 0; i < nBytes; ++i) {
        pOut[i] = table[pIn[i]];
    }
}

Table ToneTable(int nBrightness, int nContrast) {
    const int nShift = std::clamp(nBrightness, -100, 100) * 255 / 100;
    const int nScale = 100 + std::clamp(nContrast, -100, 100);
    Table table;
    for (int v = 0; v < 256; ++v) {
        table[v] = static_cast<std::uint8_t>(std::clamp((v - 128) * nScale / 100 + 128 + nShift, 0, 255));
    }
    return table;
}

Table OpacityTable(int nTransparency) {
    const int nShare = 100 - std::clamp(nTransparency, 0, 100);
    Table table;
    for (int mask = 0; mask < 256; ++mask) {
        table[mask] = static_cast<std::uint8_t>(mask * nShare / 100);
    }
    return table;
}

} // namespace blend
