#include "wrap.h"

#include <algorithm>

using win32::WrapDifference;
using win32::WrapSum;

BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom) {
    if (!rect) {
        return FALSE;
    }
    *rect = {left, top, right, bottom};
    return TRUE;
}

BOOL SetRectEmpty(LPRECT rect) { return SetRect(rect, 0, 0, 0, 0); }

BOOL CopyRect(LPRECT to, LPCRECT from) {
    if (!to || !from) {
        return FALSE;
    }
    *to = *from;
    return TRUE;
}

BOOL InflateRect(LPRECT rect, int dx, int dy) {
    if (!rect) {
        return FALSE;
    }
    *rect = {WrapDifference(rect->left, dx), WrapDifference(rect->top, dy), WrapSum(rect->right, dx),
             WrapSum(rect->bottom, dy)};
    return TRUE;
}

BOOL OffsetRect(LPRECT rect, int dx, int dy) {
    if (!rect) {
        return FALSE;
    }
    *rect = {WrapSum(rect->left, dx), WrapSum(rect->top, dy), WrapSum(rect->right, dx),
             WrapSum(rect->bottom, dy)};
    return TRUE;
}

BOOL IntersectRect(LPRECT result, LPCRECT a, LPCRECT b) {
    if (!result || !a || !b) {
        return FALSE;
    }
    const RECT common = {std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
                         std::min(a->bottom, b->bottom)};
    if (IsRectEmpty(&common)) {
        SetRectEmpty(result);
        return FALSE;
    }
    *result = common;
    return TRUE;
}

BOOL UnionRect(LPRECT result, LPCRECT a, LPCRECT b) {
    if (!result || !a || !b) {
        return FALSE;
    }
    if (IsRectEmpty(a) && IsRectEmpty(b)) {
        SetRectEmpty(result);
        return FALSE;
    }
    if (IsRectEmpty(a) || IsRectEmpty(b)) {
        *result = IsRectEmpty(a) ? *b : *a;
        return TRUE;
    }
    *result = {std::min(a->left, b->left), std::min(a->top, b->top), std::max(a->right, b->right),
               std::max(a->bottom, b->bottom)};
    return TRUE;
}

BOOL PtInRect(LPCRECT rect, POINT point) {
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
           point.y < rect->bottom;
}

BOOL EqualRect(LPCRECT a, LPCRECT b) {
    return a && b && a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom;
}

BOOL IsRectEmpty(LPCRECT rect) { return !rect || rect->left >= rect->right || rect->top >= rect->bottom; }
