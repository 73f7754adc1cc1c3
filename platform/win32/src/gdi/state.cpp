#include "dc.h"

#include "wrap.h"

#include <utility>

namespace win32 {

namespace {

void Tell(LPPOINT out, POINT value) {
    if (out) {
        *out = value;
    }
}

// Sets one of a context's points and tells the one before; FALSE for a bad context.
BOOL ExchangePoint(HDC dc, POINT DeviceContext::*field, POINT value, LPPOINT previous) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return FALSE;
    }
    Tell(previous, std::exchange(context->*field, value));
    return TRUE;
}

BOOL GetPoint(HDC dc, POINT DeviceContext::*field, LPPOINT point) {
    const DeviceContext* context = FindDc(dc);
    if (!context || !point) {
        return FALSE;
    }
    *point = context->*field;
    return TRUE;
}

COLORREF ExchangeColor(HDC dc, COLORREF DeviceContext::*field, COLORREF color) {
    DeviceContext* context = FindDc(dc);
    return context ? std::exchange(context->*field, color & 0x00FFFFFF) : CLR_INVALID;
}

COLORREF GetColor(HDC dc, COLORREF DeviceContext::*field) {
    const DeviceContext* context = FindDc(dc);
    return context ? context->*field : CLR_INVALID;
}

} // namespace

} // namespace win32

using namespace win32;

COLORREF SetBkColor(HDC dc, COLORREF color) { return ExchangeColor(dc, &DeviceContext::bkColor, color); }

COLORREF GetBkColor(HDC dc) { return GetColor(dc, &DeviceContext::bkColor); }

COLORREF SetTextColor(HDC dc, COLORREF color) { return ExchangeColor(dc, &DeviceContext::textColor, color); }

COLORREF GetTextColor(HDC dc) { return GetColor(dc, &DeviceContext::textColor); }

int SetBkMode(HDC dc, int mode) {
    DeviceContext* context = FindDc(dc);
    return context && (mode == OPAQUE || mode == TRANSPARENT) ? std::exchange(context->bkMode, mode) : 0;
}

int GetBkMode(HDC dc) {
    const DeviceContext* context = FindDc(dc);
    return context ? context->bkMode : 0;
}

int SetROP2(HDC dc, int mode) {
    DeviceContext* context = FindDc(dc);
    const bool known = mode == R2_COPYPEN || mode == R2_XORPEN || mode == R2_NOT || mode == R2_NOP;
    return context && known ? std::exchange(context->rop, mode) : 0;
}

int GetROP2(HDC dc) {
    const DeviceContext* context = FindDc(dc);
    return context ? context->rop : 0;
}

UINT SetTextAlign(HDC dc, UINT mode) {
    DeviceContext* context = FindDc(dc);
    return context ? std::exchange(context->textAlign, mode) : GDI_ERROR;
}

UINT GetTextAlign(HDC dc) {
    const DeviceContext* context = FindDc(dc);
    return context ? context->textAlign : GDI_ERROR;
}

BOOL SetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous) {
    return ExchangePoint(dc, &DeviceContext::viewportOrg, {x, y}, previous);
}

BOOL GetViewportOrgEx(HDC dc, LPPOINT point) { return GetPoint(dc, &DeviceContext::viewportOrg, point); }

BOOL OffsetViewportOrgEx(HDC dc, int dx, int dy, LPPOINT previous) {
    POINT origin;
    if (!GetViewportOrgEx(dc, &origin)) {
        return FALSE;
    }
    return SetViewportOrgEx(dc, WrapSum(origin.x, dx), WrapSum(origin.y, dy), previous);
}

BOOL SetWindowOrgEx(HDC dc, int x, int y, LPPOINT previous) {
    return ExchangePoint(dc, &DeviceContext::windowOrg, {x, y}, previous);
}

BOOL GetWindowOrgEx(HDC dc, LPPOINT point) { return GetPoint(dc, &DeviceContext::windowOrg, point); }

BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous) {
    if (!ExchangePoint(dc, &DeviceContext::position, {x, y}, previous)) {
        return FALSE;
    }
    FindDc(dc)->dotPhase = 0;
    return TRUE;
}

BOOL GetCurrentPositionEx(HDC dc, LPPOINT point) { return GetPoint(dc, &DeviceContext::position, point); }
