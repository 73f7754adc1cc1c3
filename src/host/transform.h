// The transform library: points of doubles, outlines of four corners, and a node's transform block.
#pragma once

#include <cstdint>

#include <windows.h>

struct CTxPoint {
    double x = 0.0;
    double y = 0.0;
};

/// The transform block of a node: fifteen 32-bit words, position first and the mask buffer in the fifth.
/// Lengths and positions are document units.
struct CTxParam {
    std::int32_t nX = 0;
    std::int32_t nY = 0;
    std::int32_t nWidth = 0;
    std::int32_t nHeight = 0;
    std::int32_t hMask = 0;     ///< 8-bit buffer handle, or 0 for a fully opaque node
    std::int32_t nOrgWidth = 0; ///< original size, in pixels of the source
    std::int32_t nOrgHeight = 0;
    std::int32_t nMaskScale = 100; ///< percent; 100 is a mask at full size
    std::int32_t nOffsetFlag = 0;  ///< 1: the offset below is added to the position
    std::int32_t nOffsetX = 0;
    std::int32_t nOffsetY = 0;
    std::int32_t nAngle = 0; ///< degrees; upright nodes have 0
    std::int32_t nSkewX = 0;
    std::int32_t nSkewY = 0;
    std::int32_t nMode = 0;

    /// Stores the original width and height. `nKeep` 0 leaves position and size alone and has no other value
    /// in use.
    void SetOrWH(int nWidthOrg, int nHeightOrg, int nKeep);
};
static_assert(sizeof(CTxParam) == 60, "the transform block has fifteen 32-bit words");

/// Answers 1 when the point lies inside the convex outline of four corners or on its edge, else 0.
int PtInBound(CTxPoint& point, CTxPoint* pCorners);
/// The bounding rectangle of `nCount` points, every coordinate truncated toward zero. No points give an empty
/// rectangle.
void GetBoundRect(CTxPoint* pPoints, int nCount, RECT* pRect);
