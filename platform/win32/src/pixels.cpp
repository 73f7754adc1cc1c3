#include "platform/pixels.h"

#include <new>

namespace platform {

namespace {

std::size_t g_taken = 0;

} // namespace

bool TakePixelBytes(std::size_t bytes) {
    if (bytes > MostPixelBytes - g_taken) {
        return false;
    }
    g_taken += bytes;
    return true;
}

void ReturnPixelBytes(std::size_t bytes) { g_taken -= bytes; }

std::size_t PixelBytesTaken() { return g_taken; }

void PixelDeleter::operator()(DWORD* pixels) const {
    delete[] pixels;
    ReturnPixelBytes(bytes);
}

PixelArray MakePixels(std::size_t count) {
    const std::size_t bytes = count * sizeof(DWORD);
    if (count > MostPixelBytes / sizeof(DWORD) || !TakePixelBytes(bytes)) {
        return nullptr;
    }
    DWORD* const pixels = new (std::nothrow) DWORD[count]();
    if (!pixels) {
        ReturnPixelBytes(bytes);
    }
    return PixelArray(pixels, {bytes});
}

} // namespace platform
