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

    EXPECT_EQ(point, CPoint(2, 4));
    EXPECT_EQ(point - CPoint(2, 1), CSize(0, 3));
    EXPECT_EQ(point - CSize(2, 1), CPoint(0, 3));
    EXPECT_EQ(CSize(1, 1) + point, CPoint(3, 5));
    EXPECT_EQ(CPoint(MAKELPARAM(0xFFFE, 7)), CPoint(-2, 7));
}

TEST(Rect, CornersExtentsAndCenter) {
    const CRect rect(CPoint(2, 3), CSize(10, 20));

    EXPECT_EQ(rect, CRect(2, 3, 12, 23));
    EXPECT_EQ(rect.Size(), CSize(10, 20));
    EXPECT_EQ(rect.CenterPoint(), CPoint(7, 13));
    EXPECT_EQ(CRect(-3, 0, 0, 3).CenterPoint(), CPoint(-1, 1));
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
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
    const CRect rect(0, 1, 4, 5);
    const CRect margins(1, 2, 3, 4);

    EXPECT_EQ(rect + CPoint(2, 2), CRect(2, 3, 6, 7));
    EXPECT_EQ(rect - CSize(2, 2), CRect(-2, -1, 2, 3));
    EXPECT_EQ(rect + &margins, CRect(-1, -1, 7, 9));
    EXPECT_EQ(rect - &margins, CRect(1, 3, 1, 1));
}

TEST(Rect, NormalizingSwapsOnlyWhatIsReversed) {
    CRect wide(9, 1, 3, 5);
    CRect high(1, 8, 2, 4);
    wide.NormalizeRect();
    high.NormalizeRect();

    EXPECT_EQ(wide, CRect(3, 1, 9, 5));
    EXPECT_EQ(high, CRect(1, 4, 2, 8));
}

TEST(Rect, SetLawsHoldOverSamples) {
    EXPECT_EQ(Samples[0] & Samples[1], CRect(5, 5, 10, 10));
    EXPECT_EQ(Samples[0] | Samples[1], CRect(0, 0, 15, 12));
    for (const CRect& a : Samples) {
        for (const CRect& b : Samples) {
            EXPECT_EQ(a & b, b & a);
            EXPECT_EQ(a | b, b | a);
            EXPECT_EQ((a & b) | a, a);
            EXPECT_EQ((a | b) & a, a);
        }
    }
}
