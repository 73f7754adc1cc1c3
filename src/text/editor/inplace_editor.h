// The in-place editor: a child window of the canvas view in which a person writes on the page itself.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "host/buffer.h"
#include "host/drag_drop.h"
#include "host/rich_text.h"
#include "text/editor/line_store.h"
#include "text/editor/text_layout.h"
#include "text/editor/text_position.h"
#include "text/editor/text_style.h"

class CInplaceEditor;

/// Told when an editor's input ends.
class IInplaceEditorNotify {
  public:
    /// At most once an editing. The editor may be destroyed and deleted in here.
    virtual void OnInputEnded(CInplaceEditor* pEditor) = 0;

  protected:
    ~IInplaceEditorNotify() = default;
};

/// Edits a text of ANSI bytes in one font, colour, style and alignment, a stack of lines. The window always
/// has the size of the text; it stands at the anchor: the first line's vertical middle and, by alignment, the
/// left end, the middle or the right end of the widest line. Made with `new`; the owner deletes it, which may
/// happen in the notification of the end of input. Measurements give empty results while no device context
/// can be had.
class AFX_EXT_CLASS CInplaceEditor : public CWnd, public CDragDropTarget, public CDragDropSource {
  public:
    CInplaceEditor();
    ~CInplaceEditor() override;

    /// Makes the window as a child of `pParent` at the anchor (client pixels of the parent), with the text
    /// parted at each LF, visible for 1. 1, or 0 when a window cannot be made.
    int m_fnCreate(CWnd* pParent, CPoint& ptAnchor, CString& strText, int nVisible);

    /// Replaces the text, parted at each LF; Escape restores it from now on.
    void m_fnSetText(CString& strText);
    /// The lines without blanks at both ends and without empty lines at the end, joined by LF.
    void m_fnGetText(CString& strText) const;
    /// The same joined by the two bytes LF CR, as the text engine takes it.
    void m_fnGetText2(CString& strText) const;
    void m_fnSetFont(CString& strName);
    void m_fnSetFontSizeInPoint(int nPoints);
    /// The character height in pixels.
    void m_fnSetFontSizeInPixel(int nPixels);
    /// 1 bold, 2 italic, 4 underline.
    void m_fnSetFontStyle(int nBits);
    void m_fnSetFontColor(COLORREF crText);
    /// A text_align index. With a window the first line stays where it is, and other values keep the anchor;
    /// without one the anchor becomes (0, 0).
    void m_fnSetTextAlignType(int nAlign);
    void m_fnGetFontName(CString& strName) const;
    int m_fnIsBold() const { return m_nBold; }
    int m_fnIsItalic() const { return m_nItalic; }
    int m_fnIsUnderLine() const { return m_nUnderline; }
    COLORREF m_fnGetTextColor() const { return m_crText; }
    int m_fnGetFontSizeInPixel() const { return m_nFontSize; }
    int m_fnGetAlignType() const { return m_nAlign; }
    /// By the resolution of the window's device context.
    int m_fnGetFontSizeInPoint();
    /// The lines' rectangle in the parent's client pixels, wider by a blank on both sides and higher by a
    /// pixel above and below; without lines, one line high and 0 wide. Always 1.
    int m_fnGetTextBoundRect(CRect& rcBound);
    /// Moves window and anchor so that the window's middle is at the point (client pixels of the parent).
    void m_fnCenterWindow(CPoint& ptCenter);
    /// Not owned; null for none.
    void m_fnRegisterNotifyObject(IInplaceEditorNotify* pNotify) { m_pNotify = pNotify; }

    /// The display's vertical resolution in pixels an inch; 96 when the display cannot be asked.
    static int m_fnGetDispdpi();
    /// Points times dpi by 72, rounded; 0 when the display cannot be asked.
    static int m_fnConvertFontPointToPixel(int nPoints);
    /// Pixels times 72 by dpi, rounded; 0 when the display cannot be asked.
    static int m_fnConvertFontPixelToNearestPoint(int nPixels);
    /// Twips are 1/1440 inch. Both ways round toward zero.
    static int m_fnPix2Twip(int nPixels);
    static int m_fnTwip2Pix(int nTwips);

    /// Selects the bytes behind the first place up to and with the second; both are brought into the text,
    /// and swapped when out of order. (0, -1, 0, -1) clears the selection.
    void m_fnSetSelectRange(int nStartLine, int nStartIndex, int nEndLine, int nEndIndex);
    /// Puts the text, parted at each LF, in the selection's place; without a selection at the caret, which
    /// stays before it. 1 as `nRedraw` resizes and repaints the window.
    void m_fnReplaceSelectRange(CString& strText, int nRedraw);
    /// Moves the caret to the place nearest to the point (client pixels of the parent).
    void m_fnMoveCursorTo(CPoint& ptParent);
    /// Ends the input and tells the notify target, the first time. The editor may be gone afterwards.
    void m_fnEndInput();
    /// The selected bytes, lines joined by LF; empty without a selection. Always 1.
    int m_fnGetSelectedText(CString& strText) const;
    /// The text as a rich-text record, its sizes times `dScale`; an empty handle for an empty text or when
    /// the record cannot be made.
    CHandle<QXRICHEDITINFO, CHandleKiller> m_fnGetRichText(double dScale);
    /// A 24-bit buffer of the text colour and an 8-bit mask of the glyphs (255 on text, else 0), both of the
    /// bound rectangle's size and the caller's to free. 1, or 0 with both outputs 0; null is no output.
    int m_fnGetBuffer(HBUF32* phImage, HBUF32* phMask);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    int m_fnOnPrepareDrag(CPoint& point) override;
    int m_fnOnPrepareDragData_CF_TEXT(CPoint& point, CString& strData) override;
    int m_fnOnDataArrive(int nReserved, int nPhase, UINT nFormat, CString& strData, DWORD dwKeyState,
                         CPoint point, DWORD dwSource, DWORD* pdwEffect) override;
    void m_fnOnDataArrive_CF_TEXT(int nReserved, CString& strData, DWORD dwReserved,
                                  DWORD* pdwEffect) override;
    void m_fnOnDragLeave() override;

    /// What a host may look at.
    const CLineStore& Lines() const { return m_lines; }
    TextPosition Caret() const { return {m_nCurrentLine, m_nCaret}; }
    TextRange Selection() const { return m_selection; }
    bool HasSelection() const { return m_nSelectionExists != 0; }
    bool IsCaretEnabled() const { return m_nCaretEnabled != 0; }
    bool IsMouseSelecting() const { return m_nMouseSelecting != 0; }
    /// Whether the caret's toggled pixels are on the window now.
    bool IsCaretDrawn() const { return m_bCaretDrawn; }

  protected:
    // Font, measuring and placing. Rectangles of lines are client pixels.
    int m_fnRegenerateFont();
    void m_fnUpdateWindowPos();
    int m_fnUpdateCurrentLineInfo();
    int m_fnGetLineSize(int nLine, CSize& size);
    void m_fnGetEmptyLineSize(CSize& size);
    int m_fnGetLineBoundRect(int nLine, CRect& rcLine);
    int m_fnGetLineLeadSpace();
    /// `*ppOffsets` is the caller's to delete[]: the pixel extent of the line up to and with each byte.
    int m_fnGetLineCharOffset(int nLine, int* pnCount, int** ppOffsets);
    /// 1 when the character left of the index is one of two bytes.
    int m_fnIsCursorAtMultiByteChar(int nIndex) const;
    int m_fnIsCtrlPressed() const;

    // Caret.
    void m_fnGetCursorBoundRect(CRect& rcCaret) const;
    void m_fnDrawCursor();
    void m_fnShowCursor(int nShow);
    void m_fnMoveCursor(int nIndex);
    void m_fnGetCursorPos(CPoint& point) const;
    void m_fnHitTest(const CPoint& point, int* pnLine, int* pnIndex);

    // Selection.
    int m_fnGetAbsoluteCharIndex(int nLine, int nIndex) const;
    void m_fnConvertToLineIndex(int nAbsolute, int* pnLine, int* pnIndex) const;
    LineSpan m_fnCalculateLineIntersection(int nLine, const TextRange& range) const;
    /// Invalidates on the parent where the two spans of a line differ.
    void m_fnCalculateLineIntersection(int nLine, const LineSpan& before, const LineSpan& after);
    void m_fnInvalidateLineRange(int nLine, int nFrom, int nTo);
    int m_fnIsInsideSelectionRange(const CPoint& point);
    void m_fnInvertFillRect(CDC& dc, const CRect& rcArea);
    static void m_fnConvertToClipboardNewLine(const CString& strIn, CString& strOut);
    static void m_fnConvertClipboardNewLine(const CString& strIn, CString& strOut);

    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnTimer(UINT nIDEvent);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

  private:
    // Keys. HandleKey is false for a key that is none of the editor's.
    bool HandleKey(UINT nKey);
    bool HandleShortcut(UINT nKey);
    void KeepOneLine();
    void Backspace();
    void JoinWithLineAbove();
    void BreakLine();
    void RestoreStartingText();
    void DeleteForward();
    void MoveToLineEnd();
    void MoveToLineStart();
    void MoveLeft();
    void MoveRight();
    void MoveByLines(int nDirection);
    void CopySelection();
    void PasteAtCaret();
    void RemoveBytes(int nFrom, int nCount);
    void InsertTyped(const CString& strPiece);
    bool ReplaceSelectionByNothing();
    void ClearSelection();
    void Refresh();
    void MarkMoved() { m_nKeyboardMove = 1; }
    bool IsAtTextStart() const { return m_nCurrentLine == 0 && m_nCaret == -1; }
    bool IsAtTextEnd() const;
    int LastIndex() const { return m_strCurrent.GetLength() - 1; }
    bool IsHidden() const { return !m_hWnd || !IsWindowVisible(); }

    // Caret places.
    /// Moves the caret's place; pixels that show it move along.
    void GoTo(const TextPosition& position);
    /// The same as a move of the person's: shows the caret and repaints where it stood.
    void MoveCaretTo(const TextPosition& position);
    /// Brings the caret's pixels to where the caret is, when they are on the window at all.
    void SyncCaretPixels();
    /// Makes the caret visible now; nothing while it is disabled or the window hidden.
    void DrawCaretHere();
    bool ToggleCaretPixels(const CRect& rcCaret);
    void RepaintOnParent(const CRect& rcClient);
    CRect RectInParent() const;
    void RepaintAllOnParent();
    int ExtentAt(int nIndex) const;
    TextPosition HitTest(const CPoint& point);

    // Selection.
    TextRange ClampedRange(TextRange range) const;
    void ForgetSelection();
    void RepaintChange(const TextRange& before, const TextRange& after);
    /// Invalidates on the parent where the two selections differ.
    void InvalidateChange(const TextRange& before, const TextRange& after);
    void InvalidateChange(const CTextLayout& layout, const CRect& rcLine, const CString& strLine,
                          const LineSpan& before, const LineSpan& after);
    void InvalidateSpan(const CTextLayout& layout, const CRect& rcLine, const CString& strLine,
                        const LineSpan& span);
    void ReplaceSelected(const CString& strText, int nRedraw);
    void InsertAtCaret(const CString& strText, int nRedraw);
    void RedrawAfterChange(int nRedraw);
    void SpliceRange(const TextRange& range, const CString& strText);

    // Layout.
    CTextLayout Measure() const;
    /// The lines without margins, client pixels.
    CRect TextArea(const CTextLayout& layout) const;
    TextFormat Format() const;
    void PaintLines(CDC& dc);
    void PaintLine(CDC& dc, const CTextLayout& layout, const CRect& rcLine, int nLine,
                   const CString& strLine);
    void PaintSelectedLine(CDC& dc, const CTextLayout& layout, const CRect& rcLine, const CString& strLine,
                           const LineSpan& span);
    void PaintBorder(CDC& dc);
    void RestoreCaretPixels(CDC& dc);
    void FontChanged();
    void FreeResources();
    void FreeOffsets();
    void JoinTrimmedLines(LPCSTR pszSeparator, CString& strText) const;
    BOOL CreateEditorWindow(int nVisible);
    BOOL CreateRichEdit();
    void EnableExchange();

    // Drops.
    void EnterHover();
    void LeaveHover();
    void ShowDropPlace(const CPoint& point);
    /// The drop_effect that the hovering drag would have.
    DWORD DropEffect() const { return m_nDropMoves != 0 ? drop_effect::Move : drop_effect::Copy; }
    /// Hides the caret when it is enabled, and tells whether it was.
    bool HideShownCaret();

    // Export.
    void PrepareRichEdit(int nTwips);
    void DropEmptyLastLines();
    void DrawStackedLines(CDC& dc, const CTextLayout& layout);

    CWnd* m_pParentWnd = nullptr; ///< not owned
    CPoint m_ptAnchor;            ///< client pixels of the parent
    CFont m_font;
    int m_nFontSize; ///< character height in pixels
    int m_nBold = 0;
    int m_nItalic = 0;
    int m_nUnderline = 0;
    CString m_strFontName;
    int m_nAlign = text_align::Center;
    COLORREF m_crText = RGB(255, 255, 255);
    int m_nCaret = -1;
    int m_nCaretEnabled = 1;
    UINT m_nTimer = 0;
    CLineStore m_lines;
    int m_nCurrentLine = 0;
    CString m_strCurrent; ///< a copy of the current line
    int m_nOffsets = 0;
    int* m_pOffsets = nullptr; ///< owned: the extent of the current line up to and with each byte
    CRect m_rcCurrent;         ///< the current line's rectangle, client pixels
    int m_nLeadPending = 0;
    char m_chLead = 0;
    int m_nKeyboardMove = 0;
    IInplaceEditorNotify* m_pNotify = nullptr; ///< not owned
    CRichEditCtrl m_richEdit;                  ///< hidden; the rich-text export works in it
    int m_nCaretRedraw = 0;
    TextRange m_selection{{0, -1}, {0, -1}};
    int m_nSelectionExists = 0;
    int m_nMouseSelecting = 0;
    TextPosition m_selectAnchor;
    TextPosition m_selectMoving;
    CPoint m_ptDrop;
    int m_nDropMoves = 0;
    int m_nHovering = 0;
    TextPosition m_savedCaret;
    int m_nSavedEnabled = 0;
    CString m_strStarting;
    int m_nFittingWidth = 0;    ///< the window's width while it has the text's size, else 0
    bool m_bCaretDrawn = false; ///< whether the caret's toggled pixels are on the window
    CRect m_rcDrawn;            ///< where they are, client pixels
};
