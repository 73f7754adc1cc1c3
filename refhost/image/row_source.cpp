#include "image/row_source.h"

#include <algorithm>

namespace {

/// Where the centre of a box pixel falls between the centres of source pixels, in 256ths of a source pixel.
std::int64_t SourcePlace(std::int64_t nAt, std::int64_t nBoxSize, int nSourceSize) {
    const std::int64_t nPlace = (2 * nAt + 1) * nSourceSize * 128 / nBoxSize - 128;
    return std::clamp<std::int64_t>(nPlace, 0, std::int64_t{nSourceSize - 1} * 256);
}

} // namespace

void CRowSource::Open(const buffer_host::View& view, std::int64_t nBoxWidth, std::int64_t nBoxHeight,
                      std::int64_t nFirst, int nCount) {
    m_view = view;
    m_nBoxHeight = nBoxHeight;
    m_nFirst = nFirst;
    m_bPlain = nBoxWidth == view.width && nBoxHeight == view.height;
    if (m_bPlain) {
        return;
    }
    const std::size_t nUnit = static_cast<std::size_t>(view.unit);
    const std::size_t nFirstPixel = static_cast<std::size_t>(SourcePlace(nFirst, nBoxWidth, view.width) >> 8);
    const std::size_t nLastPixel =
        static_cast<std::size_t>(SourcePlace(nFirst + nCount - 1, nBoxWidth, view.width) >> 8);
    const std::size_t nBehind = std::min<std::size_t>(nLastPixel + 2, static_cast<std::size_t>(view.width));
    m_nFirstByte = nFirstPixel * nUnit;
    m_nBytes = (nBehind - nFirstPixel) * nUnit;
    m_columns.resize(static_cast<std::size_t>(nCount));
    for (int i = 0; i < nCount; ++i) {
        const std::uint64_t nPlace =
            static_cast<std::uint64_t>(SourcePlace(nFirst + i, nBoxWidth, view.width));
        m_columns[i] = {static_cast<std::uint32_t>(((nPlace >> 8) - nFirstPixel) * nUnit),
                        static_cast<std::uint32_t>(nPlace & 255)};
    }
    // One pixel more than needed: the last column has no right neighbour and takes a share of 0 of it.
    m_blended.assign(m_nBytes + nUnit, 0);
    m_row.assign(static_cast<std::size_t>(nCount) * nUnit + buffer_host::ReadablePadding, 0);
}

void CRowSource::BlendRows(const std::uint8_t* pUpper, const std::uint8_t* pLower, std::uint32_t nShare) {
    std::uint16_t* pOut = m_blended.data();
    const std::uint16_t lower = static_cast<std::uint16_t>(nShare);
    const std::uint16_t upper = static_cast<std::uint16_t>(256 - nShare);
    for (std::size_t i = 0; i < m_nBytes; ++i) {
        pOut[i] = static_cast<std::uint16_t>(pUpper[i] * upper + pLower[i] * lower);
    }
}

template <int Unit>
void CRowSource::BlendColumns() {
    std::uint8_t* pOut = m_row.data();
    for (const Column& column : m_columns) {
        const std::uint16_t* pLeft = m_blended.data() + column.nOffset;
        const std::uint32_t nLeft = 256 - column.nShare;
        for (int nChannel = 0; nChannel < Unit; ++nChannel) {
            const std::uint32_t nSum = pLeft[nChannel] * nLeft + pLeft[nChannel + Unit] * column.nShare;
            *pOut++ = static_cast<std::uint8_t>((nSum + 32768) >> 16);
        }
    }
}

const std::uint8_t* CRowSource::Row(std::int64_t y) {
    if (m_bPlain) {
        return m_view.Row(static_cast<int>(y)) + m_nFirst * m_view.unit;
    }
    const std::int64_t nPlace = SourcePlace(y, m_nBoxHeight, m_view.height);
    const int nUpper = static_cast<int>(nPlace >> 8);
    const int nLower = std::min(nUpper + 1, m_view.height - 1);
    BlendRows(m_view.Row(nUpper) + m_nFirstByte, m_view.Row(nLower) + m_nFirstByte,
              static_cast<std::uint32_t>(nPlace & 255));
    if (m_view.unit == 1) {
        BlendColumns<1>();
    } else {
        BlendColumns<3>();
    }
    return m_row.data();
}
