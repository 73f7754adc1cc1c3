// Marks on the view, to the pixel; the hit order of handles; cursors; the switch of tools.
#include <array>

#include "module_help.h"

namespace {

constexpr COLORREF Base = RGB(0x50, 0x50, 0x50);
constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF Yellow = RGB(255, 255, 0);

constexpr unsigned Arrow = 32512;
constexpr unsigned IBeam = 32513;
constexpr unsigned NwSe = 32642;
constexpr unsigned NeSw = 32643;
constexpr unsigned We = 32644;
constexpr unsigned Ns = 32645;
constexpr unsigned SizeAll = 32646;

/// A [10,10,50,50] and B [100,10,140,50].
class Marks : public testing::Test {
  protected:
    Marks() {
        m_stage.Square("A", 10, 10);
        m_stage.Square("B", 100, 10);
        m_stage.Forget();
    }
    std::string Row(int nLeft, int nRight, int nY) {
        std::string text;
        for (int x = nLeft; x <= nRight; ++x) {
            text += Letter(m_stage.Pixel(x, nY));
        }
        return text;
    }
    std::string Column(int nX, int nTop, int nBottom) {
        std::string text;
        for (int y = nTop; y <= nBottom; ++y) {
            text += Letter(m_stage.Pixel(nX, y));
        }
        return text;
    }
    static char Letter(COLORREF cr) {
        switch (cr) {
        case Base: return '.';
        case Red: return 'r';
        case White: return 'w';
        case Black: return 'k';
        case Yellow: return 'y';
        default: return '?';
        }
    }

    CModuleStage m_stage;
};

TEST_F(Marks, HandleIsAYellowSquareOfEightFramedBlack) {
    m_stage.Select({"A"});

    EXPECT_EQ(Row(5, 14, 6), ".kkkkkkkk.");
    EXPECT_EQ(Row(5, 13, 7), ".kyyyyyyk");
    EXPECT_EQ(Row(5, 13, 12), ".kyyyyyyk");
    EXPECT_EQ(Row(5, 13, 13), ".kkkkkkkk");
    EXPECT_EQ(Row(5, 9, 14), ".....");
    EXPECT_EQ(Row(45, 54, 53), ".kkkkkkkk.") << "the bottom-right one ends before 54";
}

TEST_F(Marks, OutlineIsDottedThreeWhiteThreeBlackFromTheTopLeft) {
    m_stage.Select({"A"});

    // Pixel n of the run 10, 11, … is white when n mod 6 is 0, 1 or 2; handles cover 6-13, 26-33, 46-53.
    EXPECT_EQ(Row(14, 25, 10), "kkwwwkkkwwwk");
    EXPECT_EQ(Row(34, 45, 10), "wwwkkkwwwkkk");
    // The pattern runs on round the corner: pixel n of the right edge, which stands at x 50, is number 40 +
    // n.
    EXPECT_EQ(Column(50, 14, 25), "wkkkwwwkkkww");
}

TEST_F(Marks, OfSeveralAreDottedOutlinesInsideTheNodesWithoutHandles) {
    m_stage.Select({"A", "B"});

    EXPECT_EQ(Row(8, 21, 10), "..wwwkkkwwwkkk");
    EXPECT_EQ(Row(44, 51, 10), "kkwwwk..") << "pixels 34 to 39 of the top edge";
    EXPECT_EQ(Row(8, 9, 8), "..");
    EXPECT_EQ(Row(11, 48, 11), std::string(38, 'r'));
    EXPECT_EQ(Column(49, 10, 15), "kkkwww") << "numbers 39 and on";
    EXPECT_EQ(Row(100, 105, 10), "wwwkkk") << "each outline begins anew";
}

TEST_F(Marks, GoWithoutATraceWhateverWayTheyGo) {
    const Pixels bare = m_stage.View();

    m_stage.Select({"A"});
    EXPECT_NE(m_stage.View(), bare);
    m_stage.Ops().DeselectAll(1);
    EXPECT_EQ(m_stage.View(), bare);

    m_stage.Click({30, 30});
    m_stage.Click({120, 30}, Ctrl::Down);
    m_stage.Click({120, 30}, Ctrl::Down);
    m_stage.Click({300, 300});
    EXPECT_EQ(m_stage.View(), bare);

    m_stage.Click({30, 30});
    m_stage.Undo();
    EXPECT_EQ(m_stage.View(), bare);
}

TEST_F(Marks, OfATinyNodeGoWithoutATrace) {
    m_stage.AddPicture("tiny", Red, 300, 300, 3, 2);
    const Pixels bare = m_stage.View();

    m_stage.Click({301, 301});
    EXPECT_EQ(m_stage.Selection(), Lines{"tiny"});
    m_stage.Click({600, 400});

    EXPECT_EQ(m_stage.View(), bare);
}

TEST_F(Marks, MainOperationsDrawThemAtAnOrigin) {
    CClientDC dc(m_stage.Desk().View());
    CPoint ptOrigin(-100, -200);
    m_stage.Paint();

    EXPECT_EQ(m_stage.Main().DrawMarkRect(&dc, &ptOrigin, m_stage.Node("A")), 1);
    EXPECT_EQ(m_stage.Main().DrawSelectionMark(&dc, &ptOrigin, m_stage.Node("B")), 1);

    EXPECT_EQ(Row(110, 116, 210), "wwwkkkw");
    EXPECT_EQ(Row(196, 204, 206), "kkkkkkkk.");
    EXPECT_EQ(m_stage.Main().DrawMarkRect(nullptr, &ptOrigin, m_stage.Node("A")), 0);
}

// A node of 4 by 4 at (300, 300): all eight squares overlap, and each point is held first by the expected
// one.
TEST_F(Marks, HandlesAreTriedInTheirOrder) {
    struct HitRow {
        CPoint point;
        unsigned nCursor;
    };
    const std::array<HitRow, 9> Rows = {{
        {{302, 302}, NwSe}, // 0, of all
        {{304, 302}, Ns},   // 4, not 5
        {{307, 302}, NeSw}, // 5, not 6
        {{307, 304}, We},   // 6, not 7
        {{307, 306}, NwSe}, // 7
        {{303, 306}, NwSe}, // 7, not 3
        {{299, 306}, Ns},   // 3, not 2
        {{297, 306}, NeSw}, // 2
        {{297, 304}, NeSw}, // 2, not 1
    }};
    m_stage.AddPicture("tiny", Red, 300, 300, 4, 4);
    m_stage.Select({"tiny"});

    for (const HitRow& row : Rows) {
        EXPECT_EQ(m_stage.CursorAt(row.point), row.nCursor) << row.point.x << ',' << row.point.y;
    }
}

TEST_F(Marks, HandleSquareIsHalfOpenAndItsMiddleTruncated) {
    m_stage.AddPicture("odd", Red, 300, 300, 41, 40);
    m_stage.Select({"odd"});

    // The top handle's centre is 320.5: its square is [316,324) by [296,304).
    EXPECT_EQ(m_stage.CursorAt({315, 297}), IBeam);
    EXPECT_EQ(m_stage.CursorAt({316, 296}), Ns);
    EXPECT_EQ(m_stage.CursorAt({323, 303}), Ns);
    EXPECT_EQ(m_stage.CursorAt({324, 303}), SizeAll);
    EXPECT_EQ(m_stage.CursorAt({323, 304}), SizeAll);
    EXPECT_EQ(m_stage.CursorAt({316, 295}), IBeam);
}

TEST_F(Marks, HitTestTakesOutlineAndHandlesForOneAndOutlinesForSeveral) {
    CPoint handle(6, 6);
    CPoint edge(50, 30);
    CPoint beyond(54, 30);
    CImgNode* pNode = m_stage.Node("A");
    m_stage.Select({"A"});
    EXPECT_EQ(m_stage.Main().HitTestSelected(&handle, pNode), 1);
    EXPECT_EQ(m_stage.Main().PtInNodeOutline(&handle, pNode), 0);
    EXPECT_EQ(m_stage.Main().PtInNodeOutline(&edge, pNode), 1) << "the edge counts";
    EXPECT_EQ(m_stage.Main().HitTestSelected(&beyond, pNode), 0);

    m_stage.Select({"A", "B"});
    EXPECT_EQ(m_stage.Main().HitTestSelected(&handle, pNode), 0) << "no handles with two selected";
    EXPECT_EQ(m_stage.Main().HitTestSelected(nullptr, pNode), 0);
    EXPECT_EQ(m_stage.Main().PtInNodeOutline(&edge, nullptr), 0);
}

TEST_F(Marks, PointOnSelectionIsToldToTheHost) {
    IToolLink* pLink = m_stage.ToolInterface<IToolLink>();
    std::int32_t nAnswer = 7;
    std::int32_t nError = 7;
    CPoint point(8, 8);

    EXPECT_EQ(pLink->IsPointOnSelection(&point, &nAnswer, &nError), 1);
    EXPECT_EQ(nAnswer, 0);
    EXPECT_EQ(nError, 0);
    m_stage.Select({"A"});
    pLink->IsPointOnSelection(&point, &nAnswer, &nError);
    EXPECT_EQ(nAnswer, 1);
    EXPECT_EQ(pLink->IsPointOnSelection(nullptr, &nAnswer, &nError), 0);
    EXPECT_EQ(nError, 1);
}

TEST_F(Marks, CursorTellsGroundNodesAndTheSelection) {
    EXPECT_EQ(m_stage.CursorAt({300, 300}), IBeam);
    EXPECT_EQ(m_stage.CursorAt({30, 30}), Arrow);
    m_stage.Select({"A"});
    EXPECT_EQ(m_stage.CursorAt({30, 30}), SizeAll);
    EXPECT_EQ(m_stage.CursorAt({120, 30}), Arrow);
    m_stage.Select({"A", "B"});
    EXPECT_EQ(m_stage.CursorAt({30, 30}), Arrow);
    EXPECT_EQ(m_stage.CursorAt({8, 8}), IBeam) << "no handle with two selected";
    m_stage.Select({});
    m_stage.Exclude(m_stage.Node("A"));
    EXPECT_EQ(m_stage.CursorAt({30, 30}), Arrow) << "over the excluded node";
}

TEST_F(Marks, CursorOfEachHandleIsItsSizingArrow) {
    m_stage.Select({"A"});

    EXPECT_EQ(m_stage.CursorAt({10, 10}), NwSe);
    EXPECT_EQ(m_stage.CursorAt({10, 30}), We);
    EXPECT_EQ(m_stage.CursorAt({10, 50}), NeSw);
    EXPECT_EQ(m_stage.CursorAt({30, 50}), Ns);
    EXPECT_EQ(m_stage.CursorAt({30, 10}), Ns);
    EXPECT_EQ(m_stage.CursorAt({50, 10}), NeSw);
    EXPECT_EQ(m_stage.CursorAt({50, 30}), We);
    EXPECT_EQ(m_stage.CursorAt({50, 50}), NwSe);
    EXPECT_EQ(m_stage.Input().OnMouseMove(0, {50, 50}), 0) << "the base sets it and answers no";
}

TEST_F(Marks, CursorStaysFourWayWhileADragMovesOverAnything) {
    m_stage.Select({"A", "B"});
    m_stage.Press({30, 30});
    EXPECT_EQ(m_stage.CursorAt({31, 30}), Arrow) << "pressed, over one of two";
    m_stage.Move({40, 30});

    EXPECT_EQ(m_stage.CursorAt({300, 300}), SizeAll);
    m_stage.Release({300, 300});
    EXPECT_EQ(m_stage.CursorAt({600, 400}), IBeam);
}

TEST_F(Marks, CursorOutsideTheViewIsTheArrowWhileANudgeIsPending) {
    CPoint outside(800, 600);
    m_stage.Select({"A"});
    m_stage.SetPointer(outside);
    m_stage.Main().OnSetCursor(&outside);
    EXPECT_EQ(m_stage.Cursor(), IBeam);

    m_stage.KeyDown(VK_LEFT);
    EXPECT_EQ(m_stage.Cursor(), Arrow);
    CPoint inside(300, 300);
    m_stage.Main().OnSetCursor(&inside);
    EXPECT_EQ(m_stage.Cursor(), IBeam);

    m_stage.KeyUp(VK_LEFT);
    m_stage.Main().OnSetCursor(&outside);
    EXPECT_EQ(m_stage.Cursor(), IBeam) << "its undo is recorded";
}

const Lines OneObjectShown = {"area.3 1", "display-panel.3 0 0 0 0", "shadow-panel.4 0 0", "shadow-panel.3"};

TEST_F(Marks, SwitchWithRedrawFlushesThenTakesTheOtherToolsMarksOver) {
    m_stage.Select({"A"});
    m_stage.Forget();

    m_stage.UseTool("CObjectPageTool", Redraw::Yes);

    Lines expected = {"flush 6 6 54 54",        "repaint 6 6 54 54 erase", // the old tool goes
                      "flush 6 6 54 14",        "flush 46 6 54 54",        // its marks are hidden
                      "flush 6 46 54 54",       "flush 6 6 14 54",         //
                      "read 6 6 54 54",         "write 6 6",               // the new tool's are shown
                      "repaint 6 6 54 54 erase"};
    expected.insert(expected.end(), OneObjectShown.begin(), OneObjectShown.end());
    EXPECT_EQ(m_stage.Told(), expected);
    EXPECT_TRUE(m_stage.ShowsTruePicture());
}

TEST_F(Marks, SwitchWithoutRedrawShowsThePanelsAlone) {
    m_stage.Select({"A"});
    m_stage.Forget();

    m_stage.UseTool("CObjectPageTool", Redraw::No);

    EXPECT_EQ(m_stage.Told(), OneObjectShown);
}

TEST_F(Marks, SwitchWithNothingSelectedShowsThePanelsAlone) {
    m_stage.UseTool("CObjectPageTool", Redraw::Yes);

    EXPECT_EQ(m_stage.Told(), (Lines{"area.3 1", "reset.1 0"}));
}

TEST_F(Marks, SwitchToNoToolTakesTheMarksOffTheView) {
    const Pixels bare = m_stage.View();
    m_stage.Select({"A"});

    m_stage.UseTool("", Redraw::Yes);

    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
    EXPECT_EQ(m_stage.View(), bare);
}

TEST_F(Marks, ActivatedWithoutAnotherToolItShowsItsOwnMarks) {
    m_stage.Select({"A", "B"});
    m_stage.UseTool("", Redraw::Yes);
    m_stage.Forget();

    m_stage.UseTool("CSelectTool", Redraw::Yes);

    const Lines told = m_stage.Told();
    ASSERT_GE(told.size(), 5U);
    EXPECT_EQ(Lines(told.begin(), told.begin() + 5),
              (Lines{"read 10 10 50 50", "write 10 10", "read 100 10 140 50", "write 100 10",
                     "repaint 10 10 140 50 erase"}));
}

} // namespace
