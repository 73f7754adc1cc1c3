#include "host/buffer.h"
#include "image/pixel_scale.h"

namespace {

using buffer_host::Look;
using buffer_host::View;

PixelPair PairOf(const View& view) { return view.unit == 1 ? PixelPair{{}, view} : PixelPair{view, {}}; }

} // namespace

HBUF32 CBuf::Resize(HBUF32 hBuf, int nWidth, int nHeight, int /*nMode*/, int /*nKeep*/) {
    const View view = Look(hBuf);
    HBUF32 hResized = 0;
    if ((view.unit != 1 && view.unit != 3) ||
        !buf32Alloc(&hResized, view.unit * 8, nWidth, nHeight, 0, nullptr)) {
        return 0;
    }
    CBufferPtr resized(hResized);
    return ScalePixels(PairOf(view), PairOf(Look(hResized))) ? resized.Release() : 0;
}
