#pragma once

#include <windows.h>

namespace win32 {

// What a 16-bit size can hold.
constexpr int LargestSize = 32767;

// Requests beyond these fail at once; granting them would only bring the whole machine to its knees.
constexpr size_t LargestPixelCount = size_t{1} << 27;
constexpr size_t LargestBlock = INT32_MAX;

} // namespace win32
