#pragma once

// Device contexts.

#include "objects.h"

#include <vector>

namespace win32 {

enum class DcKind { Memory, Window, Screen };

struct Font;

/// What SaveDC keeps.
struct DcState {
    Pen* pen = nullptr;
    Brush* brush = nullptr;
    Font* font = nullptr;
    Bitmap* bitmap = nullptr; // A memory context's alone.

    COLORREF bkColor = RGB(255, 255, 255);
    COLORREF textColor = RGB(0, 0, 0);
    int bkMode = OPAQUE;
    int rop = R2_COPYPEN;
    UINT textAlign = TA_LEFT | TA_TOP;
    POINT windowOrg{};
    POINT viewportOrg{};
    POINT position{};      // Logical.
    unsigned dotPhase = 0; // Pixels into the dotted pen's pattern.

    bool clipped = false; // Limited to `clip` (device pixels), the caller's own.
    RECT clip{};
};

struct DeviceContext : DcState {
    HDC handle = nullptr;
    DcKind kind = DcKind::Memory;
    bool created = false; // By CreateCompatibleDC, CreateDCA or CreateICA: for DeleteDC to delete.
    HWND window = nullptr;

    bool painting = false; // Limited to `paintArea` (device pixels), the update area of BeginPaint.
    RECT paintArea{};
    std::vector<DcState> saved; // What is selected in a kept state counts as selected.

    RECT dirty{}; // What was drawn, in the top-level window's client pixels.
};

extern CHandleTable<DeviceContext, HandleKind::DeviceContext> g_contexts;

/// Null, and error 6, when there is no such context.
DeviceContext* FindDc(HDC dc);
/// A context on a window (null: the screen), limited to `paintArea` where one is given. Null on failure.
HDC OpenWindowDc(HWND window, const RECT* paintArea);
/// Counts the objects of a state as selected, or no longer.
void HoldObjects(const DcState& state);
void ReleaseObjects(const DcState& state);
/// Presents what was drawn and drops the context. FALSE when it is none of OpenWindowDc's.
BOOL CloseDc(HDC dc);

POINT ToDevice(const DeviceContext& context, int x, int y);

} // namespace win32
