// The eight handles: one table for drawing, hit test, cursor, geometry and the places that texts keep.
#pragma once

#include <array>

#include <afxwin.h>

#include "host/transform.h"
#include "ops/cursors.h"

/// Corner points of a node, client pixels, in this order.
enum Corner : int { TopLeft = 0, TopRight = 1, BottomRight = 2, BottomLeft = 3 };
using Corners = std::array<CTxPoint, 4>;

inline constexpr int HandleHalfSize = 4; ///< handles are 8 by 8 client pixels
inline constexpr int HandleCount = 8;
inline constexpr int NoHandle = 8; ///< what the hit test answers for none

/// Which edge of an axis a handle moves.
enum class Edge { None, Near, Far };

/// One handle: it stands in the middle of two corners (on a corner when both are the same).
struct HandleRow {
    Corner first;
    Corner second;
    Edge horizontal; ///< the left edge (Near) or the right one (Far)
    Edge vertical;   ///< the top edge (Near) or the bottom one (Far)
    int nCursorId;   ///< system cursor id of its sizing direction

    constexpr bool IsCorner() const { return horizontal != Edge::None && vertical != Edge::None; }
};

//   0 --- 4 --- 5
//   |           |
//   1           6
//   |           |
//   2 --- 3 --- 7
inline constexpr std::array<HandleRow, HandleCount> Handles = {{
    {TopLeft, TopLeft, Edge::Near, Edge::Near, cursor_id::SizeNwSe},
    {BottomLeft, TopLeft, Edge::Near, Edge::None, cursor_id::SizeWe},
    {BottomLeft, BottomLeft, Edge::Near, Edge::Far, cursor_id::SizeNeSw},
    {BottomRight, BottomLeft, Edge::None, Edge::Far, cursor_id::SizeNs},
    {TopLeft, TopRight, Edge::None, Edge::Near, cursor_id::SizeNs},
    {TopRight, TopRight, Edge::Far, Edge::Near, cursor_id::SizeNeSw},
    {TopRight, BottomRight, Edge::Far, Edge::None, cursor_id::SizeWe},
    {BottomRight, BottomRight, Edge::Far, Edge::Far, cursor_id::SizeNwSe},
}};

inline const HandleRow& HandleOf(int nHandle) { return Handles[static_cast<std::size_t>(nHandle)]; }

/// Round the corners from the top-left: the order in which handles are drawn and tried by the hit test.
inline constexpr std::array<int, HandleCount> HandleOrder = {0, 4, 5, 6, 7, 3, 2, 1};

/// The corner points of a client rectangle.
Corners CornersOf(const CRect& rc);
/// The corners less an origin.
Corners Shifted(Corners corners, CPoint ptOrigin);
/// The handle's square, truncated to whole pixels; right and bottom are outside.
CRect HandleSquare(const Corners& corners, int nHandle);
/// The first handle in that order whose square holds the point, or NoHandle.
int HandleAt(const Corners& corners, CPoint point);
