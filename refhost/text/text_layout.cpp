#include "text/text_layout.h"

#include <algorithm>
#include <utility>

#include "host/text_node.h"
#include "text/memory_context.h"

namespace {

/// Above and below the lines, in pixels.
constexpr int RowMargin = 1;
/// A buffer's longest side, and as many pixels as a bitmap may have.
constexpr int LargestSide = 32767;
constexpr long long MostPixels = 1LL << 27;

HFONT MakeFont(const RichTextRun& run) {
    return ::CreateFontA(-run.nHeight, 0, 0, 0, run.bBold ? FW_BOLD : FW_NORMAL, run.bItalic, run.bUnderline,
                         0, run.nCharSet, 0, 0, 0, 0, run.face.c_str());
}

int WidthOf(HDC hDC, const std::string& text) {
    SIZE size{};
    ::GetTextExtentExPointA(hDC, text.data(), static_cast<int>(text.size()), 0, nullptr, nullptr, &size);
    return size.cx;
}

} // namespace

CTextLayout::CTextLayout() = default;

CTextLayout::~CTextLayout() {
    for (const Font& font : m_fonts) {
        ::DeleteObject(font.hFont);
    }
}

POINT CTextLayout::Origin() const { return {m_fonts.empty() ? 0 : m_fonts.front().nBlank, RowMargin}; }

bool CTextLayout::Make(const std::vector<RichTextRun>& runs, int nAlignCode) {
    m_nAlignCode = nAlignCode;
    const CMemoryContext context;
    if (!context.Get() || !MakeFonts(context.Get(), runs)) {
        return false;
    }
    Break(runs);
    return Measure(context.Get());
}

bool CTextLayout::MakeFonts(HDC hDC, const std::vector<RichTextRun>& runs) {
    for (const RichTextRun& run : runs) {
        Font font;
        font.hFont = MakeFont(run);
        if (!font.hFont) {
            return false;
        }
        m_fonts.push_back(font);
        const CSelectScope selected(hDC, font.hFont);
        TEXTMETRICA metrics{};
        ::GetTextMetricsA(hDC, &metrics);
        m_fonts.back().nAscent = metrics.tmAscent;
        m_fonts.back().nDescent = metrics.tmDescent;
        m_fonts.back().nBlank = WidthOf(hDC, " ");
    }
    return true;
}

// CR LF breaks, also over the border of two runs; a lone CR or LF does as well.
void CTextLayout::Break(const std::vector<RichTextRun>& runs) {
    m_lines.push_back({{}, 0});
    char chBefore = '\0';
    for (std::size_t i = 0; i < runs.size(); ++i) {
        std::string text;
        for (const char ch : runs[i].text) {
            const bool bBreak = ch == '\r' || (ch == '\n' && chBefore != '\r');
            if (bBreak) {
                AddPiece(i, std::exchange(text, {}));
                m_lines.push_back({{}, i});
            } else if (ch != '\n') {
                text += ch;
            }
            chBefore = ch;
        }
        AddPiece(i, text);
    }
}

void CTextLayout::AddPiece(std::size_t nFont, const std::string& text) {
    if (!text.empty()) {
        m_lines.back().pieces.push_back({nFont, 0, text});
    }
}

bool CTextLayout::IsPicture() const {
    const SIZE size = PictureSize();
    return size.cx <= LargestSide && size.cy <= LargestSide && 1LL * size.cx * size.cy <= MostPixels;
}

// Asked after each line and piece, long before a sum overflows.
bool CTextLayout::Measure(HDC hDC) {
    for (Line& line : m_lines) {
        if (!MeasureLine(hDC, line)) {
            return false;
        }
        m_nWidth = std::max(m_nWidth, line.nWidth);
        m_nHeight += line.nAscent + line.nDescent;
        if (!IsPicture()) {
            return false;
        }
    }
    return true;
}

bool CTextLayout::MeasureLine(HDC hDC, Line& line) {
    if (line.pieces.empty()) {
        line.nAscent = m_fonts[line.nFont].nAscent;
        line.nDescent = m_fonts[line.nFont].nDescent;
    }
    for (Piece& piece : line.pieces) {
        const Font& font = m_fonts[piece.nFont];
        const CSelectScope selected(hDC, font.hFont);
        piece.nWidth = WidthOf(hDC, piece.text);
        line.nWidth += piece.nWidth;
        if (line.nWidth > LargestSide) {
            return false;
        }
        line.nAscent = std::max(line.nAscent, font.nAscent);
        line.nDescent = std::max(line.nDescent, font.nDescent);
    }
    return true;
}

int CTextLayout::LineLeft(const Line& line) const {
    switch (m_nAlignCode) {
    case text_align_code::Right: return Origin().x + m_nWidth - line.nWidth;
    case text_align_code::Center: return Origin().x + (m_nWidth - line.nWidth) / 2;
    default: return Origin().x;
    }
}

void CTextLayout::Draw(HDC hDC) const {
    int nTop = Origin().y;
    for (const Line& line : m_lines) {
        nTop = DrawLine(hDC, line, nTop);
    }
}

int CTextLayout::DrawLine(HDC hDC, const Line& line, int nTop) const {
    int nLeft = LineLeft(line);
    for (const Piece& piece : line.pieces) {
        const Font& font = m_fonts[piece.nFont];
        const CSelectScope selected(hDC, font.hFont);
        ::TextOutA(hDC, nLeft, nTop + line.nAscent - font.nAscent, piece.text.data(),
                   static_cast<int>(piece.text.size()));
        nLeft += piece.nWidth;
    }
    return nTop + line.nAscent + line.nDescent;
}
