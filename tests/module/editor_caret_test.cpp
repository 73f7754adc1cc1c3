// The blinking caret on the virtual clock, and that no message leaves wrong pixels behind.
#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <sstream>

#include "editor_binding.h"
#include "editor_look.h"
#include "platform/counts.h"
#include "platform/faults.h"

namespace {

constexpr CPoint Anchor(300, 100);
constexpr unsigned Tick = 500;    ///< milliseconds
constexpr int KeyOfNobody = 0x71; ///< F2
const TextLook OneLine = {.lines = {"Hanohd"}, .px = 24};

class EditorCaret : public ::testing::Test {
  protected:
    EditorCaret() { stage.Open(OneLine, Anchor); }

    /// Whether the caret is drawn now and after each of the next ticks.
    std::string Phases(int nTicks) {
        std::string phases(1, stage.CaretDrawn() ? 'x' : '.');
        for (int n = 0; n < nTicks; ++n) {
            stage.Wait(Tick);
            phases += stage.CaretDrawn() ? 'x' : '.';
        }
        return phases;
    }

    CEditorStage stage;
};

TEST_F(EditorCaret, BlinksEveryHalfSecond) {
    EXPECT_FALSE(stage.CaretDrawn());
    stage.Wait(Tick - 1);
    EXPECT_FALSE(stage.CaretDrawn());
    stage.Wait(1);
    EXPECT_TRUE(stage.CaretDrawn());
    stage.Wait(Tick - 1);
    EXPECT_TRUE(stage.CaretDrawn());
    stage.Wait(1);

    EXPECT_EQ(Phases(3), ".x.x");
}

TEST_F(EditorCaret, IsTwoInvertedPixelsWideAndAsHighAsItsLine) {
    stage.Key(VK_RIGHT, 3);
    stage.Key(VK_BACK); // "Haohd", the caret behind the first a
    const TextLook look = {.lines = {"Haohd"}, .px = 24};
    CTextPicture picture(look, Anchor);
    const CRect rcCaret = picture.Caret(0, 1);
    ASSERT_TRUE(stage.CaretDrawn());
    const Pixels shown = stage.View();
    stage.Wait(2 * Tick);
    ASSERT_FALSE(stage.CaretDrawn());
    const Pixels hidden = stage.View();

    EXPECT_EQ(DifferenceOf(shown, hidden), rcCaret);

    const auto at = static_cast<std::size_t>((rcCaret.top + 5) * ViewWidth + rcCaret.left);
    EXPECT_EQ(shown[at], hidden[at] ^ 0xFFFFFF);
    EXPECT_EQ(shown[at + 1], hidden[at + 1] ^ 0xFFFFFF);
}

struct StepRow {
    const char* pszStep;
    void (*pfnDo)(CEditorStage&);
    bool bMoves;
};

// The caret stands behind the third byte of six before each.
const StepRow Steps[] = {
    {"right", [](CEditorStage& stage) { stage.KeyDown(VK_RIGHT); }, true},
    {"left", [](CEditorStage& stage) { stage.KeyDown(VK_LEFT); }, true},
    {"home", [](CEditorStage& stage) { stage.KeyDown(VK_HOME); }, true},
    {"end", [](CEditorStage& stage) { stage.KeyDown(VK_END); }, true},
    {"backspace", [](CEditorStage& stage) { stage.KeyDown(VK_BACK); }, true},
    {"delete", [](CEditorStage& stage) { stage.KeyDown(VK_DELETE); }, true},
    {"a letter", [](CEditorStage& stage) { stage.Char('n'); }, true},
    {"a press elsewhere", [](CEditorStage& stage) { stage.Click(CPoint(Anchor.x + 30, Anchor.y)); }, true},
    {"up on the first line", [](CEditorStage& stage) { stage.KeyDown(VK_UP); }, false},
    {"down on the last line", [](CEditorStage& stage) { stage.KeyDown(VK_DOWN); }, false},
    {"a key of nobody's", [](CEditorStage& stage) { stage.KeyDown(KeyOfNobody); }, false},
    {"a letter with ctrl", [](CEditorStage& stage) { stage.KeyDown('N', Ctrl::Down); }, false},
    {"a selection", [](CEditorStage& stage) { stage.SelectText(0, 0, 0, 1); }, false},
};

TEST_F(EditorCaret, IsSolidForOneTickAfterAMoveAlone) {
    for (const StepRow& row : Steps) {
        for (const unsigned nBefore : {2U, 3U}) { // Not drawn, and drawn.
            stage.Open(OneLine, Anchor);
            stage.Key(VK_RIGHT, 3);
            stage.Wait(nBefore * Tick);
            ASSERT_EQ(stage.CaretDrawn(), nBefore == 3);

            row.pfnDo(stage);

            const std::string still = nBefore == 3 ? "x.x" : ".x.";
            EXPECT_EQ(Phases(2), row.bMoves ? "xx." : still) << row.pszStep << ' ' << nBefore;
        }
    }
}

TEST_F(EditorCaret, BlinksOnAtTheTextsEnds) {
    stage.Wait(Tick);
    for (const int nKey : {VK_LEFT, VK_UP, VK_HOME, VK_BACK}) {
        stage.KeyDown(nKey);
        EXPECT_EQ(Phases(2), "x.x") << nKey;
    }
    stage.KeyDown(VK_END);
    stage.Wait(Tick);
    for (const int nKey : {VK_RIGHT, VK_DOWN, VK_END, VK_DELETE}) {
        stage.KeyDown(nKey);
        EXPECT_EQ(Phases(2), "x.x") << nKey;
    }
}

TEST_F(EditorCaret, StartsWithTheShowingOfAHiddenEditor) {
    stage.NewEditor(Anchor, "Hanohd", Show::Later);
    EXPECT_EQ(Phases(3), "....");

    stage.Editor()->ShowWindow(SW_SHOW);
    stage.Paint();

    EXPECT_EQ(Phases(2), "xx.");
    // Later paints draw it no more.
    EXPECT_EQ(DifferenceOf(stage.View(), stage.Afresh()), CRect(0, 0, 0, 0));
    EXPECT_EQ(Phases(1), ".x");
}

TEST_F(EditorCaret, StandsStillAtTheDropPlaceWhileADragHovers) {
    stage.Wait(Tick);
    const CTextPicture picture(OneLine, Anchor);
    const CRect rcLine = picture.Line(0);

    stage.Hover("x", CPoint(rcLine.right - 1, rcLine.CenterPoint().y));

    EXPECT_EQ(stage.Editor()->Caret(), (TextPosition{0, 5}));
    EXPECT_EQ(Phases(3), "xxxx");
    stage.LeaveDrop();
    EXPECT_EQ(stage.Editor()->Caret(), (TextPosition{0, -1}));
    EXPECT_EQ(Phases(2), "x.x");
}

TEST_F(EditorCaret, HidesWhileADragHoversOverItsOwnSelection) {
    stage.SelectText(0, -1, 0, 5);
    stage.Wait(Tick);
    const CPoint ptMiddle = CTextPicture(OneLine, Anchor).Line(0).CenterPoint();

    EXPECT_EQ(stage.Hover("x", ptMiddle).effect, 0U);

    EXPECT_EQ(Phases(2), "...");
    stage.LeaveDrop();
    EXPECT_EQ(Phases(1), "x.");
}

/// Counts and keeps the editor.
class CEndCounter final : public IInplaceEditorNotify {
  public:
    void OnInputEnded(CInplaceEditor* pEditor) override {
        m_nCalls++;
        m_pLast = pEditor;
    }

    int m_nCalls = 0;
    CInplaceEditor* m_pLast = nullptr;
};

TEST_F(EditorCaret, EndOfInputIsToldOnceAndStopsTheBlinking) {
    CEndCounter counter;
    CInplaceEditor* pEditor = stage.Editor();
    pEditor->m_fnRegisterNotifyObject(&counter);
    stage.Wait(Tick);

    stage.FocusView();
    stage.EndEditor();
    (pEditor->*stage.Calls().m_fnEndInput)();

    EXPECT_EQ(counter.m_nCalls, 1);
    EXPECT_EQ(counter.m_pLast, pEditor);
    EXPECT_FALSE(pEditor->IsCaretEnabled());
    EXPECT_EQ(Phases(2), "...");
    pEditor->m_fnRegisterNotifyObject(nullptr);
}

TEST_F(EditorCaret, FocusThatComesBackToTheEditorEndsSelectingAlone) {
    CEndCounter counter;
    stage.Editor()->m_fnRegisterNotifyObject(&counter);
    stage.Press(Anchor);

    const HWND hEditor = stage.Editor()->m_hWnd;
    ::SendMessageA(hEditor, WM_KILLFOCUS, reinterpret_cast<WPARAM>(hEditor), 0);
    EXPECT_EQ(counter.m_nCalls, 0);
    EXPECT_FALSE(stage.Editor()->IsMouseSelecting());
    ::SendMessageA(hEditor, WM_KILLFOCUS, 0, 0);
    EXPECT_EQ(counter.m_nCalls, 1);

    stage.Editor()->m_fnRegisterNotifyObject(nullptr);
}

TEST_F(EditorCaret, WindowAnswersForAllKeysAndErasesNothing) {
    const HWND hEditor = stage.Editor()->m_hWnd;

    EXPECT_EQ(::SendMessageA(hEditor, WM_GETDLGCODE, 0, 0), 4);
    EXPECT_EQ(::SendMessageA(hEditor, WM_ERASEBKGND, 0, 0), 1);
    MSG msg{};
    msg.hwnd = hEditor;
    msg.message = WM_CHAR;
    msg.wParam = 'n';
    EXPECT_EQ(stage.Editor()->PreTranslateMessage(&msg), 1);
    EXPECT_EQ(stage.EditorLines(), Lines{"nHanohd"});
}

TEST_F(EditorCaret, FailedCreationLeavesNothingBehind) {
    struct {
        const char* pszFault;
        unsigned nAfter;
    } const rows[] = {{"window", 0}, {"window", 1}, {"rich-edit", 0}};
    stage.DestroyEditor();
    const platform::LiveCounts before = platform::CountLive();
    for (const auto& row : rows) {
        platform::ArmFault(row.pszFault, true, row.nAfter);

        EXPECT_EQ(stage.NewEditor(Anchor, "a\nb"), 0) << row.pszFault;

        platform::ClearFaults();
        const platform::LiveCounts after = platform::CountLive();
        EXPECT_EQ(after.windows, before.windows) << row.pszFault << row.nAfter;
        EXPECT_EQ(after.gdiObjects, before.gdiObjects) << row.pszFault << row.nAfter;
        EXPECT_EQ(after.deviceContexts, before.deviceContexts) << row.pszFault << row.nAfter;
    }
}

/// A hand that does anything to an editor that a person can, and a host to its looks.
class CRandomHand {
  public:
    CRandomHand(CEditorStage& stage, unsigned nSeed, const std::vector<int>& bytes)
        : m_stage(stage), m_random(nSeed), m_bytes(bytes) {}

    void Step() {
        switch (Below(12)) {
        case 0:
        case 1:
        case 2: PressAKey(); break;
        case 3:
        case 4: TypeSomething(); break;
        case 5:
        case 6: Mouse(); break;
        case 7: LetTimePass(); break;
        case 8: Drop(); break;
        case 9: SelectSomething(); break;
        case 10: Clipboard(); break;
        default: Restyle(); break;
        }
        KeepItSmall();
    }

    std::string Last() const { return m_last.str(); }

  private:
    int Below(int nCount) { return static_cast<int>(m_random() % static_cast<unsigned>(nCount)); }
    CPoint Place() {
        const CRect rect = m_stage.WindowRect();
        return {rect.left - 10 + Below(rect.Width() + 20), rect.top - 10 + Below(rect.Height() + 20)};
    }
    std::ostream& Say(const char* pszWhat) {
        m_last.str("");
        return m_last << pszWhat << ' ';
    }
    std::string Words(int nMost) {
        std::string text;
        for (int n = Below(nMost + 1); n > 0; --n) {
            text +=
                static_cast<char>(m_bytes[static_cast<std::size_t>(Below(static_cast<int>(m_bytes.size())))]);
        }
        return text;
    }

    void LetTimePass() {
        const int nTime = Below(3) == 0 ? static_cast<int>(Tick) : Below(700);
        Say("wait") << nTime;
        m_stage.Wait(static_cast<unsigned>(nTime));
    }
    void PressAKey() {
        constexpr std::array Keys = {VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN,   VK_HOME,
                                     VK_END,  VK_BACK,  VK_BACK, VK_DELETE, VK_RETURN};
        const int nKey = Below(40) == 0 ? VK_ESCAPE : Keys[static_cast<std::size_t>(Below(Keys.size()))];
        Say("key") << nKey;
        m_stage.Key(nKey);
    }
    void TypeSomething() {
        const std::string words = Words(3);
        Say("type") << words;
        m_stage.Type(words);
    }
    void Mouse() {
        const CPoint point = Place();
        const int nWhat = m_bDown ? 1 + Below(3) : 0;
        Say("mouse") << nWhat << ' ' << point.x << ' ' << point.y;
        switch (nWhat) {
        case 0: m_stage.Press(point); break;
        case 1: m_stage.Release(point); break;
        default: m_stage.Move(point); break;
        }
        m_bDown = nWhat != 1;
    }
    void Drop() {
        const CPoint point = Place();
        const DropOffer offer = {.source = static_cast<DWORD>(Below(2))};
        const int nWhat = Below(4);
        Say("drop") << nWhat << ' ' << point.x << ' ' << point.y;
        switch (nWhat) {
        case 0: m_stage.Drop(Words(2) + "\r\n" + Words(2), point, offer); break;
        case 1: m_stage.LeaveDrop(); break;
        default: m_stage.Hover("x", point, offer); break;
        }
    }
    void SelectSomething() {
        const int n[] = {Below(6) - 1, AnyIndex(), Below(6) - 1, AnyIndex()};
        Say("select") << n[0] << ' ' << n[1] << ' ' << n[2] << ' ' << n[3];
        m_stage.SelectText(n[0], n[1], n[2], n[3]);
    }
    /// Among pairs the line's ends alone: a hit never parts a character, so no range does.
    int AnyIndex() {
        const bool bPairs = IsDBCSLeadByte(0x82);
        return bPairs ? Below(2) * 100 - 1 : Below(8) - 1;
    }
    void Clipboard() {
        const int nKey = Below(2) == 0 ? 'C' : 'V';
        Say("ctrl") << static_cast<char>(nKey);
        m_stage.Key(nKey, 1, Ctrl::Down);
    }
    void Restyle() {
        CInplaceEditor& editor = *m_stage.Editor();
        const EditorCalls& calls = m_stage.Calls();
        const int nWhat = Below(5);
        Say("restyle") << nWhat;
        CPoint ptCenter(200 + Below(200), 100 + Below(100));
        CString strPiece(Words(3).c_str());
        switch (nWhat) {
        case 0: (editor.*calls.m_fnSetTextAlignType)(Below(3)); break;
        case 1: (editor.*calls.m_fnSetFontStyle)(Below(8)); break;
        case 2: (editor.*calls.m_fnMoveCursorTo)(ptCenter); break;
        case 3: (editor.*calls.m_fnReplaceSelectRange)(strPiece, 1); break;
        default: (editor.*calls.m_fnCenterWindow)(ptCenter); break;
        }
    }
    /// So that the text stays on the view, where pixels are looked at.
    void KeepItSmall() {
        if (m_stage.EditorLines().size() > 8 || m_stage.WindowRect().Width() > 300) {
            CString strText("few\n\nletters");
            (m_stage.Editor()->*m_stage.Calls().m_fnSetText)(strText);
        }
    }

    CEditorStage& m_stage;
    std::mt19937 m_random;
    const std::vector<int>& m_bytes;
    std::ostringstream m_last;
    bool m_bDown = false;
};

struct PixelRow {
    UINT nCodePage;
    int nAlign;
    unsigned nSeed;
};

void PrintTo(const PixelRow& row, std::ostream* pOut) {
    *pOut << "page " << row.nCodePage << " align " << row.nAlign << " seed " << row.nSeed;
}

class EditorPixels : public ::testing::TestWithParam<PixelRow> {};

// Letters that reach into their neighbours are among them; in 932 lead bytes and bytes that may be second.
TEST_P(EditorPixels, AreThoseOfAFreshPaintAfterEveryMessage) {
    constexpr int StepCount = 500;
    const PixelRow& row = GetParam();
    const std::vector<int> bytes = row.nCodePage == 932
                                       ? std::vector<int>{'a', 'j', 'W', ' ', 0x82, 0x82, 0xA0, 0x83, 0x5C}
                                       : std::vector<int>{'a', 'j', 'f', 'W', ' ', 0xE9, '\t', '\n'};
    CEditorStage stage(row.nCodePage);
    stage.Open({.lines = {"first one", "", "jf \x82\xA0 last"}, .px = 20, .align = row.nAlign}, Anchor);
    CRandomHand hand(stage, row.nSeed, bytes);

    for (int n = 0; n < StepCount; ++n) {
        hand.Step();

        const Pixels shown = stage.View();
        ASSERT_EQ(DifferenceOf(shown, stage.Afresh()), CRect(0, 0, 0, 0))
            << ::testing::PrintToString(row) << " step " << n << ": " << hand.Last();
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, EditorPixels,
                         ::testing::Values(PixelRow{1252, 0, 1}, PixelRow{1252, 1, 2}, PixelRow{1252, 2, 3},
                                           PixelRow{932, 0, 4}, PixelRow{932, 1, 5}, PixelRow{932, 2, 6}));

} // namespace
