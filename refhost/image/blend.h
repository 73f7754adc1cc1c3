// Rows of pixels onto rows of pixels, and the display values.
#pragma once

#include <array>
#include <cstdint>

namespace blend {

using Table = std::array<std::uint8_t, 256>;

/// Source rows are 24-bit (blue, green, red) with at least one readable byte behind the last pixel; target
/// rows are 0x00RRGGBB.
void CopyRow(std::uint32_t* pTarget, const std::uint8_t* pSource, int nCount);
/// Mixes by a mask row: 0 leaves the target, 255 takes the source, between them each channel is
/// (target * (255 - mask) + source * mask) / 255, rounded to nearest.
void MaskRow(std::uint32_t* pTarget, const std::uint8_t* pSource, const std::uint8_t* pMask, int nCount);

void FillRow(std::uint32_t* pTarget, std::uint32_t pixel, int nCount);
/// `pOut` may be `pIn`.
void ApplyTable(const Table& table, const std::uint8_t* pIn, std::uint8_t* pOut, int nBytes);

/// What brightness and contrast (clamped to -100 to 100) make of a channel's value v:
/// trunc((v - 128) * (100 + contrast) / 100) + 128 + trunc(brightness * 255 / 100), clamped.
Table ToneTable(int nBrightness, int nContrast);
/// What transparency (clamped to 0 to 100) makes of a mask's value: trunc(mask * (100 - transparency) / 100).
Table OpacityTable(int nTransparency);

} // namespace blend
