#include "image/changed_area.h"

#include <algorithm>

namespace {

constexpr std::size_t MostRects = 16;

double AreaOf(const RECT& rect) {
    return (static_cast<double>(rect.right) - rect.left) * (static_cast<double>(rect.bottom) - rect.top);
}

RECT Joined(const RECT& a, const RECT& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

bool Holds(const RECT& outer, const RECT& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

} // namespace

void CChangedArea::Add(const RECT& rect) {
    if (rect.left >= rect.right || rect.top >= rect.bottom) {
        return;
    }
    for (RECT& known : m_rects) {
        const RECT joined = Joined(known, rect);
        if (AreaOf(joined) <= AreaOf(known) + AreaOf(rect)) {
            known = joined;
            return;
        }
    }
    m_rects.push_back(rect);
    if (m_rects.size() <= MostRects) {
        return;
    }
    RECT all = m_rects.front();
    for (const RECT& known : m_rects) {
        all = Joined(all, known);
    }
    m_rects.assign(1, all);
}

void CChangedArea::RemoveWithin(const RECT& rect) {
    std::erase_if(m_rects, [&rect](const RECT& known) { return Holds(rect, known); });
}
