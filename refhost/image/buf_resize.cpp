#include <cstddef>

#include "host/buffer.h"
#include "image/picture_node.h"

namespace {

using buffer_host::Look;
using buffer_host::View;

std::size_t PixelCount(const View& view) {
    return static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height);
}

/// A mask as a grey picture.
bool AsPicture(const View& view, Picture& picture) {
    HBUF32 hImage = 0;
    if (!buf32Alloc(&hImage, 24, view.width, view.height, 0, nullptr)) {
        return false;
    }
    picture.image = CBufferPtr(hImage);
    picture.width = view.width;
    picture.height = view.height;
    const View image = Look(hImage);
    for (std::size_t i = 0; i < PixelCount(view); ++i) {
        image.pixels[i * 3] = image.pixels[i * 3 + 1] = image.pixels[i * 3 + 2] = view.pixels[i];
    }
    return true;
}

HBUF32 ResizeMask(const View& view, int nWidth, int nHeight) {
    Picture grey;
    Picture scaled;
    HBUF32 hMask = 0;
    if (!AsPicture(view, grey) || !ScalePicture(grey, nWidth, nHeight, scaled) ||
        !buf32Alloc(&hMask, 8, nWidth, nHeight, 0, nullptr)) {
        return 0;
    }
    const View from = Look(scaled.image.Get());
    const View to = Look(hMask);
    for (std::size_t i = 0; i < PixelCount(to); ++i) {
        to.pixels[i] = from.pixels[i * 3];
    }
    return hMask;
}

HBUF32 ResizeImage(HBUF32 hBuf, int nWidth, int nHeight) {
    Picture picture;
    Picture scaled;
    picture.image = CBufferPtr(buf32DupBuf(hBuf));
    return picture.image && ScalePicture(picture, nWidth, nHeight, scaled) ? scaled.image.Release() : 0;
}

} // namespace

HBUF32 CBuf::Resize(HBUF32 hBuf, int nWidth, int nHeight, int /*nMode*/, int /*nKeep*/) {
    const View view = Look(hBuf);
    if (!view.pixels || nWidth <= 0 || nHeight <= 0) {
        return 0;
    }
    if (view.unit == 1) {
        return ResizeMask(view, nWidth, nHeight);
    }
    return view.unit == 3 ? ResizeImage(hBuf, nWidth, nHeight) : 0;
}
