#include "host/services.h"

#include "buffer/buffer_host.h"
#include "platform/faults.h"
#include "trace/trace.h"

namespace {

using buffer_host::View;

struct MergeInput {
    View out;
    View work;
    View extra; ///< without pixels when there is none
    View mask;
    int nPercent;
};

bool SameSize(const View& a, const View& b) { return a.width == b.width && a.height == b.height; }

/// Whether the buffer, unless it is 0 and may be, has pixels of that many bytes in the size of `like`.
bool Fits(HBUF32 hBuf, const View& view, int nUnit, const View& like) {
    return hBuf == 0 || (view.pixels && view.unit == nUnit && SameSize(view, like));
}

/// `from` moved toward `to` by `nShare` of `nWhole`, rounded.
std::uint8_t Mixed(int from, int to, int nShare, int nWhole) {
    return static_cast<std::uint8_t>((from * (nWhole - nShare) + to * nShare + nWhole / 2) / nWhole);
}

/// Without an extra image the working image shows over black; with one the extra image shows over the working
/// image.
void MergePixels(const MergeInput& in) {
    const std::size_t nPixels =
        static_cast<std::size_t>(in.out.width) * static_cast<std::size_t>(in.out.height);
    for (std::size_t i = 0; i < nPixels; ++i) {
        const int nCover = in.mask.pixels && in.extra.pixels ? in.mask.pixels[i] : 255;
        for (std::size_t at = i * 3; at < i * 3 + 3; ++at) {
            const int under = in.extra.pixels ? in.work.pixels[at] : 0;
            const int over = in.extra.pixels ? in.extra.pixels[at] : in.work.pixels[at];
            in.out.pixels[at] = Mixed(under, over, nCover * in.nPercent, 255 * 100);
        }
    }
}

} // namespace

int CGlobalAPI::m_fnMergeBuf(HBUF32 hOut, HBUF32 hWork, HBUF32 hExtra, int nPercent, HBUF32 hMask) {
    if (trace::IsOn()) {
        trace::Call("merge", "MergeBuf",
                    {trace::Pointer{hOut != 0}, trace::Pointer{hWork != 0}, trace::Pointer{hExtra != 0},
                     static_cast<long long>(nPercent), trace::Pointer{hMask != 0}});
    }
    const MergeInput in{buffer_host::Look(hOut), buffer_host::Look(hWork), buffer_host::Look(hExtra),
                        buffer_host::Look(hMask), nPercent};
    if (!in.out.pixels || !in.work.pixels || nPercent < 0 || nPercent > 100) {
        return 0;
    }
    if (!Fits(hOut, in.out, 3, in.out) || !Fits(hWork, in.work, 3, in.out) ||
        !Fits(hExtra, in.extra, 3, in.out) || !Fits(hMask, in.mask, 1, in.out)) {
        return 0;
    }
    if (platform::FaultTrips("merge")) {
        return 0;
    }
    MergePixels(in);
    return 1;
}
