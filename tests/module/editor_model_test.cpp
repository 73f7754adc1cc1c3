// The editor against its model over random events. A failing text is run again alone with
// PRADIX_SEED=<its seed> PRADIX_EDITS=1.
#include <array>
#include <cstdlib>
#include <memory>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "editor_binding.h"
#include "editor_host.h"
#include "editor_model.h"
#include "platform/clipboard.h"
#include "platform/code_page.h"
#include "platform/surface.h"
#include "services/drag_host.h"
#include "stage.h"

namespace {

constexpr int EditsPerText = 250;
constexpr int DefaultEdits = 50000;
constexpr unsigned DefaultSeed = 20260201;
constexpr std::size_t MostLines = 9;
constexpr std::size_t LongestLine = 40;
constexpr int ViewWidth = 300;
constexpr int ViewHeight = 200;
constexpr std::size_t EditsPerPainting =
    20;                         ///< about as often the screen is compared with one painted afresh
constexpr int DragDistance = 4; ///< pixels that make a press on the selection a drag
constexpr CPoint Anchor = {150, 40};

constexpr std::array<int, 10> Keys = {VK_BACK, VK_RETURN, VK_DELETE, VK_END,  VK_HOME,
                                      VK_LEFT, VK_RIGHT,  VK_UP,     VK_DOWN, VK_BACK};
constexpr std::array<const char*, 4> Faces = {"Arial", "Courier New", "Times New Roman", "MS Gothic"};

/// Characters as a person types them, and rarer ones.
const std::array<std::string, 12> SingleBytes = {"a", "i",    "W",    "b",    "m",  " ",
                                                 " ", "\xE9", "\x99", "\xB7", "\r", "\x7F"};
const std::array<std::string, 12> DoubleBytes = {
    "a", "i", " ", " ", "\xB1", "\x83\x41", "\x8A\xBF", "\x82\xA0", "\r", "\x83\x5C", "\xE0\x40", "\x81\x7C"};

unsigned NumberFrom(const char* pszVariable, unsigned nDefault) {
    const char* pszText = std::getenv(pszVariable);
    return pszText ? static_cast<unsigned>(std::strtoul(pszText, nullptr, 10)) : nDefault;
}

/// A font, and a context of its own to measure with.
class CMeasuring {
  public:
    CMeasuring() : m_hDC(::CreateCompatibleDC(nullptr)) {}
    ~CMeasuring() {
        ::DeleteDC(m_hDC);
        ::DeleteObject(m_hFont);
    }
    CMeasuring(const CMeasuring&) = delete;
    CMeasuring& operator=(const CMeasuring&) = delete;

    ModelFont Use(const char* pszFace, int nPixels, bool bBold) {
        HFONT hFont = ::CreateFontA(-nPixels, 0, 0, 0, bBold ? 700 : 400, 0, 0, 0, 1, 0, 0, 0, 0, pszFace);
        ::SelectObject(m_hDC, hFont);
        ::DeleteObject(m_hFont);
        m_hFont = hFont;
        SIZE blank{};
        ::GetTextExtentExPointA(m_hDC, " ", 1, 0, nullptr, nullptr, &blank);
        return {static_cast<int>(blank.cy), static_cast<int>(blank.cx),
                [this](const std::string& line) { return Extents(line); }};
    }

  private:
    std::vector<int> Extents(const std::string& line) const {
        std::vector<int> extents(line.size());
        SIZE size;
        ::GetTextExtentExPointA(m_hDC, line.data(), static_cast<int>(line.size()), 0, nullptr, extents.data(),
                                &size);
        return extents;
    }

    HDC m_hDC;
    HFONT m_hFont = nullptr;
};

/// One editor, its model, and the hand that works on both.
class CRandomText {
  public:
    CRandomText(CStage& stage, unsigned nSeed, bool bDoubleByte)
        : m_stage(stage), m_random(nSeed), m_bDoubleByte(bDoubleByte),
          m_show(Below(2) ? Show::Now : Show::Later) {
        ::OpenClipboard(nullptr);
        ::EmptyClipboard();
        ::CloseClipboard();
        OpenEditor();
    }
    ~CRandomText() { m_stage.DestroyEditor(); }
    CRandomText(const CRandomText&) = delete;
    CRandomText& operator=(const CRandomText&) = delete;

    void Edit();
    /// What is not as the model has it, or nothing.
    std::string Difference();
    std::string Log() const { return m_log.str(); }

  private:
    using Operation = void (CRandomText::*)();

    std::size_t Below(std::size_t nCount) { return m_random() % nCount; }
    int Between(int nLeast, int nMost) {
        return nLeast + static_cast<int>(Below(static_cast<std::size_t>(nMost - nLeast + 1)));
    }
    bool OneIn(std::size_t nCount) { return Below(nCount) == 0; }
    std::string RandomText(int nMostPieces);
    CPoint RandomPoint();
    template <class... What>
    void Note(const What&... what) {
        ((m_log << what << ' '), ...);
        m_log << '\n';
    }
    template <class Result, class Self, class... Params, class... Args>
    Result Call(Result (Self::*EditorCalls::*pfnCall)(Params...), Args&&... args) {
        return (Editor().*(m_stage.EditorOperations()->*pfnCall))(std::forward<Args>(args)...);
    }
    CInplaceEditor& Editor() { return *m_stage.Editor(); }
    EditorState EditorNow();
    std::vector<DWORD> ScreenNow();
    bool IsScreenStale();
    CPoint InView(CPoint point);
    bool IsInView(CPoint point);
    void Send(UINT nMessage, WPARAM wParam, CPoint point = {0, 0}) {
        ::SendMessageA(Editor().m_hWnd, nMessage, wParam, MAKELPARAM(point.x, point.y));
    }

    void OpenEditor();
    void OpenAfterEnd();
    void TypeSome();
    void TypeOdd();
    void PressKey();
    void SelectSome();
    void ReplaceSome();
    void SetText();
    void Copy();
    void Paste();
    void CopyOutside();
    void ClickOrDrag();
    void DropFromOutside();
    void DragSelection();
    void MoveCaret();
    void ChangeLook();
    void EndInput();
    void HoldControl();
    void PassTime();
    void PressAndDrag(CPoint from);

    CStage& m_stage;
    std::mt19937 m_random;
    bool m_bDoubleByte;
    Show m_show;
    CMeasuring m_measuring;
    std::unique_ptr<CEditorModel> m_pModel;
    std::ostringstream m_log;
    std::string m_wrong; ///< an answer that is not the model's
    bool m_bUnpainted =
        false; ///< whether the text changed by an operation that leaves the painting to others
};

void CRandomText::OpenEditor() {
    const std::string text = RandomText(12);
    Note("open", Shown(text), m_show == Show::Now ? "shown" : "hidden");
    const int nEnded = m_stage.EndedInputs();
    m_stage.NewEditor(Anchor, text, m_show);
    const auto clipboard = m_pModel ? m_pModel->clipboard : std::nullopt;
    const int nPixels = m_stage.EditorOperations()->m_fnConvertFontPointToPixel(12);
    m_pModel =
        std::make_unique<CEditorModel>(m_bDoubleByte, Anchor, text, m_measuring.Use("Arial", nPixels, false));
    m_pModel->clipboard = clipboard;
    m_wrong = m_stage.EndedInputs() == nEnded ? "" : "opening ended the input";
}

std::string CRandomText::RandomText(int nMostPieces) {
    std::string text;
    for (int n = Between(0, nMostPieces); n > 0; --n) {
        text += OneIn(6) ? "\n" : (m_bDoubleByte ? DoubleBytes : SingleBytes)[Below(SingleBytes.size())];
    }
    return text;
}

// Mostly on the text, and sometimes around it.
CPoint CRandomText::RandomPoint() {
    CRect rc;
    Editor().GetClientRect(&rc);
    return {Between(-3, rc.right + 3), Between(-3, rc.bottom + 3)};
}

// A client pixel of the editor as one of the view.
CPoint CRandomText::InView(CPoint point) {
    Editor().ClientToScreen(&point);
    Editor().GetParent()->ScreenToClient(&point);
    return point;
}

bool CRandomText::IsInView(CPoint point) {
    CRect rcView;
    CRect rcEditor;
    Editor().GetClientRect(&rcEditor);
    Editor().GetParent()->GetClientRect(&rcView);
    return m_show == Show::Now && rcEditor.PtInRect(point) && rcView.PtInRect(InView(point));
}

EditorState CRandomText::EditorNow() {
    CInplaceEditor& editor = Editor();
    EditorState state;
    state.lines = m_stage.EditorLines();
    state.caret = {editor.Caret().nLine, editor.Caret().nIndex};
    state.selected = editor.HasSelection();
    state.from = {editor.Selection().start.nLine, editor.Selection().start.nIndex};
    state.to = {editor.Selection().end.nLine, editor.Selection().end.nIndex};
    state.selecting = editor.IsMouseSelecting();
    editor.GetWindowRect(&state.window);
    editor.GetParent()->ScreenToClient(&state.window);
    return state;
}

std::vector<DWORD> CRandomText::ScreenNow() {
    m_stage.Paint();
    std::vector<DWORD> pixels;
    platform::Surface surface;
    platform::LockSurface(m_stage.Desk().View()->m_hWnd, &surface);
    for (int nY = 0; nY < surface.height; ++nY) {
        const DWORD* pRow = surface.pixels + static_cast<std::ptrdiff_t>(nY) * surface.stride;
        pixels.insert(pixels.end(), pRow, pRow + surface.width);
    }
    return pixels;
}

// Whether a painting of everything shows something else than what was painted piece by piece.
bool CRandomText::IsScreenStale() {
    const std::vector<DWORD> before = ScreenNow();
    m_stage.Desk().View()->Invalidate();
    const bool bMayDiffer = std::exchange(m_bUnpainted, false);
    return before != ScreenNow() && !bMayDiffer;
}

std::string CRandomText::Difference() {
    if (!m_wrong.empty() || !m_stage.Editor()) {
        return m_wrong.empty() ? "the editor is gone" : m_wrong;
    }
    const EditorState is = EditorNow();
    const EditorState ought = m_pModel->State();
    std::ostringstream text;
    if (!(is == ought)) {
        text << "the editor  " << is << "\nits model   " << ought;
    } else if (m_stage.SelectedText() != m_pModel->SelectedText()) {
        text << "selected text " << Shown(m_stage.SelectedText());
    } else if (platform::ClipboardText() != m_pModel->clipboard.value_or("")) {
        text << "clipboard " << Shown(platform::ClipboardText());
    } else if (OneIn(EditsPerPainting) && !m_pModel->HasOddPairs() && IsScreenStale()) {
        text << "the screen is not the text";
    }
    return text.str();
}

void CRandomText::Edit() {
    constexpr std::array<Operation, 32> Operations = {
        &CRandomText::TypeSome,      &CRandomText::TypeSome,        &CRandomText::TypeSome,
        &CRandomText::TypeSome,      &CRandomText::TypeSome,        &CRandomText::TypeOdd,
        &CRandomText::PressKey,      &CRandomText::PressKey,        &CRandomText::PressKey,
        &CRandomText::PressKey,      &CRandomText::PressKey,        &CRandomText::PressKey,
        &CRandomText::PressKey,      &CRandomText::SelectSome,      &CRandomText::SelectSome,
        &CRandomText::ReplaceSome,   &CRandomText::ReplaceSome,     &CRandomText::Copy,
        &CRandomText::Paste,         &CRandomText::Paste,           &CRandomText::ClickOrDrag,
        &CRandomText::ClickOrDrag,   &CRandomText::DropFromOutside, &CRandomText::DropFromOutside,
        &CRandomText::DragSelection, &CRandomText::DragSelection,   &CRandomText::MoveCaret,
        &CRandomText::HoldControl,   &CRandomText::PassTime,        &CRandomText::CopyOutside,
        &CRandomText::ChangeLook,    &CRandomText::EndInput,
    };
    (this->*Operations[Below(Operations.size())])();
    if (m_pModel->IsEnded()) {
        OpenAfterEnd();
    }
    bool bLarge = m_pModel->State().lines.size() > MostLines;
    for (const std::string& line : m_pModel->State().lines) {
        bLarge = bLarge || line.size() > LongestLine;
    }
    if (bLarge) {
        SetText();
    }
}

void CRandomText::TypeSome() {
    for (int n = Between(1, 3); n > 0; --n) {
        const std::string& bytes = (m_bDoubleByte ? DoubleBytes : SingleBytes)[Below(SingleBytes.size())];
        Note("type", Shown(bytes));
        for (const char c : bytes) {
            Send(WM_CHAR, static_cast<unsigned char>(c));
            m_pModel->Type(static_cast<unsigned char>(c));
        }
    }
}

// Control characters, and halves of characters.
void CRandomText::TypeOdd() {
    constexpr std::array<unsigned char, 8> Odd = {0, VK_BACK, '\t', '\n', '\r', VK_ESCAPE, 0x83, 0xFC};
    const unsigned char ch = Odd[Below(Odd.size())];
    Note("type odd", static_cast<int>(ch));
    Send(WM_CHAR, ch);
    m_pModel->Type(ch);
}

void CRandomText::PressKey() {
    const int nKey = Keys[Below(Keys.size())];
    const Ctrl ctrl = OneIn(8) ? Ctrl::Down : Ctrl::Up;
    Note("key", nKey, ctrl == Ctrl::Down ? "ctrl" : "");
    if (m_show == Show::Now) {
        m_stage.FocusEditor();
        m_stage.KeyDown(nKey, ctrl);
    } else {
        Send(WM_KEYDOWN, static_cast<WPARAM>(nKey));
    }
    m_pModel->Key(nKey);
}

void CRandomText::SelectSome() {
    constexpr std::array<int, 4> Wild = {-2147483647 - 1, -7, 99, 2147483647};
    std::array<int, 4> at{};
    for (int& n : at) {
        n = OneIn(10) ? Wild[Below(Wild.size())] : Between(-1, 5);
    }
    Note("select", at[0], at[1], at[2], at[3]);
    m_stage.SelectText(at[0], at[1], at[2], at[3]);
    m_pModel->Select(at[0], at[1], at[2], at[3]);
}

void CRandomText::ReplaceSome() {
    const std::string text = OneIn(9) ? std::string("p\0q", 3) : RandomText(6);
    const bool bRedraw = Below(4) != 0;
    Note("replace", Shown(text), bRedraw ? "redraw" : "");
    CString strText(text.data(), static_cast<int>(text.size()));
    Call(&EditorCalls::m_fnReplaceSelectRange, strText, bRedraw ? 1 : 0);
    m_pModel->Replace(text, bRedraw);
    m_bUnpainted = m_bUnpainted || !bRedraw;
}

void CRandomText::SetText() {
    const std::string text = RandomText(20);
    Note("set text", Shown(text));
    CString strText(text.data(), static_cast<int>(text.size()));
    Call(&EditorCalls::m_fnSetText, strText);
    m_pModel->SetText(text);
}

// A zero ends a text on the clipboard, so no selection with one is copied.
void CRandomText::Copy() {
    if (m_pModel->SelectedText().find('\0') != std::string::npos) {
        return;
    }
    const bool bCtrl = !OneIn(6);
    Note("key C", bCtrl);
    if (bCtrl) {
        m_stage.Hold(VK_CONTROL);
        m_pModel->Copy();
    }
    Send(WM_KEYDOWN, 'C');
    m_stage.LetGo(VK_CONTROL);
}

void CRandomText::Paste() {
    const bool bCtrl = !OneIn(6);
    Note("key V", bCtrl);
    if (bCtrl) {
        m_stage.Hold(VK_CONTROL);
        m_pModel->Paste();
    }
    Send(WM_KEYDOWN, 'V');
    m_stage.LetGo(VK_CONTROL);
}

void CRandomText::CopyOutside() {
    std::string text = RandomText(5);
    text += OneIn(2) ? "\r\nz" : "";
    Note("copied outside", Shown(text));
    platform::SetClipboardText(text);
    m_pModel->clipboard = text;
}

void CRandomText::ClickOrDrag() {
    const CPoint from = RandomPoint();
    CRect rcClient;
    Editor().GetClientRect(&rcClient);
    if (rcClient.PtInRect(from) && !m_pModel->IsOnSelection(from)) {
        PressAndDrag(from);
    }
}

void CRandomText::PressAndDrag(CPoint from) {
    Note("press", from.x, from.y);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, from);
    m_pModel->Press(from);
    for (int n = Between(0, 3); n > 0; --n) {
        const CPoint to = RandomPoint();
        Note("move", to.x, to.y);
        Send(WM_MOUSEMOVE, MK_LBUTTON, to);
        m_pModel->MouseMove(to);
    }
    if (OneIn(3)) {
        OneIn(2) ? PressKey() : TypeSome();
    }
    if (OneIn(9)) {
        SetText();
    }
    Note("release");
    Send(WM_LBUTTONUP, 0, from);
    m_pModel->Release();
}

void CRandomText::DropFromOutside() {
    const bool bText = !OneIn(8);
    const std::string text = RandomText(5);
    for (int n = Between(1, 3); n > 0; --n) {
        const CPoint point = RandomPoint();
        const DWORD dwKeys = MK_LBUTTON | (OneIn(2) ? MK_CONTROL : 0);
        const DWORD dwSource = OneIn(2) ? 1 : 0;
        const int nPhase = n == 1 && !OneIn(4) ? 2 : 1;
        Note("hover", Shown(text), point.x, point.y, dwKeys, dwSource, bText, nPhase);
        const auto offer = [&](int nOfferPhase, DWORD* pdwEffect) {
            return DropText(Editor().m_hWnd, point, text, bText ? CF_TEXT : 2, dwKeys, dwSource, nOfferPhase,
                            pdwEffect);
        };
        DWORD dwEffect = 0;
        offer(1, &dwEffect);
        const int nEffect = m_pModel->Hover(point, (dwKeys & MK_CONTROL) || dwSource == 1, bText);
        m_wrong = static_cast<int>(dwEffect) == nEffect ? "" : "another drop effect";
        if (nPhase == 2 && (offer(2, nullptr) == 1) != m_pModel->Drop(point, text, bText)) {
            m_wrong = "another answer to a drop";
        }
    }
    LeaveDrop(Editor().m_hWnd);
    m_pModel->Leave();
}

// A press on the selection is the selection's: moved on, it takes the text along.
void CRandomText::DragSelection() {
    CPoint from = RandomPoint();
    for (int n = 0; n < 20 && !m_pModel->IsOnSelection(from); ++n) {
        from = RandomPoint();
    }
    if (!m_pModel->IsOnSelection(from)) {
        SelectSome();
        return;
    }
    const CPoint to = OneIn(4) ? from + CSize(3, -3) : RandomPoint();
    const bool bFar = std::abs(to.x - from.x) >= DragDistance || std::abs(to.y - from.y) >= DragDistance;
    const bool bCopies = OneIn(2);
    const std::string text = m_pModel->SelectedText().c_str();
    const bool bOver = IsInView(to);
    Note("drag the selection", from.x, from.y, to.x, to.y, bCopies ? "ctrl" : "");
    Send(WM_LBUTTONDOWN, MK_LBUTTON, from);
    if (bCopies) {
        m_stage.Hold(VK_CONTROL);
    }
    Send(WM_MOUSEMOVE, MK_LBUTTON, to);
    Send(WM_LBUTTONUP, 0, to);
    m_stage.LetGo(VK_CONTROL);
    if (!bFar) {
        m_pModel->Press(from);
        m_pModel->Release();
    } else if (bOver && !text.empty()) {
        m_pModel->Hover(to, bCopies, true);
        m_pModel->Drop(to, text, true);
    }
}

void CRandomText::MoveCaret() {
    const CPoint point = RandomPoint();
    CPoint ptView = InView(point);
    Note("move the caret to", point.x, point.y);
    Call(&EditorCalls::m_fnMoveCursorTo, ptView);
    m_pModel->MoveCaretTo(point);
}

void CRandomText::ChangeLook() {
    if (OneIn(2)) {
        const int nAlign = Between(0, 2);
        Note("align", nAlign);
        Call(&EditorCalls::m_fnSetTextAlignType, nAlign);
        m_pModel->SetAlignment(nAlign);
        return;
    }
    const char* pszFace = Faces[Below(Faces.size())];
    const int nPixels = Between(8, 18);
    const bool bBold = OneIn(2);
    Note("font", pszFace, nPixels, bBold);
    CString strFace(pszFace);
    Call(&EditorCalls::m_fnSetFont, strFace);
    Call(&EditorCalls::m_fnSetFontSizeInPixel, nPixels);
    Call(&EditorCalls::m_fnSetFontStyle, bBold ? 1 : 0);
    m_pModel->SetFont(m_measuring.Use(pszFace, nPixels, bBold));
}

void CRandomText::EndInput() {
    const std::size_t nWay = Below(4);
    Note("end input", nWay);
    if (nWay == 0) {
        Send(WM_KEYDOWN, VK_ESCAPE);
        m_pModel->Key(VK_ESCAPE);
    } else if (nWay == 1) {
        Send(WM_LBUTTONDOWN, MK_LBUTTON, CPoint(-40, -40));
        m_pModel->Press(CPoint(-40, -40));
    } else if (nWay == 2 && m_show == Show::Now) {
        m_stage.FocusEditor();
        m_stage.FocusView();
        m_pModel->End();
    } else {
        m_stage.EndEditor();
        m_pModel->End();
    }
}

// A press behind the edge of a window that is not yet as large as its text ends the input, too.
void CRandomText::OpenAfterEnd() {
    const bool bEnded = m_stage.EndedText() == m_pModel->Text() && !m_stage.Editor();
    const std::string wrong = bEnded ? "" : "ended with " + Shown(m_stage.EndedText());
    OpenEditor();
    m_wrong += wrong;
}

// Characters are none of the editor's while Ctrl is held.
void CRandomText::HoldControl() {
    Note("type with ctrl");
    m_stage.Hold(VK_CONTROL);
    Send(WM_CHAR, 'a');
    m_stage.LetGo(VK_CONTROL);
}

void CRandomText::PassTime() {
    Note("wait");
    m_stage.Wait(static_cast<unsigned>(Between(0, 600)));
}

void EditRandomTexts(bool bDoubleByte) {
    const unsigned nFirst = NumberFrom("PRADIX_SEED", DefaultSeed);
    const int nEdits = static_cast<int>(NumberFrom("PRADIX_EDITS", DefaultEdits));
    testing::Test::RecordProperty("seed", static_cast<int>(nFirst));
    CStage stage;
    platform::SetCodePage(bDoubleByte ? 932 : 1252);
    stage.LoadModule();
    stage.SetViewSize(ViewWidth, ViewHeight);
    unsigned nSeed = nFirst;
    for (int nDone = 0; nDone < nEdits; nDone += EditsPerText, ++nSeed) {
        CRandomText text(stage, nSeed, bDoubleByte);
        for (int n = 0; n < EditsPerText; ++n) {
            text.Edit();
            const std::string difference = text.Difference();
            ASSERT_EQ(difference, "") << "seed " << nSeed << ", edit " << n << " of\n" << text.Log();
        }
        stage.Trace();
    }
}

TEST(RandomEdits, AgreeWithTheModelInSingleBytes) { EditRandomTexts(false); }

TEST(RandomEdits, AgreeWithTheModelInCodePage932) { EditRandomTexts(true); }

} // namespace
