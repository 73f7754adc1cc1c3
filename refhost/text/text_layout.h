// Lays the runs of a text out in lines and draws them.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

#include "text/rich_text_reader.h"

/// A text's lines, stacked, in a picture that is the in-place editor's rectangle for the same text: wider by
/// a blank of the first font on both sides and a pixel higher above and below. A line is as high as its
/// largest ascent and descent; advances are whole pixels of the platform's text layer, as the editor's are.
class CTextLayout {
  public:
    CTextLayout();
    ~CTextLayout();
    CTextLayout(const CTextLayout&) = delete;
    CTextLayout& operator=(const CTextLayout&) = delete;

    /// `nAlignCode` is a text_align_code. False when a font or the device context cannot be had,
    /// and for a text whose picture would be larger than a picture can be.
    bool Make(const std::vector<RichTextRun>& runs, int nAlignCode);

    SIZE PictureSize() const { return {m_nWidth + 2 * Origin().x, m_nHeight + 2 * Origin().y}; }
    /// Where the lines' own rectangle starts in the picture.
    POINT Origin() const;
    /// The drawing context's text colour and modes are the caller's; text-align mode 0 is taken for granted.
    void Draw(HDC hDC) const;

  private:
    struct Font {
        HFONT hFont = nullptr; ///< owned
        int nAscent = 0;
        int nDescent = 0;
        int nBlank = 0; ///< a blank's width
    };
    struct Piece {
        std::size_t nFont; ///< the number of its run, as fonts are counted
        int nWidth;
        std::string text;
    };
    struct Line {
        std::vector<Piece> pieces;
        std::size_t nFont; ///< an empty line's height comes from this one
        int nWidth = 0;
        int nAscent = 0;
        int nDescent = 0;
    };

    bool MakeFonts(HDC hDC, const std::vector<RichTextRun>& runs);
    void Break(const std::vector<RichTextRun>& runs);
    void AddPiece(std::size_t nFont, const std::string& text);
    bool Measure(HDC hDC);
    bool MeasureLine(HDC hDC, Line& line);
    bool IsPicture() const;
    int LineLeft(const Line& line) const;
    int DrawLine(HDC hDC, const Line& line, int nTop) const;

    std::vector<Font> m_fonts;
    std::vector<Line> m_lines;
    int m_nAlignCode = 0;
    int m_nWidth = 0;
    int m_nHeight = 0;
};
