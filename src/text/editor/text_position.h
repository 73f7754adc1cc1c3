// Places and ranges in a text of lines.
#pragma once

/// A place between bytes: behind byte `nIndex` of the line, -1 being before its first byte.
struct TextPosition {
    int nLine = 0;
    int nIndex = -1;

    friend bool operator==(const TextPosition&, const TextPosition&) = default;
    friend constexpr bool operator<(const TextPosition& a, const TextPosition& b) {
        return a.nLine != b.nLine ? a.nLine < b.nLine : a.nIndex < b.nIndex;
    }
};

/// From `start` to `end`, in this order; it covers something when they differ.
struct TextRange {
    TextPosition start;
    TextPosition end;

    constexpr bool IsEmpty() const { return start == end; }
    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// The part of a range on one line, as caret indices.
struct LineSpan {
    static constexpr int FromLineAbove = -2; ///< `nFrom` of a range that comes in from the line above

    int nFrom = -1;
    int nTo = -1; ///< the line's length when the range goes on to the line below

    constexpr bool IsEmpty() const { return nFrom >= nTo; }
    friend bool operator==(const LineSpan&, const LineSpan&) = default;
};

/// The part of the range on a line of `nLength` bytes; empty where the range does not touch it.
constexpr LineSpan SpanOnLine(const TextRange& range, int nLine, int nLength) {
    if (range.IsEmpty() || nLine < range.start.nLine || nLine > range.end.nLine) {
        return {};
    }
    return {nLine == range.start.nLine ? range.start.nIndex : LineSpan::FromLineAbove,
            nLine == range.end.nLine ? range.end.nIndex : nLength};
}
