#include "text/editor/inplace_editor.h"

#include "text/editor/default_font.h"

namespace {

constexpr int DefaultPoints = 12;
constexpr UINT EditorId = 100;
constexpr UINT RichEditId = 2000;
constexpr UINT BlinkTimer = 100;
constexpr UINT BlinkPeriod = 500; // Milliseconds.

constexpr DWORD RichEditStyle = WS_CHILD | WS_VSCROLL | WS_HSCROLL | ES_SAVESEL | ES_WANTRETURN |
                                ES_OEMCONVERT | ES_NOHIDESEL | ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE;
static_assert(RichEditStyle == 0x403095C4);

} // namespace

BEGIN_MESSAGE_MAP(CInplaceEditor, CWnd)
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_CREATE()
ON_WM_TIMER()
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_WM_KILLFOCUS()
ON_WM_SHOWWINDOW()
ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

CInplaceEditor::CInplaceEditor()
    : m_nFontSize(m_fnConvertFontPointToPixel(DefaultPoints)), m_strFontName(DefaultFontName()) {}

// An owner that deletes the editor wants to hear no more of it, though the window's end takes its focus.
CInplaceEditor::~CInplaceEditor() {
    m_pNotify = nullptr;
    DestroyWindow();
    FreeResources();
    m_fnSetDropWindow(nullptr);
    m_fnSetDragWindow(nullptr);
}

int CInplaceEditor::m_fnCreate(CWnd* pParent, CPoint& ptAnchor, CString& strText, int nVisible) {
    if (m_hWnd || !pParent) {
        return 0;
    }
    m_pParentWnd = pParent;
    m_ptAnchor = ptAnchor;
    const int nEnabled = m_nCaretEnabled;
    m_nCaretEnabled = 0;
    const BOOL bCreated = CreateEditorWindow(nVisible);
    if (bCreated) {
        m_lines.InsertText(-1, strText);
        FontChanged();
    }
    m_nCaretEnabled = nEnabled;
    if (!bCreated || !CreateRichEdit()) {
        return 0;
    }
    EnableExchange();
    m_strStarting = strText;
    return 1;
}

BOOL CInplaceEditor::CreateEditorWindow(int nVisible) {
    const DWORD dwStyle = WS_CHILD | (nVisible == 1 ? WS_VISIBLE : 0);
    return CreateEx(0, AfxRegisterWndClass(0, nullptr, nullptr, nullptr), "", dwStyle, CRect(0, 0, 1, 1),
                    m_pParentWnd, EditorId);
}

BOOL CInplaceEditor::CreateRichEdit() {
    return m_richEdit.Create(RichEditStyle, CRect(0, 0, 1, 1), this, RichEditId);
}

void CInplaceEditor::EnableExchange() {
    m_fnSetDropWindow(this);
    m_fnEnableDropOperation(1);
    m_fnSetDragWindow(this);
    m_fnEnableDragOperation(1);
}

void CInplaceEditor::FreeResources() {
    if (m_nTimer != 0) {
        KillTimer(m_nTimer);
        m_nTimer = 0;
    }
    m_richEdit.DestroyWindow();
    m_font.DeleteObject();
    FreeOffsets();
    m_bCaretDrawn = false;
}

void CInplaceEditor::FreeOffsets() {
    delete[] m_pOffsets;
    m_pOffsets = nullptr;
    m_nOffsets = 0;
}

void CInplaceEditor::OnDestroy() {
    FreeResources();
    CWnd::OnDestroy();
}

int CInplaceEditor::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    m_nTimer = static_cast<UINT>(SetTimer(BlinkTimer, BlinkPeriod, nullptr));
    return 0;
}

void CInplaceEditor::m_fnSetText(CString& strText) {
    m_lines.RemoveAll();
    m_lines.InsertText(-1, strText);
    m_strStarting = strText;
    m_nCurrentLine = 0;
    m_nCaret = -1;
    ForgetSelection();
    FontChanged();
}

void CInplaceEditor::m_fnGetText(CString& strText) const { JoinTrimmedLines("\n", strText); }

void CInplaceEditor::m_fnGetText2(CString& strText) const { JoinTrimmedLines("\n\r", strText); }

void CInplaceEditor::JoinTrimmedLines(LPCSTR pszSeparator, CString& strText) const {
    int nCount = m_lines.GetCount();
    for (POSITION position = m_lines.Last(); position && TrimmedBlanks(m_lines.Prev(position)).IsEmpty();) {
        --nCount;
    }
    strText.Empty();
    POSITION position = m_lines.Begin();
    for (int i = 0; i < nCount; ++i) {
        if (i > 0) {
            strText += pszSeparator;
        }
        strText += TrimmedBlanks(m_lines.Next(position));
    }
}

// Without a new font the caret still needs to know its line.
void CInplaceEditor::FontChanged() {
    if (m_hWnd && m_fnRegenerateFont() == 0) {
        m_fnUpdateCurrentLineInfo();
    }
}

void CInplaceEditor::m_fnSetFont(CString& strName) {
    m_strFontName = strName;
    FontChanged();
}

void CInplaceEditor::m_fnSetFontSizeInPoint(int nPoints) {
    m_nFontSize = m_fnConvertFontPointToPixel(nPoints);
    FontChanged();
}

void CInplaceEditor::m_fnSetFontSizeInPixel(int nPixels) {
    m_nFontSize = nPixels;
    FontChanged();
}

void CInplaceEditor::m_fnSetFontStyle(int nBits) {
    m_nBold = (nBits & text_style::Bold) != 0;
    m_nItalic = (nBits & text_style::Italic) != 0;
    m_nUnderline = (nBits & text_style::Underline) != 0;
    FontChanged();
}

// The parent's pixels lie under the editor, so it has to be painted from there.
void CInplaceEditor::m_fnSetFontColor(COLORREF crText) {
    m_crText = crText;
    if (!IsHidden()) {
        Invalidate(TRUE);
        RepaintAllOnParent();
    }
}

void CInplaceEditor::m_fnGetFontName(CString& strName) const { strName = m_strFontName; }

BOOL CInplaceEditor::PreTranslateMessage(MSG* pMsg) {
    TranslateMessage(pMsg);
    DispatchMessageA(pMsg);
    return TRUE;
}
