// The decoders behind LoadPicture. Each reads from the file's start and answers false with one line of error.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "image/picture_file.h"

namespace picture_codec {

inline constexpr unsigned MaxSide = 32767;
/// A small file can promise far more pixels than any picture has and fill the machine's memory with them.
inline constexpr std::uint64_t MaxPixels = std::uint64_t{1} << 27;
inline constexpr const char* TooLarge = "the picture has a side above 32767 pixels";
inline constexpr const char* TooMany = "the picture has more than 134217728 pixels";

/// Why a picture of that size is not read, or null.
inline const char* SizeProblem(std::uint32_t nWidth, std::uint32_t nHeight) {
    if (nWidth > MaxSide || nHeight > MaxSide) {
        return TooLarge;
    }
    return std::uint64_t{nWidth} * nHeight > MaxPixels ? TooMany : nullptr;
}
inline constexpr const char* NoMemory = "not enough memory for the picture";

bool ReadPng(std::FILE* pFile, Picture& picture, std::string& error);
bool ReadJpeg(std::FILE* pFile, Picture& picture, std::string& error);

} // namespace picture_codec
