// Where a page has changed since its picture was composed last.
#pragma once

#include <cstddef>
#include <vector>

#include <windows.h>

/// A few rectangles that together hold every change. Close ones are joined; when there are too many, one
/// holds all.
class CChangedArea {
  public:
    /// An empty rectangle adds nothing.
    void Add(const RECT& rect);
    bool IsEmpty() const { return m_rects.empty(); }
    const std::vector<RECT>& Rects() const { return m_rects; }
    void Clear() { m_rects.clear(); }
    /// Takes out the rectangles that lie wholly within `rect`.
    void RemoveWithin(const RECT& rect);

  private:
    std::vector<RECT> m_rects;
};
