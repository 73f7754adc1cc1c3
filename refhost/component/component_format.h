// The numbers of the component format, for its reader and its writer. All of a file's are little-endian.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/pixels.h"

namespace component_format {

/// The line end is there to show what a transfer as text does to the file.
inline constexpr std::array<std::uint8_t, 8> Magic = {'P', 'X', 'C', 'O', 'M', 'P', '\r', '\n'};
inline constexpr std::uint32_t Version = 1;
inline constexpr std::size_t HeaderBytes = 20; ///< magic, version, whole length, number of objects
/// The pixels of a longer one could not be held anyway.
inline constexpr std::size_t MostFileBytes = platform::MostPixelBytes;

inline constexpr std::uint32_t ImageFlag = 1;
inline constexpr std::uint32_t MaskFlag = 2;
inline constexpr std::uint32_t ImageBits = 24;
inline constexpr std::uint32_t MaskBits = 8;

} // namespace component_format
