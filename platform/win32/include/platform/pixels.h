#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>

namespace platform {

/// What all pixels of the process may take together, in bytes: those of windows and bitmaps, of a host's
/// buffers and of its view. A few words of a script can ask for more than any machine has; what passes the
/// limit is refused before it is allocated, as if memory were short.
inline constexpr std::size_t MostPixelBytes = std::size_t{1} << 30;

/// Counts the bytes in; false, and nothing is counted, when they pass the limit.
bool TakePixelBytes(std::size_t bytes);
void ReturnPixelBytes(std::size_t bytes);
std::size_t PixelBytesTaken();

struct PixelDeleter {
    void operator()(DWORD* pixels) const;
    std::size_t bytes = 0;
};
using PixelArray = std::unique_ptr<DWORD[], PixelDeleter>;

/// So many pixels of 0, counted while they live. Null when memory is short or the limit would be passed.
PixelArray MakePixels(std::size_t count);

} // namespace platform
