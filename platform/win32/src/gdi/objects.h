#pragma once

// Pens, brushes, bitmaps and fonts.

#include "handles.h"

#include "platform/pixels.h"

namespace win32 {

enum class GdiType { Pen, Brush, Bitmap, Font };

struct GdiObject {
    explicit GdiObject(GdiType kind) : type(kind) {}
    virtual ~GdiObject() = default;

    HGDIOBJ handle = nullptr;
    const GdiType type;
    bool shared = false;   // A stock object or system brush: never deleted, nor counted.
    unsigned selected = 0; // In so many contexts.
};

struct Pen : GdiObject {
    static constexpr GdiType Type = GdiType::Pen;
    Pen() : GdiObject(Type) {}

    int style = PS_SOLID;
    int width = 1;
    COLORREF color = 0;
};

struct Brush : GdiObject {
    static constexpr GdiType Type = GdiType::Brush;
    Brush() : GdiObject(Type) {}

    bool hollow = false;
    COLORREF color = 0;
};

/// One DWORD a pixel whatever the depth; a pixel of a one-bit bitmap is black or white.
struct Bitmap : GdiObject {
    static constexpr GdiType Type = GdiType::Bitmap;
    Bitmap() : GdiObject(Type) {}

    DWORD* Row(int y) const { return firstRow + y * stride; }
    bool IsMonochrome() const { return bitCount == 1; }
    /// Of one row as it is known outside.
    int RowBytes() const { return (width * bitCount + 15) / 16 * 2; }

    int width = 0;
    int height = 0;
    ptrdiff_t stride = 0; // Negative where the first row in memory is the lowest.
    DWORD* firstRow = nullptr;
    int bitCount = 32;    // 1, 24 or 32, as it is known outside.
    bool section = false; // Its pixels are known outside.
    platform::PixelArray pixels;
};

extern CHandleTable<GdiObject, HandleKind::GdiObject> g_objects;

/// Null when the handle names no object of this type.
template <typename T>
T* FindObject(HGDIOBJ handle) {
    GdiObject* object = g_objects.Find(handle);
    return object && object->type == T::Type ? static_cast<T*>(object) : nullptr;
}

/// Enters the object in the table. Null, and error 8, when `object` is null or the table full.
HGDIOBJ EnterObject(std::unique_ptr<GdiObject> object);
/// Enters an object that all share; DeleteObject leaves it alone.
HGDIOBJ EnterShared(std::unique_ptr<GdiObject> object);
unsigned SharedObjects();
/// The 1 by 1 bitmap of a new memory context.
HBITMAP DefaultBitmap();
/// The brush of a handle or of a (HBRUSH)(COLOR_x + 1); null when it is neither.
const Brush* FindBrush(HBRUSH handle);

enum class Rows { TopDown, BottomUp };
/// Null when a side is not positive or over 32767, or memory is short. All pixels are 0.
std::unique_ptr<Bitmap> MakeBitmap(int width, int height, Rows rows);

} // namespace win32
