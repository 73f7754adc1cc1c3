// Where a component's placeholder lies once its frame has a place on the page. Module and host share the one
// arithmetic, so that both see the same rectangle.
#pragma once

#include <algorithm>
#include <limits>

#include <afxwin.h>

/// How a rectangle's box is mapped onto another: a corner, and a factor for each axis. A box without extent
/// has no factor; what lies in it keeps its size.
class CBoxMap {
  public:
    CBoxMap(const CRect& rcFrom, const CRect& rcTo)
        : m_rcFrom(rcFrom), m_rcTo(rcTo),
          m_dX(Factor(Length(rcTo.left, rcTo.right), Length(rcFrom.left, rcFrom.right))),
          m_dY(Factor(Length(rcTo.top, rcTo.bottom), Length(rcFrom.top, rcFrom.bottom))) {}

    /// Offsets and sizes are each truncated toward zero, and every edge is held within 32 bits.
    CRect Map(const CRect& rc) const {
        const double dLeft = m_rcTo.left + Held(Length(m_rcFrom.left, rc.left) * m_dX);
        const double dTop = m_rcTo.top + Held(Length(m_rcFrom.top, rc.top) * m_dY);
        return CRect(Edge(dLeft), Edge(dTop), Edge(dLeft + Held(Length(rc.left, rc.right) * m_dX)),
                     Edge(dTop + Held(Length(rc.top, rc.bottom) * m_dY)));
    }

  private:
    // Sums of a few 32-bit integers are exact in a double.
    static double Length(int nFrom, int nTo) { return static_cast<double>(nTo) - nFrom; }
    static double Factor(double dTo, double dFrom) { return dFrom > 0 ? dTo / dFrom : 1.0; }
    static int Edge(double dValue) {
        constexpr double dLeast = std::numeric_limits<int>::min();
        constexpr double dMost = std::numeric_limits<int>::max();
        return static_cast<int>(std::clamp(dValue, dLeast, dMost));
    }
    static double Held(double dLength) { return Edge(dLength); }

    CRect m_rcFrom;
    CRect m_rcTo;
    double m_dX;
    double m_dY;
};

/// The placeholder on the page: both component rectangles are the file's, `rcOnPage` is the frame's place in
/// document units.
inline CRect MapPlaceHolder(const CRect& rcFrame, const CRect& rcPlaceHolder, const CRect& rcOnPage) {
    return CBoxMap(rcFrame, rcOnPage).Map(rcPlaceHolder);
}
