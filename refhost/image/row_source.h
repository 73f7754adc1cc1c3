// A buffer seen at another size, row by row.
#pragma once

#include <cstdint>
#include <vector>

#include "buffer/buffer_host.h"

/// Gives rows of an 8-bit or 24-bit buffer stretched to a box, or the buffer's own rows when the sizes are
/// the same. Stretching is bilinear between pixel centres in whole numbers: a pixel depends on its place in
/// the box alone, so that a part of a picture comes out as in the whole.
class CRowSource {
  public:
    /// The buffer and the box's size in pixels, both above 0, and the columns of the box that are wanted.
    void Open(const buffer_host::View& view, std::int64_t nBoxWidth, std::int64_t nBoxHeight,
              std::int64_t nFirst, int nCount);
    /// The wanted columns of row `y` of the box. Good until the next call; a few bytes behind them may be
    /// read.
    const std::uint8_t* Row(std::int64_t y);

  private:
    struct Column {
        std::uint32_t nOffset; ///< of the left one of the two pixels, in `m_blended`
        std::uint32_t nShare;  ///< of the right one, in 256ths
    };
    /// Mixes neighbours of `m_blended` into `m_row`, for 8-bit or 24-bit pixels.
    template <int Unit>
    void BlendColumns();
    void BlendRows(const std::uint8_t* pUpper, const std::uint8_t* pLower, std::uint32_t nShare);

    buffer_host::View m_view;
    std::int64_t m_nBoxHeight = 0;
    std::int64_t m_nFirst = 0;
    bool m_bPlain = true;
    std::size_t m_nFirstByte = 0; ///< of a source row, the first that is needed
    std::size_t m_nBytes = 0;     ///< how many
    std::vector<Column> m_columns;
    std::vector<std::uint16_t> m_blended; ///< two source rows mixed, values times 256
    std::vector<std::uint8_t> m_row;
};
