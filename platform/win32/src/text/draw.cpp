#include "fonts.h"
#include "gdi/canvas.h"

#include <algorithm>

namespace win32 {

// Bits of the alignment; TA_CENTER and TA_BASELINE each have two.
constexpr UINT HorizontalBits = TA_CENTER;
constexpr UINT VerticalBits = TA_BASELINE;

namespace {

int RowsAbovePoint(const CFontInstance& font, UINT align) {
    switch (align & VerticalBits) {
    case TA_BASELINE: return font.Ascent();
    case TA_BOTTOM: return font.Height();
    default: return 0;
    }
}

int ColumnsBeforePoint(int extent, UINT align) {
    switch (align & HorizontalBits) {
    case TA_CENTER: return extent / 2;
    case TA_RIGHT: return extent;
    default: return 0;
    }
}

// A share of 0 leaves the pixel, one of 256 makes it the ink. No part of a product reaches into the next.
DWORD Blend(DWORD pixel, DWORD ink, DWORD share) {
    constexpr DWORD RedBlue = 0x00FF00FF;
    constexpr DWORD Green = 0x0000FF00;
    const DWORD rest = 256 - share;
    return (((pixel & RedBlue) * rest + (ink & RedBlue) * share) >> 8 & RedBlue) |
           (((pixel & Green) * rest + (ink & Green) * share) >> 8 & Green);
}

} // namespace

// A pixel's bytes stand in two lanes of 16 bits, the first and third low, the second and fourth high.
struct InkLanes {
    explicit InkLanes(DWORD ink) {
        for (int i = 0; i < 8; ++i) {
            const DWORD lane = ink >> (i % 2 * 16) & 0xFFFF;
            low[i] = static_cast<std::uint16_t>(lane & 0xFF);
            high[i] = static_cast<std::uint16_t>(lane >> 8);
        }
    }

    Quad::Lanes low{};
    Quad::Lanes high{};
};

namespace {

// As Blend, four pixels at once; the products wrap around, their sum does not.
void BlendQuad(DWORD* pixels, const InkLanes& ink, const Quad::Lanes& share) {
    Quad::Lanes old;
    std::memcpy(&old, pixels, sizeof old);
    const Quad::Lanes low = old & 0xFF;
    const Quad::Lanes high = old >> 8;
    const Quad::Lanes mixedLow = ((low << 8) + (ink.low - low) * share) >> 8;
    const Quad::Lanes mixedHigh = ((high << 8) + (ink.high - high) * share) & 0xFF00;
    const Quad::Lanes mixed = mixedLow | mixedHigh;
    std::memcpy(pixels, &mixed, sizeof mixed);
}

} // namespace

/// Draws pictures of one ink on an open canvas.
class CGlyphPainter {
  public:
    CGlyphPainter(const Canvas& canvas, DWORD ink, int top, int rows)
        : m_canvas(canvas), m_ink(ink), m_inkLanes(ink), m_top(top),
          m_wholeRows(!canvas.monochrome && top >= canvas.clip.top && top + rows <= canvas.clip.bottom) {}

    void Draw(const Glyph& glyph, LONG pen) const {
        const LONG left = pen + glyph.left;
        if (m_wholeRows && !glyph.quads.empty() && left >= m_canvas.clip.left &&
            left + glyph.quadsWidth <= m_canvas.clip.right) {
            DrawQuads(glyph, m_canvas.At(left, m_top));
        } else {
            DrawClipped(glyph, left);
        }
    }

  private:
    // Copies of its own, because a written pixel might be any member.
    void DrawQuads(const Glyph& glyph, DWORD* corner) const {
        const InkLanes ink = m_inkLanes;
        const ptrdiff_t stride = m_canvas.stride;
        for (const Quad& quad : glyph.quads) {
            BlendQuad(corner + quad.y * stride + quad.x, ink, quad.share);
        }
    }

    void DrawClipped(const Glyph& glyph, LONG left) const {
        const LONG top = m_top + glyph.top;
        const RECT place = {left, top, left + glyph.width, top + glyph.height};
        RECT part;
        if (!IntersectRect(&part, &place, &m_canvas.clip)) {
            return;
        }
        for (LONG y = part.top; y < part.bottom; ++y) {
            const BYTE* coverage = glyph.coverage.data() + (y - top) * glyph.width + (part.left - left);
            DrawRow(m_canvas.At(part.left, y), coverage, part.right - part.left);
        }
    }

    void DrawRow(DWORD* pixels, const BYTE* coverage, LONG count) const {
        for (LONG i = 0; i < count; ++i) {
            const DWORD share = coverage[i] + (coverage[i] >> 7);
            if (share == 256 || (m_canvas.monochrome && share > 128)) {
                pixels[i] = m_ink;
            } else if (share != 0 && !m_canvas.monochrome) {
                pixels[i] = Blend(pixels[i], m_ink, share);
            }
        }
    }

    const Canvas& m_canvas;
    const DWORD m_ink;
    const InkLanes m_inkLanes;
    const LONG m_top;
    const bool m_wholeRows; // Every row of a picture may be drawn, and in colours.
};

namespace {

void DrawGlyphs(const Canvas& canvas, CFontInstance& font, std::string_view text, POINT corner, DWORD ink) {
    const CGlyphPainter painter(canvas, ink, corner.y, font.Rows());
    const LONG overhang = font.Overhang();
    const LONG end = canvas.clip.right + overhang;
    const int count = static_cast<int>(text.size());
    LONG pen = corner.x;
    for (int at = 0; at < count && pen < end;) {
        const Character next = font.First(text.data() + at, count - at);
        const LONG after = pen + font.Advance(next);
        if (after + overhang > canvas.clip.left) {
            painter.Draw(font.Picture(next), pen);
        }
        pen = after;
        at += next.length;
    }
}

void DrawBar(const Canvas& canvas, const RECT& cell, const Bar& bar, DWORD ink) {
    FillArea(canvas, {cell.left, cell.top + bar.top, cell.right, cell.top + bar.top + bar.height}, ink,
             R2_COPYPEN);
}

// `cell` is the text's extent, in device pixels.
void DrawText(DeviceContext& context, const Canvas& canvas, std::string_view text, const RECT& cell) {
    CFontInstance& font = InstanceOf(*context.font);
    if (context.bkMode == OPAQUE) {
        FillArea(canvas, cell, PixelOf(canvas, context.bkColor), R2_COPYPEN);
    }
    const DWORD ink = PixelOf(canvas, context.textColor);
    DrawGlyphs(canvas, font, text, {cell.left, cell.top}, ink);
    if (context.font->description.lfUnderline) {
        DrawBar(canvas, cell, font.Underline(), ink);
    }
    if (context.font->description.lfStrikeOut) {
        DrawBar(canvas, cell, font.StrikeOut(), ink);
    }
}

} // namespace

} // namespace win32

using namespace win32;

BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int count) {
    DeviceContext* context = FindDc(dc);
    if (!context || count < 0 || (!text && count > 0)) {
        return context ? FailWith(ERROR_INVALID_PARAMETER) : FALSE;
    }
    const CFontInstance& font = InstanceOf(*context->font);
    const POINT point = ToDevice(*context, x, y);
    const LONG top = IsReachable(point) ? point.y - RowsAbovePoint(font, context->textAlign) : 0;
    Canvas canvas;
    // A line above or below the clip costs no look at its text.
    if (count == 0 || !IsReachable(point) || !OpenCanvas(*context, &canvas) || top >= canvas.clip.bottom ||
        top + font.Rows() <= canvas.clip.top) {
        return TRUE;
    }
    const int extent = font.Extent(text, count);
    const LONG left = point.x - ColumnsBeforePoint(extent, context->textAlign);
    const RECT cell = {left, top, left + extent, top + font.Height()};
    RECT box = {cell.left, top, cell.right, top + font.Rows()};
    InflateRect(&box, font.Overhang(), 0);
    if (NarrowForDrawing(*context, box, &canvas)) {
        DrawText(*context, canvas, {text, static_cast<size_t>(count)}, cell);
    }
    return TRUE;
}
