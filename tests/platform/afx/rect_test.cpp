#include <afxwin.h>

#include <gtest/gtest.h>

#include <array>
#include <ostream>

// Beside the class, where the test library looks for it.
void PrintTo(const CRect& r, std::ostream* out) {
    *out << '(' << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom << ')';
}

namespace {

constexpr std::array Samples = {CRect(0, 0, 10, 10), CRect(5, 5, 15, 12), CRect(-4, -3, 2, 1),
                                CRect(20, 0, 30, 5), CRect()};

} // namespace

TEST(Point, ArithmeticIsByCoordinate) {
    CPoint point(3, 4);
    point += CSize(1, 2);
    point -= CPoint(2, 2);
    point.Offset(10, 0);

    EXPECT_EQ(point, CPoint(12, 4));
    EXPECT_EQ(point - CPoint(2, 1), CSize(10, 3));
    EXPECT_EQ(point - CSize(2, 1), CPoint(10, 3));
    EXPECT_EQ(-point, CPoint(-12, -4));
    EXPECT_EQ(CSize(1, 1) + point, CPoint(13, 5));
}

TEST(Point, MessageParameterHoldsSignedHalves) { EXPECT_EQ(CPoint(MAKELPARAM(0xFFFE, 7)), CPoint(-2, 7)); }

TEST(Size, ArithmeticIsByExtent) {
    CSize size(5, 6);
    size += CSize(1, 1);
    size -= CSize(2, 3);

    EXPECT_EQ(size, CSize(4, 4));
    EXPECT_EQ(size + CSize(1, 2), CSize(5, 6));
    EXPECT_EQ(-size, CSize(-4, -4));
    EXPECT_NE(size, CSize(4, 5));
}

TEST(Rect, CornersAndExtents) {
    const CRect rect(CPoint(2, 3), CSize(10, 20));

    EXPECT_EQ(rect, CRect(2, 3, 12, 23));
    EXPECT_EQ(rect.Width(), 10);
    EXPECT_EQ(rect.Height(), 20);
    EXPECT_EQ(rect.Size(), CSize(10, 20));
    EXPECT_EQ(rect.TopLeft(), CPoint(2, 3));
    EXPECT_EQ(rect.BottomRight(), CPoint(12, 23));
    EXPECT_EQ(rect.CenterPoint(), CPoint(7, 13));
}

TEST(Rect, CenterIsTruncatedTowardZero) { EXPECT_EQ(CRect(-3, 0, 0, 3).CenterPoint(), CPoint(-1, 1)); }

TEST(Rect, RightAndBottomAreOutside) {
    const CRect rect(1, 1, 3, 3);

    EXPECT_TRUE(rect.PtInRect(CPoint(1, 1)));
    EXPECT_TRUE(rect.PtInRect(CPoint(2, 2)));
    EXPECT_FALSE(rect.PtInRect(CPoint(3, 2)));
    EXPECT_FALSE(rect.PtInRect(CPoint(2, 3)));
    EXPECT_FALSE(rect.PtInRect(CPoint(0, 1)));
}

TEST(Rect, EmptyIsNotNull) {
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 4, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(0, 0, 1, 1).IsRectEmpty());
    EXPECT_TRUE(CRect().IsRectNull());
}

TEST(Rect, InflatingMovesEveryEdgeOutward) {
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.InflateRect(CRect(1, 2, 3, 4));
    EXPECT_EQ(rect, CRect(8, 6, 24, 26));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.DeflateRect(CSize(1, 2));
    EXPECT_EQ(rect, CRect(10, 10, 20, 20));
}

TEST(Rect, OperatorsOffsetByPointsAndInflateByRectangles) {
    CRect rect(0, 0, 4, 4);
    rect += CPoint(1, 2);
    EXPECT_EQ(rect, CRect(1, 2, 5, 6));
    rect -= CSize(1, 1);
    EXPECT_EQ(rect, CRect(0, 1, 4, 5));
    EXPECT_EQ(rect + CPoint(2, 2), CRect(2, 3, 6, 7));
    EXPECT_EQ(rect - CSize(2, 2), CRect(-2, -1, 2, 3));
    const CRect margins(1, 2, 3, 4);
    EXPECT_EQ(rect + &margins, CRect(-1, -1, 7, 9));
    EXPECT_EQ(rect - &margins, CRect(1, 3, 1, 1));
}

TEST(Rect, NormalizingSwapsOnlyWhatIsReversed) {
    CRect rect(9, 1, 3, 5);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(3, 1, 9, 5));

    rect.SetRect(1, 8, 2, 4);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(1, 4, 2, 8));
}

TEST(Rect, UnionAndIntersection) {
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 15, 12);

    EXPECT_EQ(a & b, CRect(5, 5, 10, 10));
    EXPECT_EQ(a | b, CRect(0, 0, 15, 12));
    EXPECT_EQ(a | CRect(50, 50, 50, 60), a);

    CRect result(1, 2, 3, 4);
    EXPECT_FALSE(result.IntersectRect(a, CRect(10, 0, 20, 10)));
    EXPECT_TRUE(result.IsRectNull());
    EXPECT_TRUE(result.UnionRect(a, b));
}

TEST(Rect, SetLawsHoldOverSamples) {
    for (const CRect& a : Samples) {
        for (const CRect& b : Samples) {
            EXPECT_EQ(a & b, b & a);
            EXPECT_EQ(a | b, b | a);
            EXPECT_EQ((a & b) | a, a);
            EXPECT_EQ((a | b) & a, a);
            CRect joined(a);
            joined |= b;
            EXPECT_EQ(joined, a | b);
        }
    }
}

TEST(Rect, ServesAsThePlainStructure) {
    CRect rect(1, 2, 3, 4);
    ::InflateRect(rect, 1, 1);

    EXPECT_EQ(rect, CRect(0, 1, 4, 5));
    EXPECT_TRUE(rect.EqualRect(CRect(0, 1, 4, 5)));
}
