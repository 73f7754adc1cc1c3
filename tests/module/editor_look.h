// The host's editor on the bare view, and what a person should see of it, drawn without the module.
#pragma once

#include <string>
#include <vector>

#include "module_help.h"

inline constexpr int ViewWidth = 720;
inline constexpr int ViewHeight = 480;

/// How a text is set: lines of single bytes, in Arial.
struct TextLook {
    std::vector<std::string> lines;
    int px = 16;
    int align = 1;
    int style = 0; ///< 1 bold, 2 italic, 4 underline
    COLORREF color = RGB(255, 255, 255);
};

/// The whole view with the text alone, centred on the anchor whatever its alignment is (a change of alignment
/// leaves the text's area where it is). Rectangles are client pixels of the view.
class CTextPicture {
  public:
    CTextPicture(const TextLook& look, CPoint ptAnchor);
    ~CTextPicture();
    CTextPicture(const CTextPicture&) = delete;
    CTextPicture& operator=(const CTextPicture&) = delete;

    int Blank() const { return Extent(" ", 1); }
    int LineHeight() const { return m_nHeight; }
    /// The extent of the line's first bytes.
    int Extent(const std::string& line, int nBytes) const;
    /// The widest line by all lines, without margins.
    CRect Area() const;
    CRect Line(int nLine) const;
    /// Where a caret behind the byte stands.
    CRect Caret(int nLine, int nIndex) const;

    void Invert(const CRect& rect);
    const Pixels& View() const { return m_pixels; }

  private:
    void DrawLines(COLORREF crText);

    TextLook m_look;
    CPoint m_ptAnchor;
    HDC m_hDC;
    HFONT m_hFont;
    DWORD* m_pBits = nullptr; ///< the bitmap's
    HBITMAP m_hBitmap;
    int m_nHeight = 0;
    Pixels m_pixels;
};

/// A view without a tool in code page 1252 or another; the page is given back at the end.
class CEditorStage : public CModuleStage {
  public:
    explicit CEditorStage(UINT nCodePage = 1252);
    ~CEditorStage();

    /// An editor at the anchor that looks so, on the view alone, with nobody told of its end.
    void Open(const TextLook& look, CPoint ptAnchor);
    const EditorCalls& Calls() const { return *EditorOperations(); }
    bool CaretDrawn() const;
    /// The window's rectangle in the view's client pixels.
    CRect WindowRect() const;
    /// The view's pixels as they are, with nothing painted for the asking.
    Pixels Now() const;
    /// The view's pixels after all of it was erased and painted.
    Pixels Afresh();
};

/// Where two pictures of the view differ; empty when they are equal.
CRect DifferenceOf(const Pixels& a, const Pixels& b);
