#pragma once

// Points, sizes and rectangles. All of them are the plain structures with operators: they allocate nothing.

#include <windows.h>
#include <windowsx.h>

class CPoint;
class CRect;

/// Coordinates wrap at 32 bits, so that arithmetic near the limits is defined and a difference of two wrapped
/// ones comes out right.
constexpr int AfxSum(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}
constexpr int AfxDifference(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

class CSize : public SIZE {
  public:
    constexpr CSize() : SIZE{0, 0} {}
    constexpr CSize(int initCX, int initCY) : SIZE{initCX, initCY} {}
    constexpr CSize(SIZE initSize) : SIZE(initSize) {}
    constexpr explicit CSize(POINT initPt) : SIZE{initPt.x, initPt.y} {}

    friend constexpr bool operator==(SIZE a, SIZE b) { return a.cx == b.cx && a.cy == b.cy; }
    constexpr void operator+=(SIZE size) {
        cx = AfxSum(cx, size.cx);
        cy = AfxSum(cy, size.cy);
    }
    constexpr void operator-=(SIZE size) {
        cx = AfxDifference(cx, size.cx);
        cy = AfxDifference(cy, size.cy);
    }
    constexpr CSize operator+(SIZE size) const { return {AfxSum(cx, size.cx), AfxSum(cy, size.cy)}; }
    constexpr CSize operator-(SIZE size) const {
        return {AfxDifference(cx, size.cx), AfxDifference(cy, size.cy)};
    }
    constexpr CSize operator-() const { return {AfxDifference(0, cx), AfxDifference(0, cy)}; }
    constexpr CPoint operator+(POINT point) const;
    constexpr CPoint operator-(POINT point) const;
};

class CPoint : public POINT {
  public:
    constexpr CPoint() : POINT{0, 0} {}
    constexpr CPoint(int initX, int initY) : POINT{initX, initY} {}
    constexpr CPoint(POINT initPt) : POINT(initPt) {}
    constexpr explicit CPoint(SIZE initSize) : POINT{initSize.cx, initSize.cy} {}
    /// The two signed 16-bit coordinates of a mouse message's LPARAM.
    constexpr explicit CPoint(LPARAM dwPoint) : POINT{GET_X_LPARAM(dwPoint), GET_Y_LPARAM(dwPoint)} {}

    constexpr void Offset(int xOffset, int yOffset) {
        x = AfxSum(x, xOffset);
        y = AfxSum(y, yOffset);
    }
    constexpr void Offset(POINT point) { Offset(point.x, point.y); }
    constexpr void Offset(SIZE size) { Offset(size.cx, size.cy); }

    friend constexpr bool operator==(POINT a, POINT b) { return a.x == b.x && a.y == b.y; }
    constexpr void operator+=(SIZE size) { Offset(size); }
    constexpr void operator-=(SIZE size) { Offset(AfxDifference(0, size.cx), AfxDifference(0, size.cy)); }
    constexpr void operator+=(POINT point) { Offset(point); }
    constexpr void operator-=(POINT point) { Offset(AfxDifference(0, point.x), AfxDifference(0, point.y)); }
    constexpr CPoint operator+(SIZE size) const { return {AfxSum(x, size.cx), AfxSum(y, size.cy)}; }
    constexpr CPoint operator-(SIZE size) const {
        return {AfxDifference(x, size.cx), AfxDifference(y, size.cy)};
    }
    constexpr CPoint operator+(POINT point) const { return {AfxSum(x, point.x), AfxSum(y, point.y)}; }
    constexpr CSize operator-(POINT point) const {
        return {AfxDifference(x, point.x), AfxDifference(y, point.y)};
    }
    constexpr CPoint operator-() const { return {AfxDifference(0, x), AfxDifference(0, y)}; }
    constexpr CRect operator+(const RECT& rect) const;
};

constexpr CPoint CSize::operator+(POINT point) const { return {AfxSum(cx, point.x), AfxSum(cy, point.y)}; }
constexpr CPoint CSize::operator-(POINT point) const {
    return {AfxDifference(cx, point.x), AfxDifference(cy, point.y)};
}

/// Left and top belong to the rectangle, right and bottom do not.
class CRect : public RECT {
  public:
    constexpr CRect() : RECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    constexpr CRect(const RECT& srcRect) : RECT(srcRect) {}
    constexpr CRect(LPCRECT lpSrcRect) : RECT(*lpSrcRect) {}
    constexpr CRect(POINT point, SIZE size)
        : RECT{point.x, point.y, AfxSum(point.x, size.cx), AfxSum(point.y, size.cy)} {}
    constexpr CRect(POINT topLeft, POINT bottomRight)
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    constexpr int Width() const { return AfxDifference(right, left); }
    constexpr int Height() const { return AfxDifference(bottom, top); }
    constexpr CSize Size() const { return {Width(), Height()}; }
    /// Copies of the corners, const so that nobody changes a copy in the belief that it is the rectangle.
    constexpr const CPoint TopLeft() const { return {left, top}; }
    constexpr const CPoint BottomRight() const { return {right, bottom}; }
    /// Half the sum of the edges, halves toward zero.
    constexpr CPoint CenterPoint() const { return {AfxSum(left, right) / 2, AfxSum(top, bottom) / 2}; }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    /// True when the width or the height is not positive.
    constexpr BOOL IsRectEmpty() const { return left >= right || top >= bottom; }
    /// True when all four edges are 0.
    constexpr BOOL IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    constexpr BOOL PtInRect(POINT point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    constexpr BOOL EqualRect(const RECT& rect) const { return *this == rect; }
    constexpr BOOL EqualRect(LPCRECT lpRect) const { return *this == *lpRect; }

    constexpr void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    constexpr void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    constexpr void SetRectEmpty() { *this = CRect(); }
    constexpr void CopyRect(LPCRECT lpSrcRect) { *this = CRect(lpSrcRect); }

    constexpr void InflateRect(int l, int t, int r, int b) {
        left = AfxDifference(left, l);
        top = AfxDifference(top, t);
        right = AfxSum(right, r);
        bottom = AfxSum(bottom, b);
    }
    constexpr void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    constexpr void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    constexpr void InflateRect(LPCRECT lpRect) {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    constexpr void DeflateRect(int l, int t, int r, int b) {
        InflateRect(AfxDifference(0, l), AfxDifference(0, t), AfxDifference(0, r), AfxDifference(0, b));
    }
    constexpr void DeflateRect(int x, int y) { InflateRect(AfxDifference(0, x), AfxDifference(0, y)); }
    constexpr void DeflateRect(SIZE size) {
        InflateRect(AfxDifference(0, size.cx), AfxDifference(0, size.cy));
    }
    constexpr void DeflateRect(LPCRECT lpRect) {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    constexpr void OffsetRect(int x, int y) {
        left = AfxSum(left, x);
        top = AfxSum(top, y);
        right = AfxSum(right, x);
        bottom = AfxSum(bottom, y);
    }
    constexpr void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    constexpr void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    /// Swaps edges so that neither width nor height is negative.
    constexpr void NormalizeRect() {
        if (left > right) {
            SwapLeftRight();
        }
        if (top > bottom) {
            const LONG oldTop = top;
            top = bottom;
            bottom = oldTop;
        }
    }
    constexpr void SwapLeftRight() {
        const LONG oldLeft = left;
        left = right;
        right = oldLeft;
    }

    /// FALSE, and an all-zero rectangle, when the two have no area in common.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) { return ::IntersectRect(this, lpRect1, lpRect2); }
    /// The bounding rectangle, an empty operand not counting. FALSE when both are empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) { return ::UnionRect(this, lpRect1, lpRect2); }

    friend constexpr bool operator==(const RECT& a, const RECT& b) {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
    constexpr void operator+=(POINT point) { OffsetRect(point); }
    constexpr void operator+=(SIZE size) { OffsetRect(size); }
    constexpr void operator+=(LPCRECT lpRect) { InflateRect(lpRect); }
    constexpr void operator-=(POINT point) {
        OffsetRect(AfxDifference(0, point.x), AfxDifference(0, point.y));
    }
    constexpr void operator-=(SIZE size) { OffsetRect(AfxDifference(0, size.cx), AfxDifference(0, size.cy)); }
    constexpr void operator-=(LPCRECT lpRect) { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) { UnionRect(this, &rect); }

    constexpr CRect operator+(POINT point) const { return *this + CSize(point); }
    constexpr CRect operator+(SIZE size) const { return {TopLeft() + size, BottomRight() + size}; }
    constexpr CRect operator+(LPCRECT lpRect) const {
        return {AfxDifference(left, lpRect->left), AfxDifference(top, lpRect->top),
                AfxSum(right, lpRect->right), AfxSum(bottom, lpRect->bottom)};
    }
    constexpr CRect operator-(POINT point) const { return *this - CSize(point); }
    constexpr CRect operator-(SIZE size) const { return {TopLeft() - size, BottomRight() - size}; }
    constexpr CRect operator-(LPCRECT lpRect) const {
        return {AfxSum(left, lpRect->left), AfxSum(top, lpRect->top), AfxDifference(right, lpRect->right),
                AfxDifference(bottom, lpRect->bottom)};
    }
    CRect operator&(const RECT& rect) const {
        CRect result;
        result.IntersectRect(this, &rect);
        return result;
    }
    CRect operator|(const RECT& rect) const {
        CRect result;
        result.UnionRect(this, &rect);
        return result;
    }
};

constexpr CRect CPoint::operator+(const RECT& rect) const { return CRect(rect) + CSize(*this); }
