#include "afxcmn.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

// The library registers the window class and stays as long as the process.
BOOL AfxInitRichEdit() {
    static const HMODULE hRichEdit = ::LoadLibraryA("RICHED32.DLL");
    return hRichEdit != nullptr;
}

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return AfxInitRichEdit() && CWnd::Create("RICHEDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CRichEditCtrl::GetLine(int nIndex, LPSTR lpszBuffer) const {
    return static_cast<int>(::SendMessageA(m_hWnd, EM_GETLINE, static_cast<WPARAM>(nIndex),
                                           reinterpret_cast<LPARAM>(lpszBuffer)));
}

int CRichEditCtrl::GetLine(int nIndex, LPSTR lpszBuffer, int nMaxLength) const {
    const WORD wMaxLength = static_cast<WORD>(nMaxLength);
    std::memcpy(lpszBuffer, &wMaxLength, sizeof wMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

int CRichEditCtrl::LineIndex(int nLine) const {
    return static_cast<int>(::SendMessageA(m_hWnd, EM_LINEINDEX, static_cast<WPARAM>(nLine), 0));
}

int CRichEditCtrl::LineLength(int nIndex) const {
    return static_cast<int>(::SendMessageA(m_hWnd, EM_LINELENGTH, static_cast<WPARAM>(nIndex), 0));
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar) {
    CHARRANGE cr = {static_cast<LONG>(nStartChar), static_cast<LONG>(nEndChar)};
    SetSel(cr);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const {
    CHARRANGE cr = {0, 0};
    GetSel(cr);
    nStartChar = cr.cpMin;
    nEndChar = cr.cpMax;
}

CString CRichEditCtrl::GetSelText() const {
    CHARRANGE cr = {0, 0};
    GetSel(cr);
    CString strText;
    const int nCopied = static_cast<int>(GetSelText(strText.GetBuffer(cr.cpMax - cr.cpMin)));
    strText.ReleaseBuffer(nCopied);
    return strText;
}

void CRichEditCtrl::ReplaceSel(LPCSTR lpszNewText, BOOL bCanUndo) {
    ::SendMessageA(m_hWnd, EM_REPLACESEL, static_cast<WPARAM>(bCanUndo),
                   reinterpret_cast<LPARAM>(lpszNewText));
}

void CRichEditCtrl::HideSelection(BOOL bHide, BOOL bPerm) {
    ::SendMessageA(m_hWnd, EM_HIDESELECTION, static_cast<WPARAM>(bHide), bPerm);
}

BOOL CRichEditCtrl::SetFormat(UINT nWhere, CHARFORMAT& cf) {
    cf.cbSize = sizeof(CHARFORMAT);
    return static_cast<BOOL>(::SendMessageA(m_hWnd, EM_SETCHARFORMAT, nWhere, reinterpret_cast<LPARAM>(&cf)));
}

DWORD CRichEditCtrl::GetFormat(UINT nWhere, CHARFORMAT& cf) const {
    cf.cbSize = sizeof(CHARFORMAT);
    return static_cast<DWORD>(
        ::SendMessageA(m_hWnd, EM_GETCHARFORMAT, nWhere, reinterpret_cast<LPARAM>(&cf)));
}
