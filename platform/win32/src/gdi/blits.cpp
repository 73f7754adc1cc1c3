#include "canvas.h"

#include <algorithm>

namespace win32 {

// Both sides of a copy, already clipped: `to` in the target's device pixels, `from` the source's of its left
// top corner.
struct Copy {
    Canvas target;
    Canvas source;
    RECT to;
    POINT from;

    LONG Width() const { return to.right - to.left; }
    LONG Height() const { return to.bottom - to.top; }
    bool SamePixels() const { return target.pixels == source.pixels; }
    // Backwards where a forward run would overwrite pixels before they are read.
    bool RowsBackward() const { return SamePixels() && TargetTop() > SourceTop(); }
    bool ColumnsBackward() const {
        return SamePixels() && TargetTop() == SourceTop() && TargetLeft() > SourceLeft();
    }
    LONG TargetTop() const { return to.top + target.offset.y; }
    LONG SourceTop() const { return from.y + source.offset.y; }
    LONG TargetLeft() const { return to.left + target.offset.x; }
    LONG SourceLeft() const { return from.x + source.offset.x; }
};

template <typename RowWork>
void ForEachRow(const Copy& copy, RowWork work) {
    const LONG height = copy.Height();
    for (LONG i = 0; i < height; ++i) {
        const LONG row = copy.RowsBackward() ? height - 1 - i : i;
        work(copy.target.At(copy.to.left, copy.to.top + row), copy.source.At(copy.from.x, copy.from.y + row));
    }
}

namespace {

void CopyRows(const Copy& copy) {
    const size_t bytes = static_cast<size_t>(copy.Width()) * sizeof(DWORD);
    if (copy.SamePixels()) {
        ForEachRow(copy, [bytes](DWORD* to, const DWORD* from) { std::memmove(to, from, bytes); });
    } else {
        ForEachRow(copy, [bytes](DWORD* to, const DWORD* from) { std::memcpy(to, from, bytes); });
    }
}

} // namespace

template <typename Mix>
void MixRows(const Copy& copy, Mix mix) {
    const LONG width = copy.Width();
    const bool backward = copy.ColumnsBackward();
    ForEachRow(copy, [=](DWORD* to, const DWORD* from) {
        for (LONG i = 0; i < width; ++i) {
            const LONG column = backward ? width - 1 - i : i;
            to[column] = mix(to[column], from[column]);
        }
    });
}

// `convert` makes a target's pixel of a source's.
template <typename Convert>
BOOL MixConverted(const Copy& copy, DWORD operation, Convert convert) {
    switch (operation) {
    case SRCCOPY: MixRows(copy, [=](DWORD, DWORD from) { return convert(from); }); return TRUE;
    case SRCINVERT: MixRows(copy, [=](DWORD to, DWORD from) { return to ^ convert(from); }); return TRUE;
    case SRCAND: MixRows(copy, [=](DWORD to, DWORD from) { return to & convert(from); }); return TRUE;
    default: MixRows(copy, [=](DWORD to, DWORD from) { return to | convert(from); }); return TRUE;
    }
}

namespace {

// From one bit to colours, clear bits take the target's text colour and set ones its background; the other
// way, the source's background colour sets a bit.
BOOL Transfer(const Copy& copy, const DeviceContext& target, const DeviceContext& source, DWORD operation) {
    if (copy.source.monochrome && !copy.target.monochrome) {
        const DWORD clear = SwapRedBlue(target.textColor);
        const DWORD set = SwapRedBlue(target.bkColor);
        return MixConverted(copy, operation, [=](DWORD from) { return from ? set : clear; });
    }
    if (copy.target.monochrome && !copy.source.monochrome) {
        const DWORD back = SwapRedBlue(source.bkColor);
        return MixConverted(copy, operation,
                            [=](DWORD from) { return (from & ColorBits) == back ? ColorBits : 0; });
    }
    if (operation == SRCCOPY) {
        CopyRows(copy);
        return TRUE;
    }
    return MixConverted(copy, operation, [](DWORD from) { return from; });
}

bool IsSourceOperation(DWORD operation) {
    return operation == SRCCOPY || operation == SRCINVERT || operation == SRCAND || operation == SRCPAINT;
}

// Limits the copy to pixels that the source has; false when none is left.
bool ClipToSource(const DeviceContext& source, POINT from, RECT* to, Copy* copy) {
    if (!OpenCanvas(source, &copy->source)) {
        return false;
    }
    RECT have = copy->source.clip;
    OffsetRect(&have, to->left - from.x, to->top - from.y);
    copy->from = {from.x - to->left, from.y - to->top};
    return IntersectRect(to, to, &have);
}

} // namespace

} // namespace win32

using namespace win32;

BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC sourceDc, int sourceX, int sourceY,
            DWORD operation) {
    if (!IsSourceOperation(operation)) {
        return PatBlt(dc, x, y, width, height, operation);
    }
    DeviceContext* target = FindDc(dc);
    const DeviceContext* source = FindDc(sourceDc);
    if (!target || !source) {
        return FALSE;
    }
    const POINT corner = ToDevice(*target, x, y);
    const POINT from = ToDevice(*source, sourceX, sourceY);
    const POINT size = {width, height};
    if (!IsReachable(corner) || !IsReachable(from) || !IsReachable(size)) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    Copy copy;
    RECT to = {corner.x, corner.y, corner.x + width, corner.y + height};
    if (IsRectEmpty(&to) || !ClipToSource(*source, from, &to, &copy) ||
        !OpenForDrawing(*target, to, &copy.target)) {
        return TRUE;
    }
    copy.to = copy.target.clip;
    copy.from = {copy.from.x + copy.to.left, copy.from.y + copy.to.top};
    return Transfer(copy, *target, *source, operation);
}
