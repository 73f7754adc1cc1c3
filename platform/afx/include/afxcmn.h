#pragma once

// The wrappers of the common controls.

#include "afxwin.h"

#include <richedit.h>

/// Makes the class of the rich-edit control, version 1, known; FALSE when its library cannot be had.
BOOL AfxInitRichEdit();

/// The rich-edit control (see richedit.h): bytes of text, a line's end being the two bytes CR LF, with
/// a format a character. Positions count bytes; the selection ends before its end position.
class CRichEditCtrl : public CWnd {
    DECLARE_DYNAMIC(CRichEditCtrl)

    CRichEditCtrl() = default;

    using CWnd::Create;
    /// FALSE when the control cannot be had.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// At least 1.
    int GetLineCount() const { return static_cast<int>(::SendMessageA(m_hWnd, EM_GETLINECOUNT, 0, 0)); }
    /// Copies the line without its end and without a zero; an empty line reads as a bare CR. The bytes
    /// copied, at most as many as the buffer's first word says, or `nMaxLength`.
    int GetLine(int nIndex, LPSTR lpszBuffer) const;
    int GetLine(int nIndex, LPSTR lpszBuffer, int nMaxLength) const;
    /// The line's start; -1 for no such line. Line -1 is the one in which the selection starts.
    int LineIndex(int nLine = -1) const;
    /// The length, without its end, of the line that holds this position.
    int LineLength(int nIndex) const;
    long GetTextLength() const { return ::SendMessageA(m_hWnd, WM_GETTEXTLENGTH, 0, 0); }

    /// An end of -1 is the text's end.
    void SetSel(long nStartChar, long nEndChar);
    void SetSel(CHARRANGE& cr) { ::SendMessageA(m_hWnd, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&cr)); }
    void GetSel(CHARRANGE& cr) const {
        ::SendMessageA(m_hWnd, EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&cr));
    }
    void GetSel(long& nStartChar, long& nEndChar) const;
    /// The buffer takes the selected bytes and a zero; answers their number.
    long GetSelText(LPSTR lpBuf) const {
        return ::SendMessageA(m_hWnd, EM_GETSELTEXT, 0, reinterpret_cast<LPARAM>(lpBuf));
    }
    CString GetSelText() const;
    void ReplaceSel(LPCSTR lpszNewText, BOOL bCanUndo = FALSE);
    /// Deletes the selected text.
    void Clear() { ::SendMessageA(m_hWnd, WM_CLEAR, 0, 0); }
    void HideSelection(BOOL bHide, BOOL bPerm);

    /// The setters set what the mask names; the getters answer the mask, in which a selection's mixed values
    /// are missing. All fill in the structure's size.
    BOOL SetDefaultCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_DEFAULT, cf); }
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const { return GetFormat(SCF_DEFAULT, cf); }
    BOOL SetSelectionCharFormat(CHARFORMAT& cf) { return SetFormat(SCF_SELECTION, cf); }
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const { return GetFormat(SCF_SELECTION, cf); }

  private:
    BOOL SetFormat(UINT nWhere, CHARFORMAT& cf);
    DWORD GetFormat(UINT nWhere, CHARFORMAT& cf) const;
};
