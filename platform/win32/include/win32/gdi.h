#pragma once

// Painting, device contexts and drawing. Pixels are 32-bit x8r8g8b8: 0x00RRGGBB in memory.

#include "win32/types.h"

constexpr int PS_SOLID = 0;
constexpr int PS_DOT = 2;
constexpr int PS_NULL = 5;

constexpr UINT BS_SOLID = 0;
constexpr UINT BS_NULL = 1;

constexpr int WHITE_BRUSH = 0;
constexpr int LTGRAY_BRUSH = 1;
constexpr int GRAY_BRUSH = 2;
constexpr int DKGRAY_BRUSH = 3;
constexpr int BLACK_BRUSH = 4;
constexpr int NULL_BRUSH = 5;
constexpr int HOLLOW_BRUSH = NULL_BRUSH;
constexpr int WHITE_PEN = 6;
constexpr int BLACK_PEN = 7;
constexpr int NULL_PEN = 8;
constexpr int SYSTEM_FONT = 13;
constexpr int DEFAULT_GUI_FONT = 17;

constexpr int COLOR_WINDOW = 5;
constexpr int COLOR_WINDOWFRAME = 6;
constexpr int COLOR_WINDOWTEXT = 8;
constexpr int COLOR_HIGHLIGHT = 13;
constexpr int COLOR_HIGHLIGHTTEXT = 14;
constexpr int COLOR_BTNFACE = 15;

constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;

constexpr int R2_NOT = 6;
constexpr int R2_XORPEN = 7;
constexpr int R2_NOP = 11;
constexpr int R2_COPYPEN = 13;

constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr DWORD SRCPAINT = 0x00EE0086;
constexpr DWORD SRCAND = 0x008800C6;
constexpr DWORD SRCINVERT = 0x00660046;
constexpr DWORD PATCOPY = 0x00F00021;
constexpr DWORD PATINVERT = 0x005A0049;
constexpr DWORD DSTINVERT = 0x00550009;
constexpr DWORD BLACKNESS = 0x00000042;
constexpr DWORD WHITENESS = 0x00FF0062;

constexpr int ERROR_REGION = 0;
constexpr int NULLREGION = 1;
constexpr int SIMPLEREGION = 2;
constexpr int COMPLEXREGION = 3;

constexpr UINT RDW_INVALIDATE = 0x0001;
constexpr UINT RDW_ERASE = 0x0004;
constexpr UINT RDW_UPDATENOW = 0x0100;

constexpr DWORD BI_RGB = 0;
constexpr UINT DIB_RGB_COLORS = 0;

typedef struct tagLOGPEN {
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
} LOGPEN, *LPLOGPEN;

typedef struct tagLOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
} LOGBRUSH, *LPLOGBRUSH;

typedef struct tagBITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
} BITMAP, *LPBITMAP;

typedef struct tagRGBQUAD {
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
} RGBQUAD;

typedef struct tagBITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
} BITMAPINFOHEADER, *LPBITMAPINFOHEADER;
static_assert(sizeof(BITMAPINFOHEADER) == 40);

typedef struct tagBITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
} BITMAPINFO, *LPBITMAPINFO;

/// A device's settings, which this layer's one display does not have.
typedef struct _devicemodeA DEVMODEA;

typedef struct tagPAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
} PAINTSTRUCT, *LPPAINTSTRUCT;

/// Adds the rectangle (client pixels; null: the whole client area) to the update area of the window and of
/// the visible children it meets, and tells the observer once, for the window named.
BOOL InvalidateRect(HWND window, LPCRECT rect, BOOL erase);
/// Takes the rectangle from the window's update area; the children's stay. What is left is kept as its
/// bounding rectangle.
BOOL ValidateRect(HWND window, LPCRECT rect);
/// FALSE, and an empty rectangle, when nothing is to be painted. `erase` sends WM_ERASEBKGND first.
BOOL GetUpdateRect(HWND window, LPRECT rect, BOOL erase);
/// Sends WM_PAINT at once to the window, then its children, where there is something to paint.
BOOL UpdateWindow(HWND window);
/// Invalidates by RDW_INVALIDATE (and RDW_ERASE), then updates by RDW_UPDATENOW; a region is not taken.
BOOL RedrawWindow(HWND window, LPCRECT rect, HRGN region, UINT flags);
/// A context clipped to the update area, which is empty from here on; sends WM_ERASEBKGND first where that is
/// due. Null on failure; the update area is empty then, too.
HDC BeginPaint(HWND window, LPPAINTSTRUCT paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);
/// A context on the window's client area, to be given back by ReleaseDC. A null window gives one on the
/// screen, which has no pixels: drawing on it does nothing.
HDC GetDC(HWND window);
/// 1, or 0 when the context did not come from GetDC of this window.
int ReleaseDC(HWND window, HDC dc);
COLORREF GetSysColor(int index);
/// A shared brush; never to be deleted.
HBRUSH GetSysColorBrush(int index);

/// What GetDeviceCaps is asked for: the resolution in pixels an inch.
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;
/// The display's resolution for every context; 0 for a bad context or another index.
int GetDeviceCaps(HDC dc, int index);
HDC CreateDCA(LPCSTR driver, LPCSTR device, LPCSTR output, const DEVMODEA* init);
/// A memory context with a 1 by 1 bitmap in it; null on failure.
HDC CreateCompatibleDC(HDC dc);
/// FALSE for a context that came from GetDC or BeginPaint. What is selected in it is free again.
BOOL DeleteDC(HDC dc);
/// The object selected before, of the same type; null when the object cannot be selected: a bitmap into a
/// context that is none of memory, or one that is in another context.
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
/// FALSE for an object that is selected in a context. A stock object answers TRUE and stays.
BOOL DeleteObject(HGDIOBJ object);
HGDIOBJ GetStockObject(int index);
/// Writes a BITMAP, LOGPEN, LOGBRUSH or LOGFONTA, at most `size` bytes; answers the bytes written, or needed
/// for a null `out`.
int GetObjectA(HGDIOBJ object, int size, LPVOID out);

/// PS_SOLID, PS_DOT (3 pixels on, 3 off; solid when wider than 1) or PS_NULL; null for another style. A width
/// of 0 is 1.
HPEN CreatePen(int style, int width, COLORREF color);
HBRUSH CreateSolidBrush(COLORREF color);
/// As many bits a pixel as the bitmap in `dc` has, one in a new memory context; 32 when `dc` is none of
/// memory.
HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);
/// 1, 24 (blue, green, red) or 32 bits a pixel. `bits` (null: all 0) has rows padded to 16 bits; a set bit of
/// the first kind is white.
HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits);
/// 32 bits a pixel; `*bits` is the pixels, owned by the bitmap. A negative height stands the first row at the
/// top, a positive one at the bottom.
HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD offset);

BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous);
/// All pixels from the current point up to, not with, (x, y). A pen wider than 1 draws the last one too.
BOOL LineTo(HDC dc, int x, int y);
BOOL GetCurrentPositionEx(HDC dc, LPPOINT point);
/// The pattern of a dotted pen starts with the first point and runs on; the current point plays no part. The
/// end of the last line is left out as LineTo leaves it. FALSE for fewer than two points.
BOOL Polyline(HDC dc, const POINT* points, int count);
/// The pen's frame and the brush inside it; right and bottom do not belong to it.
BOOL Rectangle(HDC dc, int left, int top, int right, int bottom);
/// The pixels whose centres lie inside the ellipse of this rectangle. A dotted pen draws the outline whole.
BOOL Ellipse(HDC dc, int left, int top, int right, int bottom);
/// 1 on success. The brush may be (HBRUSH)(COLOR_x + 1).
int FillRect(HDC dc, LPCRECT rect, HBRUSH brush);
int FrameRect(HDC dc, LPCRECT rect, HBRUSH brush);
/// PATCOPY, PATINVERT, DSTINVERT, BLACKNESS and WHITENESS.
BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD operation);
/// The colour set, or CLR_INVALID outside the clip.
COLORREF SetPixel(HDC dc, int x, int y, COLORREF color);
COLORREF GetPixel(HDC dc, int x, int y);
/// SRCCOPY, SRCINVERT, SRCAND, SRCPAINT and PatBlt's operations. Source and target may be one and overlap.
/// Pixels that the source does not have are left alone.
BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
            DWORD operation);

/// The setters answer the value before: CLR_INVALID or 0 for a bad context.
COLORREF SetBkColor(HDC dc, COLORREF color);
COLORREF GetBkColor(HDC dc);
int SetBkMode(HDC dc, int mode);
int GetBkMode(HDC dc);
COLORREF SetTextColor(HDC dc, COLORREF color);
COLORREF GetTextColor(HDC dc);
/// R2_COPYPEN, R2_XORPEN, R2_NOT or R2_NOP; 0 for any other.
int SetROP2(HDC dc, int mode);
int GetROP2(HDC dc);
/// Logical to device: device = logical - window origin + viewport origin. `previous` may be null.
BOOL SetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous);
BOOL GetViewportOrgEx(HDC dc, LPPOINT point);
BOOL SetWindowOrgEx(HDC dc, int x, int y, LPPOINT previous);
BOOL GetWindowOrgEx(HDC dc, LPPOINT point);
BOOL OffsetViewportOrgEx(HDC dc, int dx, int dy, LPPOINT previous);
/// The clip is one rectangle, given here in logical pixels; the answers are region kinds.
int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
/// Only a null region, which lifts the clip.
int SelectClipRgn(HDC dc, HRGN region);
int GetClipBox(HDC dc, LPRECT rect);
