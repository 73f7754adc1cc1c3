#include "host/convert.h"

#include <cstdint>
#include <memory>
#include <new>

#include "buffer/buffer_host.h"

namespace {

constexpr int ColorBits = 24;
constexpr int BytesPerPixel = 3;

/// A bitmap's rows as GetBitmapBits tells them: padded to 16 bits, a bit, three bytes or four a pixel.
class CBitmapRows {
  public:
    explicit CBitmapRows(HBITMAP hBitmap) {
        if (GetObjectA(hBitmap, sizeof(m_bitmap), &m_bitmap) == 0) {
            return;
        }
        const LONG nBytes = m_bitmap.bmWidthBytes * m_bitmap.bmHeight;
        m_bits.reset(new (std::nothrow) std::uint8_t[static_cast<std::size_t>(nBytes)]);
        if (m_bits && GetBitmapBits(hBitmap, nBytes, m_bits.get()) != nBytes) {
            m_bits.reset();
        }
    }

    explicit operator bool() const { return m_bits != nullptr; }
    int Width() const { return m_bitmap.bmWidth; }
    int Height() const { return m_bitmap.bmHeight; }

    /// Blue, green and red of each pixel of the row.
    void CopyRow(int nRow, std::uint8_t* pOut) const {
        const std::uint8_t* const pRow =
            m_bits.get() + static_cast<std::ptrdiff_t>(nRow) * m_bitmap.bmWidthBytes;
        const int nUnit = m_bitmap.bmBitsPixel / 8;
        for (int x = 0; x < Width(); ++x, pOut += BytesPerPixel) {
            for (int i = 0; i < BytesPerPixel; ++i) {
                pOut[i] = nUnit == 0 ? BitAt(pRow, x) : pRow[x * nUnit + i];
            }
        }
    }

  private:
    static std::uint8_t BitAt(const std::uint8_t* pRow, int x) {
        return (pRow[x / 8] & (0x80 >> (x % 8))) != 0 ? 255 : 0;
    }

    BITMAP m_bitmap{};
    std::unique_ptr<std::uint8_t[]> m_bits;
};

} // namespace

int cvt32DDBToBuf(HBITMAP hBitmap, HBUF32* phBuf, int) {
    if (!phBuf) {
        return 0;
    }
    *phBuf = 0;
    const CBitmapRows rows(hBitmap);
    if (!rows || !buf32Alloc(phBuf, ColorBits, rows.Width(), rows.Height(), 0, nullptr)) {
        return 0;
    }
    const buffer_host::View view = buffer_host::Look(*phBuf);
    for (int y = 0; y < view.height; ++y) {
        rows.CopyRow(y, view.Row(y));
    }
    return 1;
}
