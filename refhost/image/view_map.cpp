#include "image/view_map.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double Lowest = std::numeric_limits<LONG>::min();
constexpr double Highest = std::numeric_limits<LONG>::max();

/// The sums below are of whole numbers far under 2^53, so that nothing is lost in doubles.
LONG Held(double dValue) { return static_cast<LONG>(std::clamp(dValue, Lowest, Highest)); }

LONG Client(LONG nDoc, LONG nScroll, double dZoom) {
    return Held(std::round((static_cast<double>(nDoc) - nScroll) * dZoom));
}

LONG Doc(LONG nClient, LONG nScroll, double dZoom) { return Held(std::round(nClient / dZoom) + nScroll); }

} // namespace

POINT ViewMap::ToClient(const POINT& ptDoc) const {
    return {Client(ptDoc.x, ptScroll.x, dZoom), Client(ptDoc.y, ptScroll.y, dZoom)};
}

POINT ViewMap::ToDoc(const POINT& ptClient) const {
    return {Doc(ptClient.x, ptScroll.x, dZoom), Doc(ptClient.y, ptScroll.y, dZoom)};
}

RECT ViewMap::RectToClient(const RECT& rcDoc) const {
    const POINT ptFirst = ToClient({rcDoc.left, rcDoc.top});
    const POINT ptLast = ToClient({rcDoc.right, rcDoc.bottom});
    return {ptFirst.x, ptFirst.y, ptLast.x, ptLast.y};
}

RECT ViewMap::RectToDoc(const RECT& rcClient) const {
    const POINT ptFirst = ToDoc({rcClient.left, rcClient.top});
    const POINT ptLast = ToDoc({rcClient.right, rcClient.bottom});
    return {ptFirst.x, ptFirst.y, ptLast.x, ptLast.y};
}
