#include <cstdint>
#include <memory>
#include <new>

#include "host/convert.h"
#include "ops/drawing.h"
#include "text/editor/inplace_editor.h"

namespace {

constexpr int ColorBits = 24;
constexpr int BytesPerPixel = 3;
constexpr int MaskBits = 8;
constexpr int NoFill = 2; // Of buf32Alloc: every pixel is written anyway.
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);

constexpr COLORREF Complement(COLORREF crColor) { return ~crColor & White; }

/// A 24-bit bitmap in a memory context, on a ground of the text colour's complement.
class CTextPicture {
  public:
    CTextPicture(const CSize& size, COLORREF crText);
    ~CTextPicture() { ::SelectObject(m_dc, m_hBefore); }
    CTextPicture(const CTextPicture&) = delete;
    CTextPicture& operator=(const CTextPicture&) = delete;

    explicit operator bool() const { return m_hBefore != nullptr; }
    CDC& DC() { return m_dc; }
    /// Turns what was drawn white and the ground black.
    bool Isolate();
    /// A new 8-bit buffer, the caller's: 0 where the picture's first byte is 0, else 255.
    bool CopyMask(HBUF32* phMask) const;
    /// A new 24-bit buffer of the text colour, the caller's. The picture is lost.
    bool CopyField(HBUF32* phImage);

  private:
    void Fill(COLORREF crFill) { m_dc.FillSolidRect(0, 0, m_size.cx, m_size.cy, crFill); }

    CSize m_size;
    COLORREF m_crText;
    CBitmap m_bitmap;
    CDC m_dc; // Goes before the bitmap that is selected in it.
    HGDIOBJ m_hBefore = nullptr;
};

CTextPicture::CTextPicture(const CSize& size, COLORREF crText) : m_size(size), m_crText(crText) {
    if (m_dc.CreateCompatibleDC(nullptr) && m_bitmap.CreateBitmap(size.cx, size.cy, 1, ColorBits, nullptr)) {
        m_hBefore = m_dc.SelectObject(m_bitmap.GetSafeHandle());
        Fill(Complement(m_crText));
    }
}

// Through a bitmap of two colours, in which a pixel is set where the source has its background colour.
bool CTextPicture::Isolate() {
    CBitmap mono;
    CDC dcMono;
    if (!dcMono.CreateCompatibleDC(nullptr) || !mono.CreateBitmap(m_size.cx, m_size.cy, 1, 1, nullptr)) {
        return false;
    }
    const CSelectObjectScope select(dcMono, mono);
    m_dc.SetBkColor(Complement(m_crText));
    const BOOL bThere = dcMono.BitBlt(0, 0, m_size.cx, m_size.cy, &m_dc, 0, 0, SRCCOPY);
    m_dc.SetBkColor(Black);
    m_dc.SetTextColor(White);
    return bThere && m_dc.BitBlt(0, 0, m_size.cx, m_size.cy, &dcMono, 0, 0, SRCCOPY);
}

bool CTextPicture::CopyMask(HBUF32* phMask) const {
    const auto nWidth = static_cast<std::size_t>(m_size.cx);
    const auto nHeight = static_cast<std::size_t>(m_size.cy);
    const std::size_t nRow = (BytesPerPixel * nWidth + 1) / 2 * 2;
    const auto nBytes = static_cast<DWORD>(nRow * nHeight);
    const std::unique_ptr<std::uint8_t[]> bits(new (std::nothrow) std::uint8_t[nBytes]);
    if (!bits || m_bitmap.GetBitmapBits(nBytes, bits.get()) != nBytes ||
        !buf32Alloc(phMask, MaskBits, m_size.cx, m_size.cy, NoFill, nullptr)) {
        return false;
    }
    auto* pOut = static_cast<std::uint8_t*>(buf32Lock(*phMask, BufReadWrite));
    if (!pOut) {
        return false;
    }
    for (std::size_t y = 0; y < nHeight; ++y) {
        for (std::size_t x = 0; x < nWidth; ++x) {
            *pOut++ = bits[y * nRow + x * BytesPerPixel] != 0 ? 255 : 0;
        }
    }
    return buf32Unlock(*phMask) != 0;
}

bool CTextPicture::CopyField(HBUF32* phImage) {
    Fill(m_crText);
    return cvt32DDBToBuf(m_bitmap, phImage, 0) != 0;
}

void FreeBuffer(HBUF32* phBuf) {
    if (*phBuf != 0) {
        buf32Free(*phBuf);
        *phBuf = 0;
    }
}

} // namespace

int CInplaceEditor::m_fnGetBuffer(HBUF32* phImage, HBUF32* phMask) {
    if (phImage) {
        *phImage = 0;
    }
    if (phMask) {
        *phMask = 0;
    }
    if (!phImage || !phMask) {
        return 0;
    }
    const CTextLayout layout = Measure();
    CTextPicture picture(layout.BoundAt(m_ptAnchor).Size(), m_crText);
    if (!picture) {
        return 0;
    }
    DrawStackedLines(picture.DC(), layout);
    if (picture.Isolate() && picture.CopyMask(phMask) && picture.CopyField(phImage)) {
        return 1;
    }
    FreeBuffer(phMask);
    FreeBuffer(phImage);
    return 0;
}

// Each line at the left end at which the window shows it, the first one at the top.
void CInplaceEditor::DrawStackedLines(CDC& dc, const CTextLayout& layout) {
    const CRect rcArea = layout.Area();
    const int nSaved = dc.SaveDC();
    SelectTextFormat(dc, Format(), TA_LEFT | TA_TOP);
    int nLine = 0;
    for (POSITION position = m_lines.Begin(); position; ++nLine) {
        const CString& strLine = m_lines.Next(position);
        dc.TextOut(layout.LineRect(rcArea, nLine, strLine).left, layout.HeightOf(nLine), strLine);
    }
    dc.RestoreDC(nSaved);
}
