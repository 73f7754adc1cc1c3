// Objects at the limits of 32-bit coordinates, and objects without an area. The sanitizers watch the sums.
#include <array>
#include <climits>
#include <tuple>

#include "gesture_help.h"
#include "image/view_host.h"

namespace {

constexpr std::array<CRect, 9> Places = {{
    CRect(INT_MIN, INT_MIN, INT_MIN + 1, INT_MIN + 1),
    CRect(INT_MIN, 0, INT_MIN + 100, 50),
    CRect(INT_MAX - 100, INT_MAX - 50, INT_MAX, INT_MAX),
    CRect(INT_MAX - 1, INT_MIN, INT_MAX, INT_MIN + 1),
    CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX),
    CRect(-2000000000, 10, 2000000000, 20),
    CRect(0, 0, 0, 0),
    CRect(60, 60, 60, 90),
    CRect(INT_MAX, INT_MAX, INT_MAX, INT_MAX),
}};

class Extremes : public CGestureTest {
  protected:
    /// An object of that rectangle, whatever it is.
    void Object(const std::string& name, const CRect& rect) { Picture(name, 0, 0, 10, 10)->m_fnResize(rect); }
    void EveryPlace() {
        for (std::size_t n = 0; n < Places.size(); ++n) {
            Object("n" + std::to_string(n), Places[n]);
        }
        Picture("plain", 100, 100, 50, 40);
        FramedPicture("framed", 200, 100, 50, 40);
    }
    void RunEverything() {
        for (const Operation pfnRun : ArrangeOperations) {
            (Tool().*pfnRun)();
        }
        for (const int nKey : {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) {
            stage.Key(nKey, 12);
        }
        Ops().ShowSelectionMarks(0);
        Ops().ShowSelectionMarks(1);
    }
};

TEST_F(Extremes, EveryPairGoesThroughEveryOperation) {
    for (std::size_t nFirst = 0; nFirst < Places.size(); ++nFirst) {
        for (std::size_t nSecond = 0; nSecond < Places.size(); ++nSecond) {
            Page(400, 300, 1.0);
            Object("A", Places[nFirst]);
            Object("B", Places[nSecond]);
            Picture("C", 100, 100, 50, 40);
            stage.Select({"A", "B", "C"});
            RunEverything();
            EXPECT_EQ(stage.Selection(), (Names{"A", "B", "C"}));
        }
    }
}

using ZoomAndScroll = std::tuple<double, CPoint>;
class ExtremesAt : public Extremes, public ::testing::WithParamInterface<ZoomAndScroll> {};

TEST_P(ExtremesAt, AllAtOnceAreArrangedUndoneAndRedone) {
    const auto& [dZoom, ptScroll] = GetParam();
    EveryPlace();
    stage.Key('A', 1, Ctrl::Down);
    ASSERT_EQ(stage.Selection().size(), Places.size() + 2);
    stage.SetScroll(ptScroll);
    CViewHost::SetZoom(*stage.Desk().View(), dZoom);

    RunEverything();
    while (stage.Undo()) {}
    while (stage.Redo()) {}

    EXPECT_EQ(stage.PageNames().size(), Places.size() + 3);
    EXPECT_EQ(stage.Selection().size(), Places.size() + 2);
}

INSTANTIATE_TEST_SUITE_P(Views, ExtremesAt,
                         ::testing::Combine(::testing::Values(1.0, 0.01, 50.0),
                                            ::testing::Values(CPoint(0, 0), CPoint(INT_MIN, INT_MAX),
                                                              CPoint(INT_MAX, INT_MIN))));

class ExtremePlace : public Extremes, public ::testing::WithParamInterface<CRect> {
  protected:
    /// Handles that a pointer can reach.
    bool IsNearTheView(CPoint point) const { return CRect(-500, -500, 900, 900).PtInRect(point) != FALSE; }
};

TEST_P(ExtremePlace, IsNudgedUnderThePointersEye) {
    Object("A", GetParam());
    stage.SetScroll(GetParam().TopLeft());
    stage.Select({"A"});

    RunEverything();

    EXPECT_EQ(stage.Selection(), Names{"A"});
}

TEST_P(ExtremePlace, IsDraggedResizedAndCopied) {
    Object("A", GetParam());
    stage.SetScroll(GetParam().TopLeft());
    stage.Select({"A"});

    for (int nHandle = 0; nHandle < 8; ++nHandle) {
        if (IsNearTheView(Handle("A", nHandle))) {
            DragHandle("A", nHandle, {30, 40});
        }
    }
    stage.Drag({5, 5}, {90, 80}, Ctrl::Down);
    stage.Click({399, 299});
    while (stage.Undo()) {}

    EXPECT_FALSE(HasCapture());
}

TEST_P(ExtremePlace, ComesBackIntoTheView) {
    Object("A", GetParam());

    Ops().KeepNodeInView(stage.Node("A"));
    Ops().KeepNodeInView(stage.Node("A"));

    EXPECT_EQ(stage.PageNames(), Names{"A"});
}

INSTANTIATE_TEST_SUITE_P(Places, ExtremePlace, ::testing::ValuesIn(Places));

TEST_F(Extremes, PointersFarOutsideAreClamped) {
    Picture("A", 100, 100, 50, 40);
    for (const CPoint& point : {CPoint(32767, 32767), CPoint(-32768, -32768), CPoint(-32768, 32767)}) {
        stage.Select({"A"});
        DragHandle("A", 7, point);
        stage.Drag(ClientRect("A").CenterPoint(), point);
        EXPECT_FALSE(HasCapture());
        EXPECT_GE(stage.Rect("A").Width(), 16);
    }
}

TEST_F(Extremes, AlignLeftToTheLeastCoordinateStopsAtTheMargin) {
    Object("west", CRect(INT_MIN, 0, INT_MIN + 100, 50));
    Picture("A", 100, 100, 50, 40);
    stage.Select({"A", "west"});

    Tool().m_fnAlignLeft();

    EXPECT_EQ(stage.Rect("A"), CRect(-42, 100, 8, 140));
    EXPECT_EQ(stage.Rect("west").left, INT_MIN);
}

TEST_F(Extremes, SameWidthBeyondTheRangeSaturates) {
    Object("long", CRect(-2000000000, 0, 100000000, 20));
    Object("A", CRect(100000000, 100, 100000050, 140));
    stage.Select({"A", "long"});

    Tool().m_fnSameWidth();

    EXPECT_EQ(stage.Rect("A"), CRect(100000000, 100, INT_MAX, 140));
}

TEST_F(Extremes, ShadowsFarOutStayWithTheirObjects) {
    Object("A", CRect(INT_MAX - 40, 10, INT_MAX - 20, 30));
    ASSERT_TRUE(Shadow("A", 5, 5));
    EXPECT_EQ(stage.Rect("A.shadow"), CRect(INT_MAX - 35, 15, INT_MAX - 15, 35));

    Shadow("A", INT_MAX, INT_MIN);

    EXPECT_EQ(Ops().RefreshNodeShadow(stage.Node("A"), 1), stage.Node("A.shadow") ? 1 : 0);
}

} // namespace
