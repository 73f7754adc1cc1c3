#include "stroke.h"

#include <algorithm>
#include <cstdlib>

namespace win32 {

Stroke StrokeOf(const DeviceContext& context, const Canvas& canvas) {
    const Pen& pen = *context.pen;
    return {PixelOf(canvas, pen.color),
            PixelOf(canvas, context.bkColor),
            pen.style == PS_DOT,
            context.bkMode == OPAQUE,
            pen.width,
            context.rop};
}

RECT StrokeBox(const DeviceContext& context, POINT from, POINT to) {
    const LONG reach = context.pen->width;
    return {std::min(from.x, to.x) - reach, std::min(from.y, to.y) - reach, std::max(from.x, to.x) + reach,
            std::max(from.y, to.y) + reach};
}

RECT OuterEdge(const DeviceContext& context, const RECT& rect) {
    if (context.pen->style == PS_NULL) {
        return {rect.left, rect.top, rect.right - 1, rect.bottom - 1};
    }
    const LONG outward = context.pen->width / 2;
    const LONG further = context.pen->width - 1 - outward;
    return {rect.left - outward, rect.top - outward, rect.right + further, rect.bottom + further};
}

// A line seen along its longer axis: a step a pixel, and now and then one across.
struct Course {
    Course(POINT from, POINT to) {
        const LONG dx = to.x - from.x;
        const LONG dy = to.y - from.y;
        steep = std::abs(dy) > std::abs(dx);
        start = steep ? from.y : from.x;
        acrossStart = steep ? from.x : from.y;
        direction = (steep ? dy : dx) < 0 ? -1 : 1;
        acrossDirection = (steep ? dx : dy) < 0 ? -1 : 1;
        length = std::abs(steep ? dy : dx);
        rise = std::abs(steep ? dx : dy);
    }

    // The first step whose coordinate along the axis lies within [low, high), and the last of `steps` that
    // does.
    void Limit(LONG low, LONG high, LONGLONG steps, LONGLONG* first, LONGLONG* last) const {
        const LONGLONG toLow = (low - static_cast<LONGLONG>(start)) * direction;
        const LONGLONG toHigh = (high - 1 - static_cast<LONGLONG>(start)) * direction;
        *first = std::max<LONGLONG>(0, std::min(toLow, toHigh));
        *last = std::min(steps - 1, std::max(toLow, toHigh));
    }

    bool steep;
    LONG start;
    LONG acrossStart;
    LONG direction;
    LONG acrossDirection;
    LONGLONG length;
    LONGLONG rise;
};

// Calls visit(along, across, step) for the first `steps` pixels of the course that lie in [low, high) along
// it.
template <typename Visit>
void Walk(const Course& course, LONGLONG steps, LONG low, LONG high, Visit visit) {
    LONGLONG first;
    LONGLONG last;
    course.Limit(low, high, steps, &first, &last);
    const LONGLONG whole = 2 * std::max<LONGLONG>(course.length, 1);
    // Right between two pixels the line takes the upper or left one, whichever way it runs.
    const LONGLONG half = course.length - (course.acrossDirection > 0 ? 1 : 0);
    const LONGLONG begin = 2 * first * course.rise + std::max<LONGLONG>(half, 0);
    LONG across = course.acrossStart + static_cast<LONG>(begin / whole) * course.acrossDirection;
    LONGLONG error = begin % whole;
    LONG along = course.start + static_cast<LONG>(first) * course.direction;
    for (LONGLONG step = first; step <= last; ++step) {
        visit(along, across, step);
        along += course.direction;
        error += 2 * course.rise;
        if (error >= whole) {
            error -= whole;
            across += course.acrossDirection;
        }
    }
}

struct Range {
    LONG low;
    LONG high;

    bool Holds(LONG value) const { return value >= low && value < high; }
};

namespace {

void WalkThin(const Canvas& canvas, const Stroke& stroke, const Course& course, Range along, Range across,
              unsigned phase) {
    // Where in the pattern the next pixel stands; the first one's place alone takes a division.
    unsigned place = DotPeriod;
    Walk(course, course.length, along.low, along.high, [&](LONG a, LONG c, LONGLONG step) {
        if (place == DotPeriod) {
            place = static_cast<unsigned>((phase + static_cast<ULONGLONG>(step)) % DotPeriod);
        }
        const bool gap = stroke.dotted && place >= DotLength;
        place = place + 1 == DotPeriod ? 0 : place + 1;
        if (across.Holds(c) && (!gap || stroke.gapsPainted)) {
            Plot(course.steep ? canvas.At(c, a) : canvas.At(a, c), gap ? stroke.gapInk : stroke.ink,
                 stroke.rop);
        }
    });
}

// Each step paints the pen's width across the course, so no pixel is met twice and inverting pens stay true.
void WalkWide(const Canvas& canvas, const Stroke& stroke, const Course& course, Range along, Range across) {
    Walk(course, course.length + 1, along.low, along.high, [&](LONG a, LONG c, LONGLONG) {
        const LONG low = std::max(c - stroke.width / 2, across.low);
        const LONG high = std::min(c - stroke.width / 2 + stroke.width, across.high);
        for (LONG i = low; i < high; ++i) {
            Plot(course.steep ? canvas.At(i, a) : canvas.At(a, i), stroke.ink, stroke.rop);
        }
    });
}

} // namespace

unsigned StrokeLine(const Canvas& canvas, const Stroke& stroke, POINT from, POINT to, unsigned phase) {
    const Course course(from, to);
    const Range columns = {canvas.clip.left, canvas.clip.right};
    const Range rows = {canvas.clip.top, canvas.clip.bottom};
    const Range& along = course.steep ? rows : columns;
    const Range& across = course.steep ? columns : rows;
    if (stroke.width > 1) {
        WalkWide(canvas, stroke, course, along, across);
    } else {
        WalkThin(canvas, stroke, course, along, across, phase);
    }
    return static_cast<unsigned>((phase + static_cast<ULONGLONG>(course.length)) % DotPeriod);
}

namespace {

// A hidden line counts for the dotted pattern as a visible one does.
unsigned DrawSegment(DeviceContext& context, POINT from, POINT to, unsigned phase) {
    Canvas canvas;
    if (context.pen->style == PS_NULL || !OpenForDrawing(context, StrokeBox(context, from, to), &canvas)) {
        const Course course(from, to);
        return static_cast<unsigned>((phase + static_cast<ULONGLONG>(course.length)) % DotPeriod);
    }
    return StrokeLine(canvas, StrokeOf(context, canvas), from, to, phase);
}

} // namespace

} // namespace win32

using namespace win32;

BOOL LineTo(HDC dc, int x, int y) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return FALSE;
    }
    const POINT from = ToDevice(*context, context->position.x, context->position.y);
    const POINT to = ToDevice(*context, x, y);
    if (!IsReachable(from) || !IsReachable(to)) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    context->dotPhase = DrawSegment(*context, from, to, context->dotPhase);
    context->position = {x, y};
    return TRUE;
}

BOOL Polyline(HDC dc, const POINT* points, int count) {
    DeviceContext* context = FindDc(dc);
    if (!context || !points || count < 2) {
        return FALSE;
    }
    const auto reachable = [context](POINT p) { return IsReachable(ToDevice(*context, p.x, p.y)); };
    if (!std::all_of(points, points + count, reachable)) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    unsigned phase = 0;
    for (const POINT* p = points; p + 1 < points + count; ++p) {
        phase = DrawSegment(*context, ToDevice(*context, p[0].x, p[0].y), ToDevice(*context, p[1].x, p[1].y),
                            phase);
    }
    return TRUE;
}
