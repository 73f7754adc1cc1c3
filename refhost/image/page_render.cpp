#include "image/page_render.h"

#include <cmath>

#include "image/page_composer.h"

namespace {

constexpr int MaxSide = 32767;
constexpr double MaxPixels = 1 << 27;

/// The scaled side, or 0 when it is out of range.
int Side(int nLength, double dScale) {
    const double dSide = std::trunc(nLength * dScale);
    return dSide >= 1.0 && dSide <= MaxSide ? static_cast<int>(dSide) : 0;
}

} // namespace

bool RenderPage(const CImgDoc& doc, double dScale, RenderedPage& page) {
    const int nWidth = Side(doc.PageWidth(), dScale);
    const int nHeight = Side(doc.PageHeight(), dScale);
    if (nWidth == 0 || nHeight == 0 || static_cast<double>(nWidth) * nHeight > MaxPixels) {
        return false;
    }
    page.pixels = platform::MakePixels(static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight));
    if (!page.pixels) {
        return false;
    }
    page.width = nWidth;
    page.height = nHeight;
    CPageComposer composer;
    composer.Compose(&doc, {dScale, {0, 0}}, {page.pixels.get(), nWidth, nHeight, nWidth},
                     {0, 0, nWidth, nHeight});
    return true;
}
