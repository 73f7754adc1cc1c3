#include "fonts.h"
#include "gdi/dc.h"

#include <algorithm>

namespace win32 {

// Which extents GetTextExtentExPointA tells.
struct Partial {
    int limit;
    int* fit;
    int* dx;
};

namespace {

int MeasurePlainPrefix(const CFontInstance& font, LPCSTR text, int count, int limit, int* dx) {
    int extent = 0;
    for (int at = 0; at < count; ++at) {
        extent += font.ByteAdvance(text[at]);
        if (extent > limit) {
            return at;
        }
        if (dx) {
            dx[at] = extent;
        }
    }
    return count;
}

// Character by character, until one does not fit; the bytes that fit.
int MeasurePrefix(CFontInstance& font, LPCSTR text, int count, int limit, int* dx) {
    if (font.IsPlain(count)) {
        return MeasurePlainPrefix(font, text, count, limit, dx);
    }
    LONGLONG extent = 0;
    int at = 0;
    while (at < count) {
        const Character next = FirstCharacter(font.Page(), text + at, count - at);
        extent = std::min<LONGLONG>(extent + font.Advance(next), LongestExtent);
        if (extent > limit) {
            break;
        }
        if (dx) {
            std::fill_n(dx + at, next.length, static_cast<int>(extent));
        }
        at += next.length;
    }
    return at;
}

BOOL MeasureText(HDC dc, LPCSTR text, int count, const Partial& partial, LPSIZE size) {
    const DeviceContext* context = FindDc(dc);
    if (!context || !size || count < 0 || (!text && count > 0)) {
        return context ? FailWith(ERROR_INVALID_PARAMETER) : FALSE;
    }
    CFontInstance& font = InstanceOf(*context->font);
    if (partial.fit) {
        *partial.fit = MeasurePrefix(font, text, count, partial.limit, partial.dx);
    } else if (partial.dx) {
        MeasurePrefix(font, text, count, LongestExtent, partial.dx);
    }
    *size = {font.Extent(text, count), font.Height()};
    return TRUE;
}

} // namespace

} // namespace win32

using namespace win32;

BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int count, LPSIZE size) {
    return MeasureText(dc, text, count, {}, size);
}

BOOL GetTextExtentExPointA(HDC dc, LPCSTR text, int count, int maxExtent, LPINT fit, LPINT dx, LPSIZE size) {
    return MeasureText(dc, text, count, {maxExtent, fit, dx}, size);
}

int GetTextFaceA(HDC dc, int size, LPSTR face) {
    const DeviceContext* context = FindDc(dc);
    if (!context) {
        return 0;
    }
    const Font& font = *context->font;
    const std::string& picked = InstanceOf(*context->font).Family();
    const std::string name = picked.empty() ? font.description.lfFaceName : picked;
    const int needed = static_cast<int>(name.size()) + 1;
    if (!face) {
        return needed;
    }
    if (size <= 0) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    const int copied = std::min(size, needed);
    std::copy_n(name.c_str(), copied, face);
    face[copied - 1] = 0;
    return copied;
}

BOOL GetTextMetricsA(HDC dc, LPTEXTMETRICA metrics) {
    const DeviceContext* context = FindDc(dc);
    if (!context || !metrics) {
        return FALSE;
    }
    const CFontInstance& font = InstanceOf(*context->font);
    const LOGFONTA& description = context->font->description;
    const Character letter = {'x', 'x', 1};
    *metrics = {};
    metrics->tmHeight = font.Height();
    metrics->tmAscent = font.Ascent();
    metrics->tmDescent = font.Height() - font.Ascent();
    metrics->tmInternalLeading = font.Height() - font.Em();
    metrics->tmAveCharWidth = font.Advance(letter);
    metrics->tmMaxCharWidth = font.WidestAdvance();
    metrics->tmWeight = font.Key().bold ? FW_BOLD : FW_NORMAL;
    metrics->tmDigitizedAspectX = metrics->tmDigitizedAspectY = GetDeviceCaps(dc, LOGPIXELSY);
    metrics->tmFirstChar = ' ';
    metrics->tmLastChar = 255;
    metrics->tmDefaultChar = '?';
    metrics->tmBreakChar = ' ';
    metrics->tmItalic = description.lfItalic;
    metrics->tmUnderlined = description.lfUnderline;
    metrics->tmStruckOut = description.lfStrikeOut;
    metrics->tmPitchAndFamily = font.IsFixedPitch() ? 0 : 1;
    metrics->tmCharSet = static_cast<BYTE>(GetTextCharsetInfo(dc, nullptr, 0));
    return TRUE;
}
