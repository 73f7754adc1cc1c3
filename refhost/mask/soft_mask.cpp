#include "host/mask.h"

#include "buffer/buffer_host.h"
#include "platform/faults.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

using buffer_host::View;

constexpr int Passes = 3; ///< of a box, which together come close to a bell

/// Eight neighbours at once.
using Lanes [[gnu::vector_size(16)]] = std::uint16_t;
using Bytes [[gnu::vector_size(8)]] = std::uint8_t;
constexpr int LaneCount = 8;

Lanes LoadBytes(const std::uint8_t* pIn) {
    Bytes bytes;
    std::memcpy(&bytes, pIn, sizeof bytes);
    return __builtin_convertvector(bytes, Lanes);
}

void StoreBytes(std::uint8_t* pOut, Lanes lanes) {
    const Bytes bytes = __builtin_convertvector(lanes, Bytes);
    std::memcpy(pOut, &bytes, sizeof bytes);
}

Lanes Load(const std::uint16_t* pIn) {
    Lanes lanes;
    std::memcpy(&lanes, pIn, sizeof lanes);
    return lanes;
}

void Store(std::uint16_t* pOut, Lanes lanes) { std::memcpy(pOut, &lanes, sizeof lanes); }

/// The upper halves of the lanes' products.
Lanes HighPart(Lanes a, Lanes b) {
#if defined(__SSE2__)
    return reinterpret_cast<Lanes>(
        _mm_mulhi_epu16(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
#else
    using Wide [[gnu::vector_size(32)]] = std::uint32_t;
    return __builtin_convertvector(
        (__builtin_convertvector(a, Wide) * __builtin_convertvector(b, Wide)) >> 16, Lanes);
#endif
}

/// Rounds sum / window to nearest, for sums of up to `window` bytes. Both forms are exact for every sum that
/// occurs.
struct NarrowMean {
    using Sum = std::uint16_t;
    static constexpr std::uint32_t MostWindow = 127;

    /// The window is odd and above 1.
    explicit NarrowMean(std::uint32_t nWindow)
        : nHalf(static_cast<Sum>(nWindow / 2)), nShift(std::bit_width(nWindow) - 1),
          nInverse(static_cast<Sum>(((std::uint32_t{0x10000} << nShift) + nWindow - 1) / nWindow)) {}

    // The inverse is 2^(16 + shift) / window, rounded up; times the window it passes that power by less than
    // 128. Sums stay under 256 windows, so the error of their product stays under 1 / window of the
    // quotient's unit.
    Lanes operator()(Lanes sums) const { return HighPart(sums + nHalf, Lanes{} + nInverse) >> nShift; }
    std::uint8_t operator()(Sum nSum) const {
        return static_cast<std::uint8_t>((static_cast<std::uint32_t>(nSum + nHalf) * nInverse) >>
                                         (16 + nShift));
    }

    Sum nHalf;
    int nShift;
    Sum nInverse;
};

struct WideMean {
    using Sum = std::uint32_t;

    explicit WideMean(std::uint32_t nBytes) : dShift(nBytes / 2 + 0.5), dInverse(1.0 / nBytes) {}

    // Half a unit above a whole number of windows, a double's error is too small to reach the next one.
    std::uint8_t operator()(Sum nSum) const {
        const double dRounded = static_cast<std::int32_t>(nSum) + dShift;
        return static_cast<std::uint8_t>(static_cast<std::int32_t>(dRounded * dInverse));
    }

    double dShift;
    double dInverse;
};

/// Writes the sums of the first 1, 2, … bytes, which may overflow, and answers the last one. `nSum` goes
/// before all.
template <class Sum>
Sum RunningSums(const std::uint8_t* pIn, Sum* pSums, int nCount, Sum nSum) {
    for (int i = 0; i < nCount; ++i) {
        nSum = static_cast<Sum>(nSum + pIn[i]);
        pSums[i] = nSum;
    }
    return nSum;
}

// Each lane takes what stands one, two and four lanes before it, then the sum so far.
std::uint16_t RunningSums(const std::uint8_t* pIn, std::uint16_t* pSums, int nCount) {
    const Lanes none{};
    Lanes before{};
    int i = 0;
    for (; i + LaneCount <= nCount; i += LaneCount) {
        Lanes sums = LoadBytes(pIn + i);
        sums += __builtin_shufflevector(none, sums, 0, 8, 9, 10, 11, 12, 13, 14);
        sums += __builtin_shufflevector(none, sums, 0, 1, 8, 9, 10, 11, 12, 13);
        sums += __builtin_shufflevector(none, sums, 0, 1, 2, 3, 8, 9, 10, 11);
        sums += before;
        before = __builtin_shufflevector(sums, sums, 7, 7, 7, 7, 7, 7, 7, 7);
        Store(pSums + i, sums);
    }
    return RunningSums<std::uint16_t>(pIn + i, pSums + i, nCount - i, before[0]);
}

std::uint32_t RunningSums(const std::uint8_t* pIn, std::uint32_t* pSums, int nCount) {
    return RunningSums<std::uint32_t>(pIn, pSums, nCount, 0);
}

/// Differences of running sums are the sums between them, also after the running sums have overflowed.
template <class Mean, class Sum>
void AverageBetween(const Sum* pBefore, const Sum* pWithin, std::uint8_t* pOut, int nCount,
                    const Mean& mean) {
    int i = 0;
    if constexpr (std::is_same_v<Mean, NarrowMean>) {
        for (; i + LaneCount <= nCount; i += LaneCount) {
            StoreBytes(pOut + i, mean(Load(pWithin + i) - Load(pBefore + i)));
        }
    }
    for (; i < nCount; ++i) {
        pOut[i] = mean(static_cast<Sum>(pWithin[i] - pBefore[i]));
    }
}

template <class Sum>
void AddRow(Sum* __restrict pColumns, const std::uint8_t* __restrict pRow, int nCount) {
    for (int i = 0; i < nCount; ++i) {
        pColumns[i] = static_cast<Sum>(pColumns[i] + pRow[i]);
    }
}

/// The means of the columns with the entering row and still with the leaving one.
template <class Mean, class Sum>
void AverageColumns(Sum* __restrict pColumns, const std::uint8_t* __restrict pEntering,
                    const std::uint8_t* __restrict pLeaving, std::uint8_t* __restrict pOut, int nCount,
                    const Mean& mean) {
    int i = 0;
    if constexpr (std::is_same_v<Mean, NarrowMean>) {
        for (; i + LaneCount <= nCount; i += LaneCount) {
            const Lanes sums = Load(pColumns + i) + LoadBytes(pEntering + i);
            StoreBytes(pOut + i, mean(sums));
            Store(pColumns + i, sums - LoadBytes(pLeaving + i));
        }
    }
    for (; i < nCount; ++i) {
        const Sum nSum = static_cast<Sum>(pColumns[i] + pEntering[i]);
        pOut[i] = mean(nSum);
        pColumns[i] = static_cast<Sum>(nSum - pLeaving[i]);
    }
}

template <class Item>
std::unique_ptr<Item[]> Zeros(int nCount) {
    return std::unique_ptr<Item[]>(new (std::nothrow) Item[static_cast<std::size_t>(nCount)]());
}

/// Replaces every byte by the mean of the bytes up to a radius away, first along rows, then along columns;
/// beyond the edges is 0. A column's mean needs the row means of as many rows before it as behind, so these
/// stand in a ring of rows, and the mask is read and written only once.
template <class Mean>
class CBoxAverage {
    using Sum = typename Mean::Sum;

  public:
    /// The radius is above 0.
    CBoxAverage(const View& mask, int nRadius)
        : m_mask(mask), m_mean(2 * static_cast<std::uint32_t>(nRadius) + 1),
          m_nReachX(std::min(nRadius, mask.width)), m_nReachY(std::min(nRadius, mask.height)) {}

    /// False when memory is out; the mask is unchanged then.
    bool Run() {
        if (!Allocate()) {
            return false;
        }
        for (int y = 0; y < m_mask.height + m_nReachY; ++y) {
            if (y < m_mask.height) {
                AverageRow(m_mask.Row(y), RingRow(y));
            }
            if (y < m_nReachY) {
                AddRow(m_columns.get(), MeansOf(y), m_mask.width);
            } else {
                AverageColumns(m_columns.get(), MeansOf(y), MeansOf(y - 2 * m_nReachY),
                               m_mask.Row(y - m_nReachY), m_mask.width, m_mean);
            }
        }
        return true;
    }

  private:
    int RingRows() const { return 2 * m_nReachY + 1; }

    bool Allocate() {
        m_running = Zeros<Sum>(m_mask.width + 2 * m_nReachX + 1);
        m_columns = Zeros<Sum>(m_mask.width);
        m_empty = Zeros<std::uint8_t>(m_mask.width);
        m_ring.reset(new (std::nothrow)
                         std::uint8_t[m_mask.RowBytes() * static_cast<std::size_t>(RingRows())]);
        return m_running && m_columns && m_empty && m_ring;
    }

    std::uint8_t* RingRow(int y) const {
        return m_ring.get() + m_mask.RowBytes() * static_cast<std::size_t>(y % RingRows());
    }

    /// The row's means along itself; outside the mask nothing but 0.
    const std::uint8_t* MeansOf(int y) const {
        return y >= 0 && y < m_mask.height ? RingRow(y) : m_empty.get();
    }

    void AverageRow(const std::uint8_t* pIn, std::uint8_t* pOut) {
        Sum* pRunning = m_running.get() + m_nReachX + 1;
        const Sum nAll = RunningSums(pIn, pRunning, m_mask.width);
        std::fill_n(pRunning + m_mask.width, m_nReachX, nAll);
        AverageBetween(m_running.get(), pRunning + m_nReachX, pOut, m_mask.width, m_mean);
    }

    View m_mask;
    Mean m_mean;
    int m_nReachX; ///< the radius, cut to where the mask surely ends
    int m_nReachY;
    std::unique_ptr<Sum[]> m_running; ///< with room for the reach before and behind
    std::unique_ptr<Sum[]> m_columns;
    std::unique_ptr<std::uint8_t[]> m_empty;
    std::unique_ptr<std::uint8_t[]> m_ring;
};

bool AverageBothWays(const View& mask, int nRadius) {
    if (nRadius == 0) {
        return true;
    }
    if (2 * static_cast<std::uint32_t>(nRadius) + 1 <= NarrowMean::MostWindow) {
        return CBoxAverage<NarrowMean>(mask, nRadius).Run();
    }
    return CBoxAverage<WideMean>(mask, nRadius).Run();
}

// Three boxes of a third each reach as far as the softness says.
bool Soften(const View& mask, int nSoftness) {
    int nLeft = nSoftness;
    for (int nPass = 0; nPass < Passes; ++nPass) {
        const int nRadius = nLeft / (Passes - nPass);
        nLeft -= nRadius;
        if (!AverageBothWays(mask, nRadius)) {
            return false;
        }
    }
    return true;
}

} // namespace

int sel32SoftEdgeMakeMask(CTxParam* pBlock, int /*nReserved*/, int nSoftness, int /*nReserved1*/,
                          int /*nReserved2*/, int /*nReserved3*/, int /*nReserved4*/) {
    if (!pBlock || nSoftness < 0 || platform::FaultTrips("soft-mask")) {
        return 0;
    }
    CBufferPtr soft(buf32DupBuf(pBlock->hMask));
    const View mask = buffer_host::Look(soft.Get());
    if (!mask.pixels || mask.unit != 1 || !Soften(mask, nSoftness)) {
        return 0;
    }
    pBlock->hMask = soft.Release();
    return 1;
}
