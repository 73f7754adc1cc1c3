#include "dc.h"

#include "size_limits.h"

#include "platform/faults.h"

#include <new>

namespace win32 {

constexpr DWORD WhitePixel = 0x00FFFFFF;

std::unique_ptr<Bitmap> MakeBitmap(int width, int height, Rows rows) {
    if (width <= 0 || height <= 0 || width > LargestSize || height > LargestSize) {
        return nullptr;
    }
    const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
    std::unique_ptr<Bitmap> bitmap(count <= LargestPixelCount ? new (std::nothrow) Bitmap : nullptr);
    if (bitmap) {
        bitmap->pixels.reset(new (std::nothrow) DWORD[count]());
    }
    if (!bitmap || !bitmap->pixels) {
        return nullptr;
    }
    bitmap->width = width;
    bitmap->height = height;
    bitmap->stride = rows == Rows::TopDown ? width : -static_cast<ptrdiff_t>(width);
    bitmap->firstRow =
        bitmap->pixels.get() + (rows == Rows::TopDown ? 0 : count - static_cast<size_t>(width));
    return bitmap;
}

HBITMAP DefaultBitmap() {
    static const HBITMAP bitmap = [] {
        auto made = MakeBitmap(1, 1, Rows::TopDown);
        if (made) {
            made->monochrome = true;
        }
        return static_cast<HBITMAP>(EnterShared(std::move(made)));
    }();
    return bitmap;
}

static void ReadOneBitRow(const BYTE* from, Bitmap& to, int y) {
    for (int x = 0; x < to.width; ++x) {
        to.Row(y)[x] = from[x / 8] & (0x80 >> (x % 8)) ? WhitePixel : 0;
    }
}

static void ReadBits(const void* bits, Bitmap& to) {
    const ptrdiff_t rowBytes = to.monochrome ? (to.width + 15) / 16 * 2 : to.width * 4;
    for (int y = 0; y < to.height; ++y) {
        const BYTE* row = static_cast<const BYTE*>(bits) + y * rowBytes;
        if (to.monochrome) {
            ReadOneBitRow(row, to, y);
        } else {
            std::memcpy(to.Row(y), row, static_cast<size_t>(rowBytes));
        }
    }
}

static HBITMAP EnterBitmap(std::unique_ptr<Bitmap> bitmap) {
    return static_cast<HBITMAP>(EnterObject(std::move(bitmap)));
}

// Asked before the pixels are, so that a full machine is told alike for every kind of bitmap.
static bool MayMakeBitmap() { return !platform::FaultTrips("bitmap") || FailWith(ERROR_NOT_ENOUGH_MEMORY); }

static bool IsTrueColor(const BITMAPINFO* info, UINT usage) {
    return info && usage == DIB_RGB_COLORS && info->bmiHeader.biBitCount == 32 &&
           info->bmiHeader.biCompression == BI_RGB && info->bmiHeader.biHeight != INT32_MIN;
}

} // namespace win32

using namespace win32;

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
    const DeviceContext* context = FindDc(dc);
    if (!context || !MayMakeBitmap()) {
        return nullptr;
    }
    if (width == 0 || height == 0) {
        return DefaultBitmap();
    }
    auto bitmap = MakeBitmap(width, height, Rows::TopDown);
    if (bitmap) {
        bitmap->monochrome = context->bitmap && context->bitmap->monochrome;
    }
    return EnterBitmap(std::move(bitmap));
}

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits) {
    if (planes != 1 || (bitCount != 1 && bitCount != 32)) {
        FailWith(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    auto bitmap = MayMakeBitmap() ? MakeBitmap(width, height, Rows::TopDown) : nullptr;
    if (bitmap) {
        bitmap->monochrome = bitCount == 1;
        if (bits) {
            ReadBits(bits, *bitmap);
        }
    }
    return EnterBitmap(std::move(bitmap));
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* info, UINT usage, void** bits, HANDLE, DWORD) {
    if (!IsTrueColor(info, usage)) {
        FailWith(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const LONG height = info->bmiHeader.biHeight;
    const Rows rows = height < 0 ? Rows::TopDown : Rows::BottomUp;
    auto bitmap = MayMakeBitmap() ? MakeBitmap(info->bmiHeader.biWidth, std::abs(height), rows) : nullptr;
    void* pixels = bitmap ? bitmap->pixels.get() : nullptr;
    if (bitmap) {
        bitmap->section = true;
    }
    const HBITMAP handle = EnterBitmap(std::move(bitmap));
    if (bits) {
        *bits = handle ? pixels : nullptr;
    }
    return handle;
}
