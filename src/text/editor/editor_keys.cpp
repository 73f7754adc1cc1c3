#include <algorithm>

#include "text/editor/double_byte.h"
#include "text/editor/inplace_editor.h"

namespace {

constexpr UINT KeyC = 0x43;
constexpr UINT KeyV = 0x56;
constexpr char Blank = ' ';

} // namespace

int CInplaceEditor::m_fnIsCtrlPressed() const { return GetKeyState(VK_CONTROL) < 0; }

UINT CInplaceEditor::OnGetDlgCode() { return DLGC_WANTALLKEYS; }

// The editor may be gone after Escape.
void CInplaceEditor::OnKeyDown(UINT nChar, UINT, UINT) {
    if (m_nMouseSelecting != 0) {
        return;
    }
    KeepOneLine();
    if (!HandleKey(nChar)) {
        Default();
    }
}

// Memory may have run out before any line of a new text was stored.
void CInplaceEditor::KeepOneLine() {
    if (m_lines.GetCount() == 0) {
        m_lines.InsertText(-1, CString());
        GoTo({0, -1});
    }
}

bool CInplaceEditor::HandleKey(UINT nKey) {
    switch (nKey) {
    case VK_BACK: Backspace(); return true;
    case VK_RETURN: BreakLine(); return true;
    case VK_ESCAPE: RestoreStartingText(); return true;
    case VK_END: MoveToLineEnd(); return true;
    case VK_HOME: MoveToLineStart(); return true;
    case VK_LEFT: MoveLeft(); return true;
    case VK_RIGHT: MoveRight(); return true;
    case VK_UP: MoveByLines(-1); return true;
    case VK_DOWN: MoveByLines(1); return true;
    case VK_DELETE: DeleteForward(); return true;
    default: return HandleShortcut(nKey);
    }
}

bool CInplaceEditor::HandleShortcut(UINT nKey) {
    if ((nKey != KeyC && nKey != KeyV) || !m_fnIsCtrlPressed() || m_nLeadPending != 0) {
        return false;
    }
    nKey == KeyC ? CopySelection() : PasteAtCaret();
    return true;
}

bool CInplaceEditor::IsAtTextEnd() const {
    return m_nCurrentLine == m_lines.GetCount() - 1 && m_nCaret == LastIndex();
}

bool CInplaceEditor::ReplaceSelectionByNothing() {
    if (m_nSelectionExists == 0) {
        return false;
    }
    CString strNothing;
    m_fnReplaceSelectRange(strNothing, 1);
    return true;
}

void CInplaceEditor::Refresh() {
    m_fnUpdateWindowPos();
    m_fnUpdateCurrentLineInfo();
    DrawCaretHere();
}

void CInplaceEditor::RemoveBytes(int nFrom, int nCount) {
    m_lines.ReplaceLine(m_nCurrentLine, m_strCurrent.Left(nFrom) + m_strCurrent.Mid(nFrom + nCount));
}

void CInplaceEditor::Backspace() {
    if (ReplaceSelectionByNothing() || IsAtTextStart()) {
        return;
    }
    MarkMoved();
    if (m_nCaret == -1) {
        JoinWithLineAbove();
    } else {
        const int nBytes = m_fnIsCursorAtMultiByteChar(m_nCaret) ? 2 : 1;
        RemoveBytes(m_nCaret + 1 - nBytes, nBytes);
        m_nCaret -= nBytes;
    }
    Refresh();
}

void CInplaceEditor::JoinWithLineAbove() {
    CString strAbove;
    m_lines.GetLine(m_nCurrentLine - 1, strAbove);
    m_lines.RemoveLine(m_nCurrentLine);
    --m_nCurrentLine;
    m_lines.ReplaceLine(m_nCurrentLine, strAbove + m_strCurrent);
    m_nCaret = strAbove.GetLength() - 1;
}

void CInplaceEditor::BreakLine() {
    ReplaceSelectionByNothing();
    MarkMoved();
    const CString strBelow = m_strCurrent.Mid(m_nCaret + 1);
    m_lines.ReplaceLine(m_nCurrentLine, m_strCurrent.Left(m_nCaret + 1));
    m_lines.InsertText(m_nCurrentLine, strBelow);
    ++m_nCurrentLine;
    m_nCaret = -1;
    Refresh();
}

// A hovering drag's restored caret is one of the text that goes.
void CInplaceEditor::RestoreStartingText() {
    m_fnOnDragLeave();
    CString strText = m_strStarting;
    m_fnSetText(strText);
    m_fnEndInput();
}

void CInplaceEditor::DeleteForward() {
    if (ReplaceSelectionByNothing() || IsAtTextEnd()) {
        return;
    }
    MarkMoved();
    if (m_nCaret == LastIndex()) {
        CString strBelow;
        m_lines.GetLine(m_nCurrentLine + 1, strBelow);
        m_lines.RemoveLine(m_nCurrentLine + 1);
        m_lines.ReplaceLine(m_nCurrentLine, m_strCurrent + strBelow);
    } else {
        RemoveBytes(m_nCaret + 1, m_fnIsCursorAtMultiByteChar(m_nCaret + 2) ? 2 : 1);
    }
    Refresh();
}

void CInplaceEditor::MoveToLineEnd() {
    ClearSelection();
    if (m_nCaret != LastIndex()) {
        MarkMoved();
        m_fnMoveCursor(LastIndex());
    }
}

void CInplaceEditor::MoveToLineStart() {
    ClearSelection();
    if (m_nCaret != -1) {
        MarkMoved();
        m_fnMoveCursor(-1);
    }
}

void CInplaceEditor::MoveLeft() {
    ClearSelection();
    if (IsAtTextStart()) {
        return;
    }
    MarkMoved();
    if (m_nCaret == -1) {
        MoveCaretTo({m_nCurrentLine - 1, m_lines.LengthOf(m_nCurrentLine - 1) - 1});
    } else {
        m_fnMoveCursor(m_nCaret - 1);
    }
}

void CInplaceEditor::MoveRight() {
    ClearSelection();
    if (IsAtTextEnd()) {
        return;
    }
    MarkMoved();
    if (m_nCaret == LastIndex()) {
        MoveCaretTo({m_nCurrentLine + 1, -1});
    } else {
        m_fnMoveCursor(m_nCaret + 1);
    }
}

// -1 is up, 1 is down.
void CInplaceEditor::MoveByLines(int nDirection) {
    ClearSelection();
    const int nTarget = m_nCurrentLine + nDirection;
    if (nTarget < 0 || nTarget >= m_lines.GetCount()) {
        return;
    }
    MarkMoved();
    CPoint point;
    m_fnGetCursorPos(point);
    point.Offset(0, nDirection * m_rcCurrent.Height());
    MoveCaretTo(HitTest(point));
}

void CInplaceEditor::OnChar(UINT nChar, UINT, UINT) {
    if (m_fnIsCtrlPressed() || m_nMouseSelecting != 0) {
        return;
    }
    char ch = static_cast<char>(nChar);
    if (m_nLeadPending == 0 && IsDBCSLeadByte(static_cast<BYTE>(ch))) {
        m_chLead = ch;
        m_nLeadPending = 1;
        return;
    }
    if (ch == VK_BACK || ch == VK_RETURN || ch == VK_ESCAPE) {
        return;
    }
    if (ch == '\t' || ch == '\n') {
        ch = Blank;
    }
    CString strPiece(ch);
    if (m_nLeadPending != 0) {
        strPiece = CString(m_chLead) + ch;
        m_nLeadPending = 0;
    }
    InsertTyped(strPiece);
}

void CInplaceEditor::InsertTyped(const CString& strPiece) {
    KeepOneLine();
    ReplaceSelectionByNothing();
    MarkMoved();
    const int nBehind = m_nCaret + 1;
    m_lines.ReplaceLine(m_nCurrentLine, m_strCurrent.Left(nBehind) + strPiece + m_strCurrent.Mid(nBehind));
    m_fnUpdateWindowPos();
    m_fnUpdateCurrentLineInfo();
    m_fnMoveCursor(m_nCaret + 1);
}
