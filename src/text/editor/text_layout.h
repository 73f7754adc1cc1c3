// Measures a text of lines and tells where they stand.
#pragma once

#include <afxwin.h>

#include "text/editor/line_store.h"
#include "text/editor/text_position.h"

/// What a layout measures with. Nothing is owned.
struct TextFormat {
    HWND hWnd;   ///< whose device context measures
    HFONT hFont; ///< null: the context's own
    COLORREF crText;
    int nAlign; ///< a text_align index; other values stand left
};

/// Selects font, colour, transparent background and the text-align mode into a context.
void SelectTextFormat(HDC hDC, const TextFormat& format, UINT nTextAlign);

/// The measurements of one step, taken afresh. It holds the window's device context while it lives, and every
/// size is 0 when there was none to have. Rectangles are client pixels of a window of the text's size: the
/// lines stand a blank's width from its left and a pixel from its top.
class CTextLayout {
  public:
    CTextLayout(const CLineStore& lines, const TextFormat& format);
    ~CTextLayout();
    CTextLayout(const CTextLayout&) = delete;
    CTextLayout& operator=(const CTextLayout&) = delete;

    /// All lines share one font, so they are equally high.
    int LineHeight() const { return m_sizeBlank.cy; }
    /// The width of one blank.
    int LeadSpace() const { return m_sizeBlank.cx; }
    int HalfLeadSpace() const { return LeadSpace() / 2; }
    /// So many lines on top of each other.
    int HeightOf(int nLines) const;
    /// An empty line is 0 wide and as high as any.
    CSize LineSize(const CString& strLine) const;
    /// The widest line by the sum of the heights. Measures every line.
    CSize TextSize() const;
    /// The text's rectangle around an anchor, in the anchor's coordinates, with its margins; without lines
    /// one line high, 0 wide and without margins.
    CRect BoundAt(const CPoint& ptAnchor) const;
    /// The lines without the margins. Measures every line unless they stand left, where only the corner and
    /// the height are told.
    CRect Area() const;
    /// The same in a window that has the text's size, without measuring; `nWindowWidth` is the window's.
    CRect AreaIn(int nWindowWidth) const;
    /// The rectangle of the line numbered `nLine` within the area.
    CRect LineRect(const CRect& rcArea, int nLine, const CString& strLine) const;
    /// The pixels of a span of the line at `rcLine`, with half a blank's width at an end at which the span
    /// goes on to another line.
    CRect SpanRect(const CRect& rcLine, const CString& strLine, const LineSpan& span) const;
    /// The extent of the bytes up to and with each one. False, nothing written, when the line is empty or
    /// cannot be measured. `pOffsets` has room for the line's bytes; `*pnCount` receives how many fit.
    bool Offsets(const CString& strLine, int* pnCount, int* pOffsets) const;
    /// The extent of the first `nBytes` bytes. Both bytes of a character end where it ends.
    int ExtentOf(const CString& strLine, int nBytes) const;

  private:
    const CLineStore& m_lines;
    HWND m_hWnd;
    HDC m_hDC;
    int m_nSaved = 0;
    int m_nAlign;
    CSize m_sizeBlank; // Both 0 without a context.
};
