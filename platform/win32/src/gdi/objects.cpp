#include "objects.h"

#include "text/fonts.h"

#include <algorithm>
#include <array>
#include <new>

namespace win32 {

constinit CHandleTable<GdiObject, HandleKind::GdiObject> g_objects;

namespace {

unsigned g_sharedObjects = 0;

} // namespace

HGDIOBJ EnterObject(std::unique_ptr<GdiObject> object) {
    GdiObject* entered = object.get();
    const HGDIOBJ handle = reinterpret_cast<HGDIOBJ>(g_objects.Add(std::move(object)));
    if (!handle) {
        FailWith(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    entered->handle = handle;
    return handle;
}

HGDIOBJ EnterShared(std::unique_ptr<GdiObject> object) {
    const HGDIOBJ handle = EnterObject(std::move(object));
    if (handle) {
        g_objects.Find(handle)->shared = true;
        ++g_sharedObjects;
    }
    return handle;
}

unsigned SharedObjects() { return g_sharedObjects; }

namespace {

std::unique_ptr<Pen> MakePen(int style, int width, COLORREF color) {
    std::unique_ptr<Pen> pen(new (std::nothrow) Pen);
    if (pen) {
        pen->width = std::clamp(width, 1, 32767);
        // A pattern is for thin lines only.
        pen->style = style == PS_DOT && pen->width > 1 ? PS_SOLID : style;
        pen->color = color;
    }
    return pen;
}

std::unique_ptr<Brush> MakeBrush(COLORREF color, bool hollow) {
    std::unique_ptr<Brush> brush(new (std::nothrow) Brush);
    if (brush) {
        brush->color = color;
        brush->hollow = hollow;
    }
    return brush;
}

} // namespace

using Stock = std::array<HGDIOBJ, DEFAULT_GUI_FONT + 1>;

namespace {

Stock MakeStock() {
    Stock stock{};
    stock[WHITE_BRUSH] = EnterShared(MakeBrush(RGB(255, 255, 255), false));
    stock[LTGRAY_BRUSH] = EnterShared(MakeBrush(RGB(192, 192, 192), false));
    stock[GRAY_BRUSH] = EnterShared(MakeBrush(RGB(128, 128, 128), false));
    stock[DKGRAY_BRUSH] = EnterShared(MakeBrush(RGB(64, 64, 64), false));
    stock[BLACK_BRUSH] = EnterShared(MakeBrush(RGB(0, 0, 0), false));
    stock[NULL_BRUSH] = EnterShared(MakeBrush(RGB(0, 0, 0), true));
    stock[WHITE_PEN] = EnterShared(MakePen(PS_SOLID, 1, RGB(255, 255, 255)));
    stock[BLACK_PEN] = EnterShared(MakePen(PS_SOLID, 1, RGB(0, 0, 0)));
    stock[NULL_PEN] = EnterShared(MakePen(PS_NULL, 1, RGB(0, 0, 0)));
    stock[SYSTEM_FONT] = EnterShared(MakeStockFont());
    stock[DEFAULT_GUI_FONT] = EnterShared(MakeStockFont());
    return stock;
}

} // namespace

struct SystemColor {
    int index;
    COLORREF color;
};

constexpr std::array<SystemColor, 6> SystemColors = {{
    {COLOR_WINDOW, RGB(255, 255, 255)},
    {COLOR_WINDOWFRAME, RGB(0, 0, 0)},
    {COLOR_WINDOWTEXT, RGB(0, 0, 0)},
    {COLOR_HIGHLIGHT, RGB(0, 0, 128)},
    {COLOR_HIGHLIGHTTEXT, RGB(255, 255, 255)},
    {COLOR_BTNFACE, RGB(192, 192, 192)},
}};

namespace {

const SystemColor* FindSystemColor(int index) {
    const auto found = std::find_if(SystemColors.begin(), SystemColors.end(),
                                    [index](const SystemColor& c) { return c.index == index; });
    return found == SystemColors.end() ? nullptr : &*found;
}

} // namespace

// System colours are few; anything above their numbers is a handle.
constexpr UINT_PTR LastSystemBrush = 31;

const Brush* FindBrush(HBRUSH handle) {
    const UINT_PTR value = reinterpret_cast<UINT_PTR>(handle);
    return FindObject<Brush>(value <= LastSystemBrush ? GetSysColorBrush(static_cast<int>(value) - 1)
                                                      : handle);
}

namespace {

int CopyOut(const void* record, int recordSize, int size, void* out) {
    if (!out) {
        return recordSize;
    }
    const int copied = std::clamp(size, 0, recordSize);
    std::memcpy(out, record, static_cast<size_t>(copied));
    return copied;
}

BITMAP Describe(const Bitmap& bitmap) {
    BITMAP record = {};
    record.bmWidth = bitmap.width;
    record.bmHeight = bitmap.height;
    record.bmWidthBytes = bitmap.RowBytes();
    record.bmPlanes = 1;
    record.bmBitsPixel = static_cast<WORD>(bitmap.bitCount);
    record.bmBits = bitmap.section ? bitmap.pixels.get() : nullptr;
    return record;
}

} // namespace

} // namespace win32

using namespace win32;

HPEN CreatePen(int style, int width, COLORREF color) {
    if (style != PS_SOLID && style != PS_DOT && style != PS_NULL) {
        FailWith(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return static_cast<HPEN>(EnterObject(MakePen(style, width, color)));
}

HBRUSH CreateSolidBrush(COLORREF color) { return static_cast<HBRUSH>(EnterObject(MakeBrush(color, false))); }

HGDIOBJ GetStockObject(int index) {
    static const Stock stock = MakeStock();
    return index >= 0 && index <= DEFAULT_GUI_FONT ? stock[static_cast<size_t>(index)] : nullptr;
}

COLORREF GetSysColor(int index) {
    const SystemColor* found = FindSystemColor(index);
    return found ? found->color : 0;
}

HBRUSH GetSysColorBrush(int index) {
    static std::array<HBRUSH, SystemColors.size()> brushes{};
    const SystemColor* found = FindSystemColor(index);
    if (!found) {
        return nullptr;
    }
    HBRUSH& brush = brushes[static_cast<size_t>(found - SystemColors.data())];
    if (!brush) {
        brush = static_cast<HBRUSH>(EnterShared(MakeBrush(found->color, false)));
    }
    return brush;
}

BOOL DeleteObject(HGDIOBJ handle) {
    const GdiObject* object = g_objects.Find(handle);
    if (!object) {
        return FailWith(ERROR_INVALID_HANDLE);
    }
    if (object->shared) {
        return TRUE;
    }
    if (object->selected > 0) {
        return FALSE;
    }
    g_objects.Remove(handle);
    return TRUE;
}

int GetObjectA(HGDIOBJ handle, int size, LPVOID out) {
    if (const Bitmap* bitmap = FindObject<Bitmap>(handle)) {
        const BITMAP record = Describe(*bitmap);
        return CopyOut(&record, sizeof record, size, out);
    }
    if (const Pen* pen = FindObject<Pen>(handle)) {
        const LOGPEN record = {static_cast<UINT>(pen->style), {pen->width, 0}, pen->color};
        return CopyOut(&record, sizeof record, size, out);
    }
    if (const Brush* brush = FindObject<Brush>(handle)) {
        const LOGBRUSH record = {brush->hollow ? BS_NULL : BS_SOLID, brush->color, 0};
        return CopyOut(&record, sizeof record, size, out);
    }
    if (const Font* font = FindObject<Font>(handle)) {
        return CopyOut(&font->description, sizeof font->description, size, out);
    }
    return FailWith(ERROR_INVALID_HANDLE);
}
