#include "canvas.h"

#include "surface_state.h"
#include "text/fonts.h"
#include "window_tree.h"
#include "wrap.h"

#include "platform/faults.h"

#include <algorithm>
#include <initializer_list>
#include <new>

namespace win32 {

constinit CHandleTable<DeviceContext, HandleKind::DeviceContext> g_contexts;

DeviceContext* FindDc(HDC dc) {
    DeviceContext* context = g_contexts.Find(dc);
    if (!context) {
        FailWith(ERROR_INVALID_HANDLE);
    }
    return context;
}

// Puts an object into its place in a context and answers the handle of the one before.
template <typename T>
HGDIOBJ Swap(T*& place, T* object) {
    const HGDIOBJ before = place ? place->handle : nullptr;
    if (object) {
        ++object->selected;
    }
    if (place) {
        --place->selected;
    }
    place = object;
    return before;
}

// Calls `count` with the number of contexts of each object in the state.
template <typename Count>
void ForEachSelected(const DcState& state, Count count) {
    for (GdiObject* object :
         std::initializer_list<GdiObject*>{state.pen, state.brush, state.font, state.bitmap}) {
        if (object) {
            count(object->selected);
        }
    }
}

void HoldObjects(const DcState& state) {
    ForEachSelected(state, [](unsigned& selected) { ++selected; });
}

void ReleaseObjects(const DcState& state) {
    ForEachSelected(state, [](unsigned& selected) { --selected; });
}

namespace {

HDC EnterContext(DcKind kind, HWND window) {
    std::unique_ptr<DeviceContext> context(new (std::nothrow) DeviceContext);
    DeviceContext* entered = context.get();
    const HDC dc = reinterpret_cast<HDC>(g_contexts.Add(std::move(context)));
    if (!dc) {
        FailWith(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    entered->handle = dc;
    entered->kind = kind;
    entered->window = window;
    Swap(entered->pen, FindObject<Pen>(GetStockObject(BLACK_PEN)));
    Swap(entered->brush, FindObject<Brush>(GetStockObject(WHITE_BRUSH)));
    Swap(entered->font, FindObject<Font>(GetStockObject(SYSTEM_FONT)));
    return dc;
}

HDC EnterDisplayContext() {
    const HDC dc = EnterContext(DcKind::Screen, nullptr);
    if (dc) {
        g_contexts.Find(dc)->created = true;
    }
    return dc;
}

void DropContext(DeviceContext& context) {
    ReleaseObjects(context);
    std::for_each(context.saved.begin(), context.saved.end(), ReleaseObjects);
    g_contexts.Remove(context.handle);
}

bool MayOpen(const char* fault) { return !platform::FaultTrips(fault) || FailWith(ERROR_NOT_ENOUGH_MEMORY); }

} // namespace

HDC OpenWindowDc(HWND window, const RECT* paintArea) {
    if (!MayOpen("display-context")) {
        return nullptr;
    }
    const HDC dc = EnterContext(window ? DcKind::Window : DcKind::Screen, window);
    if (dc && paintArea) {
        DeviceContext& context = *g_contexts.Find(dc);
        context.painting = true;
        context.paintArea = *paintArea;
    }
    return dc;
}

BOOL CloseDc(HDC dc) {
    DeviceContext* context = FindDc(dc);
    if (!context || context->created) {
        return FALSE;
    }
    const RECT dirty = context->dirty;
    Window* window = g_windows.Find(context->window);
    const HWND top = window ? TopLevelOf(*window).handle : nullptr;
    DropContext(*context);
    // Last, for the presenter may draw itself.
    PresentSurface(top, dirty);
    return TRUE;
}

namespace {

bool CanTake(const DeviceContext& context, const Bitmap& bitmap) {
    return context.kind == DcKind::Memory &&
           (bitmap.selected == 0 || bitmap.shared || context.bitmap == &bitmap);
}

} // namespace

} // namespace win32

using namespace win32;

HDC CreateDCA(LPCSTR, LPCSTR, LPCSTR, const DEVMODEA*) {
    return MayOpen("device-context") ? EnterDisplayContext() : nullptr;
}

HDC CreateICA(LPCSTR, LPCSTR, LPCSTR, const DEVMODEA*) {
    return MayOpen("display-context") ? EnterDisplayContext() : nullptr;
}

HDC CreateCompatibleDC(HDC like) {
    if ((like && !FindDc(like)) || !MayOpen("device-context")) {
        return nullptr;
    }
    const HDC dc = EnterContext(DcKind::Memory, nullptr);
    if (dc) {
        DeviceContext& context = *g_contexts.Find(dc);
        context.created = true;
        Swap(context.bitmap, FindObject<Bitmap>(DefaultBitmap()));
    }
    return dc;
}

BOOL DeleteDC(HDC dc) {
    DeviceContext* context = FindDc(dc);
    if (!context || !context->created) {
        return FALSE;
    }
    DropContext(*context);
    return TRUE;
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ handle) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return nullptr;
    }
    if (Font* font = FindObject<Font>(handle)) {
        return Swap(context->font, font);
    }
    if (Pen* pen = FindObject<Pen>(handle)) {
        return Swap(context->pen, pen);
    }
    if (Brush* brush = FindObject<Brush>(handle)) {
        return Swap(context->brush, brush);
    }
    Bitmap* bitmap = FindObject<Bitmap>(handle);
    if (!bitmap || !CanTake(*context, *bitmap)) {
        FailWith(bitmap ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE);
        return nullptr;
    }
    return Swap(context->bitmap, bitmap);
}

int IntersectClipRect(HDC dc, int left, int top, int right, int bottom) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return ERROR_REGION;
    }
    const RECT device = ToDeviceRect(*context, left, top, right, bottom);
    if (context->clipped) {
        IntersectRect(&context->clip, &context->clip, &device);
    } else {
        context->clip = device;
    }
    context->clipped = true;
    return IsRectEmpty(&context->clip) ? NULLREGION : SIMPLEREGION;
}

int SelectClipRgn(HDC dc, HRGN region) {
    DeviceContext* context = FindDc(dc);
    if (!context || region) {
        return ERROR_REGION;
    }
    context->clipped = false;
    return SIMPLEREGION;
}

int GetClipBox(HDC dc, LPRECT rect) {
    const DeviceContext* context = FindDc(dc);
    if (!context || !rect) {
        return ERROR_REGION;
    }
    Canvas canvas;
    if (!OpenCanvas(*context, &canvas)) {
        SetRectEmpty(rect);
        return NULLREGION;
    }
    const POINT origin = ToDevice(*context, 0, 0);
    *rect = canvas.clip;
    OffsetRect(rect, WrapDifference(0, origin.x), WrapDifference(0, origin.y));
    return SIMPLEREGION;
}
