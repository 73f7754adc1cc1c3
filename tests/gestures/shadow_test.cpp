// Shadows by hand: their marks, the drag by the handle, the settings, through the view's messages.
#include "gesture_help.h"
#include "platform/faults.h"
#include "platform/input.h"

namespace {

constexpr COLORREF HandleGreen = RGB(0, 0xFF, 0);
constexpr int ShadowPage = 2;

/// A picture of 100 by 50 at (100, 100) with a shadow 10 right and 20 below it, selected, in the hand of the
/// picture page's shadow tool while the shadow page is showing.
class ShadowHandle : public CGestureTest {
  protected:
    ShadowHandle() { Start(); }

    void Start() {
        stage.UseTool("CImageShadowTool");
        stage.Desk().Panels().nPageShown = ShadowPage;
        Picture("A", 100, 100, 100, 50);
        Shadow("A", 10, 20);
        stage.Select({"A"});
        stage.Trace();
    }
    void Limit(PanelRange x, PanelRange y) {
        stage.Desk().Panels().rangeX = x;
        stage.Desk().Panels().rangeY = y;
    }
    /// 18 pixels right of the middle of the shadow's right edge.
    CPoint Knob(const std::string& name = "A") {
        const CRect rc = ClientRect(name + ".shadow");
        return CPoint(rc.right + 18, (rc.top + rc.bottom) / 2);
    }
    CPoint Offset(const std::string& name = "A") {
        const CShadowParam& shadow = stage.Node(name)->m_shadow;
        return CPoint(static_cast<int>(shadow.dOffsetX), static_cast<int>(shadow.dOffsetY));
    }
    IShadowSettings& Settings() { return *stage.ToolInterface<IShadowSettings>(); }
    int CursorAt(CPoint point) {
        stage.Move(point);
        return static_cast<int>(platform::CursorId(::GetCursor()));
    }
};

TEST_F(ShadowHandle, MarkIsOutlineConnectorAndGreenKnob) {
    EXPECT_EQ(Knob(), CPoint(228, 145));
    EXPECT_EQ(stage.Pixel(228, 145), HandleGreen);
    EXPECT_EQ(stage.Pixel(222, 145), RGB(0, 0, 0)) << "the knob's frame on its left";
    EXPECT_EQ(stage.Pixel(233, 145), RGB(0, 0, 0)) << "and on its right: it is 12 wide";
    EXPECT_EQ(stage.Pixel(222, 139), BaseColor) << "a circle has no corners";
    for (const CPoint point : {CPoint(216, 145), CPoint(110, 160), CPoint(210, 130), CPoint(150, 170)}) {
        const COLORREF crPixel = stage.Pixel(point.x, point.y);
        EXPECT_TRUE(crPixel == RGB(0, 0, 0) || crPixel == RGB(255, 255, 255)) << point.x << ',' << point.y;
    }
    CRect rc;
    Tool().GetNodeOutlineMarkRect(stage.Node("A"), &rc);
    EXPECT_EQ(rc, CRect(110, 120, 241, 171));
    Tool().GetNodeMarkRect(stage.Node("A"), &rc);
    EXPECT_EQ(rc, CRect(96, 96, 241, 171));
}

struct MarkRow {
    const char* pszTool;
    bool bText;
    int nPageShown;
    bool bMarked;
};

// The marks of a text object are the text page's affair.
constexpr MarkRow MarkRows[] = {
    {"CImageShadowTool", false, ShadowPage, true}, {"CImageShadowTool", false, 0, false},
    {"CImageShadowTool", true, ShadowPage, false}, {"CTextShadowTool", true, ShadowPage, true},
    {"CTextShadowTool", false, ShadowPage, true},  {"CTextShadowTool", true, 0, false},
    {"CSelectTool", false, ShadowPage, false},
};

TEST_F(ShadowHandle, IsShownByThePagesTools) {
    for (const MarkRow& row : MarkRows) {
        Page(400, 300, 1.0);
        stage.Desk().Panels().nPageShown = row.nPageShown;
        stage.UseTool(row.pszTool);
        if (row.bText) {
            stage.AddText("A", "Text", 100, 100);
        } else {
            Picture("A", 100, 100, 100, 50);
        }
        Shadow("A", 10, 20);
        stage.Select({"A"});
        CPoint ptKnob = Knob();
        EXPECT_EQ(stage.Pixel(ptKnob.x, ptKnob.y) == HandleGreen, row.bMarked) << row.pszTool;
        EXPECT_EQ(Tool().HitTestSelected(&ptKnob, stage.Node("A")), row.bMarked ? 1 : 0) << row.pszTool;
        EXPECT_EQ(Screen(), FreshScreen());
    }
}

struct CursorRow {
    CPoint point;
    int nCursor;
};

constexpr CursorRow CursorRows[] = {
    {{205, 160}, 32646}, // on the shadow alone
    {{150, 120}, 32646}, // on the object
    {{200, 150}, 32642}, // on the object's handle, which lies over the shadow
    {{228, 145}, 32512}, // on the knob
    {{30, 30}, 32513},   // on nothing
    {{150, 60}, 32512},  // on an object that is not selected
};

TEST_F(ShadowHandle, CursorTellsShadowAndKnobApart) {
    Picture("B", 140, 50, 40, 20);
    for (const CursorRow& row : CursorRows) {
        EXPECT_EQ(CursorAt(row.point), row.nCursor) << row.point.x << ',' << row.point.y;
    }
    Picture("C", 204, 155, 10, 10);
    EXPECT_EQ(CursorAt({205, 160}), 32646) << "the point is on the selected object's mark all the same";
    stage.Press(Knob());
    EXPECT_EQ(CursorAt({30, 30}), 32646) << "throughout the drag";
    stage.Release({30, 30});
}

TEST_F(ShadowHandle, OneStepFlushesMarksAndRepaintsBothAreas) {
    stage.Press(Knob());
    TakeSteps();
    stage.Calls();

    stage.Move(Knob() + CSize(8, 6));

    for (const trace::Row& row : stage.Calls()) {
        if (row.op == "1") {
            EXPECT_EQ(row.on, "7") << "the page of the tool is told";
            EXPECT_EQ(std::get<long long>(row.args[0]), 18);
            EXPECT_EQ(std::get<long long>(row.args[1]), 26);
        }
    }
    // [110,120,241,171] and [118,126,249,177]; the marks reach from the picture's handles.
    EXPECT_EQ(TakeSteps(),
              (Steps{"view FlushCacheRect [110,120,249,177]", "view GetDisplayCache [96,96,249,177]",
                     "view UpdateDisplayCache", "view RepaintViewRect [110,120,249,177] 1"}));
    EXPECT_EQ(Ops().CanRunCommand(), 0);
    stage.Release(Knob());
    EXPECT_EQ(TakeSteps(),
              (Steps{"undo AddUndoEvent CShadowMoveChangedUndoEvent 1", "45", "51", "38", "38"}));
}

struct LimitRow {
    double dZoom;
    CPoint ptScroll;
    CSize drag; ///< client pixels
    CPoint expected;
};

constexpr PanelRange RangeX = {-5, 31};
constexpr PanelRange RangeY = {-13, 27};
constexpr LimitRow LimitRows[] = {
    {1.0, {0, 0}, {300, 200}, {31, 27}},      {1.0, {0, 0}, {-300, -200}, {-5, -13}},
    {1.5, {0, 0}, {300, 200}, {31, 27}},      {1.5, {0, 0}, {-300, -200}, {-5, -13}},
    {2.0, {0, 0}, {300, 200}, {31, 27}},      {2.0, {0, 0}, {-300, -200}, {-5, -13}},
    {3.0, {0, 0}, {300, 200}, {31, 27}},      {3.0, {0, 0}, {-300, -200}, {-5, -13}},
    {1.5, {41, -17}, {300, 200}, {31, 27}},   {1.5, {41, -17}, {-300, -200}, {-5, -13}},
    {3.0, {-13, 29}, {300, -200}, {31, -13}}, {2.0, {7, 7}, {-300, 200}, {-5, 27}},
    {1.0, {5, 5}, {10, 3}, {20, 23}},
};

TEST_F(ShadowHandle, DragEndsExactlyOnTheBoundsOfThePanel) {
    Limit(RangeX, RangeY);
    for (const LimitRow& row : LimitRows) {
        Page(400, 300, row.dZoom, row.ptScroll);
        Start();

        stage.Drag(Knob(), Knob() + row.drag, Ctrl::Up, 5);

        EXPECT_EQ(Offset(), row.expected) << "zoom " << row.dZoom << " by " << row.drag.cx;
        EXPECT_EQ(stage.Rect("A.shadow").TopLeft(), CPoint(100, 100) + CSize(row.expected.x, row.expected.y));
        EXPECT_EQ(Screen(), FreshScreen()) << "zoom " << row.dZoom << " by " << row.drag.cx;
    }
}

// The frame reaches 10 beyond the object, so its corner is (290, 190).
TEST_F(ShadowHandle, OfAFramedObjectIsBoundedAndMeasuredFromTheFrame) {
    Limit(RangeX, RangeY);
    Page(600, 400, 1.0);
    FramedPicture("F", 300, 200, 60, 40);
    Shadow("F", 4, 4);
    stage.Select({"F"});
    EXPECT_EQ(stage.Rect("F.shadow").TopLeft(), CPoint(294, 194));

    stage.Drag(Knob("F"), Knob("F") + CSize(100, 9));

    EXPECT_EQ(stage.Rect("F.shadow").TopLeft(), CPoint(321, 203));
    EXPECT_EQ(Offset("F"), CPoint(31, 13));
}

TEST_F(ShadowHandle, PressNeedsTheOnlySelectedObjectsKnob) {
    Picture("B", 300, 20, 40, 40);
    stage.Select({"A", "B"});
    const CRect rcBefore = stage.Rect("A.shadow");
    stage.Drag(Knob(), Knob() + CSize(20, 20));
    EXPECT_EQ(stage.Rect("A.shadow"), rcBefore);
    stage.Select({"A"});
    stage.Desk().Panels().nPageShown = 0;
    stage.Drag(Knob(), Knob() + CSize(20, 20));
    EXPECT_EQ(Offset(), CPoint(30, 40)) << "the page gates what is shown, not the press";
    stage.Hold(VK_LEFT);
    stage.Press(Knob());
    EXPECT_FALSE(HasCapture()) << "nothing starts while an arrow key is held";
    stage.LetGo(VK_LEFT);
}

TEST_F(ShadowHandle, SmallMovesAndReturnsRecordNothing) {
    stage.Press(Knob());
    stage.Move({229, 146});
    EXPECT_EQ(Offset(), CPoint(10, 20)) << "one pixel on both axes";
    stage.Move({230, 145});
    EXPECT_EQ(Offset(), CPoint(12, 20)) << "two on one axis";
    stage.Move({250, 160});
    stage.QueueMove({300, 200});
    stage.Move({290, 160});
    EXPECT_EQ(Offset(), CPoint(32, 35)) << "a newer move is waited for";
    stage.Pump();
    stage.Release({228, 145});
    EXPECT_EQ(Offset(), CPoint(10, 20));
    EXPECT_TRUE(stage.UndoClasses().empty());
    EXPECT_FALSE(HasCapture());
}

TEST_F(ShadowHandle, RightPressEndsTheDragAsAStep) {
    stage.Press(Knob());
    stage.Move(Knob() + CSize(10, 10));
    stage.RightPress({248, 165});
    EXPECT_EQ(Offset(), CPoint(30, 40)) << "the press's own point is the last one";
    EXPECT_EQ(stage.UndoClasses().back(), "CShadowMoveChangedUndoEvent");
    EXPECT_FALSE(HasCapture());
}

/// What is answered and recorded when the n-th capture fails.
TEST_F(ShadowHandle, FailedCapturesRecordNothingAndTheShadowMovesAllTheSame) {
    for (unsigned nFailing = 0; nFailing < 2; ++nFailing) {
        platform::ArmFault("undo-event", true, nFailing);
        const CPoint before = Offset();
        TakeSteps();
        const int nPress = stage.ToolInterface<IToolInput>()->OnLButtonDown(MK_LBUTTON, Knob());
        const int nRelease = stage.ToolInterface<IToolInput>()->OnLButtonUp(0, Knob() + CSize(5, 5));
        EXPECT_EQ(nPress, nFailing == 0 ? 0 : 1);
        EXPECT_EQ(nRelease, nFailing == 0 ? 1 : 0);
        EXPECT_EQ(Offset(), before + CSize(5, 5));
        EXPECT_TRUE(stage.UndoClasses().empty());
        for (const std::string& step : TakeSteps()) {
            EXPECT_EQ(step.rfind("view", 0), 0U) << step;
        }
        platform::ClearFaults();
    }
}

TEST_F(ShadowHandle, UndoAfterItsObjectLeftThePagePutsNoShadowOnIt) {
    const COLORREF crNew = RGB(1, 2, 3);
    Settings().SetColor(&crNew);
    Settings().RemoveShadows();
    stage.Key(VK_DELETE);
    while (stage.Undo()) {
        EXPECT_TRUE(stage.PageNames().empty());
    }
}

} // namespace
