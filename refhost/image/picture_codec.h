// The decoders behind LoadPicture. Each reads from the file's start and answers false with one line of error.
#pragma once

#include <cstdio>
#include <string>

#include "image/picture_file.h"

namespace picture_codec {

inline constexpr unsigned MaxSide = 32767;
inline constexpr const char* TooLarge = "the picture has a side above 32767 pixels";
inline constexpr const char* NoMemory = "not enough memory for the picture";

bool ReadPng(std::FILE* pFile, Picture& picture, std::string& error);
bool ReadJpeg(std::FILE* pFile, Picture& picture, std::string& error);

} // namespace picture_codec
