#include "dc.h"

#include "size_limits.h"

#include "platform/faults.h"

#include <algorithm>
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
        bitmap->pixels = platform::MakePixels(count);
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
            made->bitCount = 1;
        }
        return static_cast<HBITMAP>(EnterShared(std::move(made)));
    }();
    return bitmap;
}

namespace {

void ReadOneBitRow(const BYTE* from, Bitmap& to, int y) {
    for (int x = 0; x < to.width; ++x) {
        to.Row(y)[x] = from[x / 8] & (0x80 >> (x % 8)) ? WhitePixel : 0;
    }
}

void ReadThreeByteRow(const BYTE* from, Bitmap& to, int y) {
    for (int x = 0; x < to.width; ++x, from += 3) {
        to.Row(y)[x] = from[0] | static_cast<DWORD>(from[1]) << 8 | static_cast<DWORD>(from[2]) << 16;
    }
}

void ReadBits(const void* bits, Bitmap& to) {
    const BYTE* row = static_cast<const BYTE*>(bits);
    for (int y = 0; y < to.height; ++y, row += to.RowBytes()) {
        switch (to.bitCount) {
        case 1: ReadOneBitRow(row, to, y); break;
        case 24: ReadThreeByteRow(row, to, y); break;
        default: std::memcpy(to.Row(y), row, static_cast<size_t>(to.width) * sizeof(DWORD)); break;
        }
    }
}

// `to` is as long as the bitmap's rows are outside, and zero.
void WriteRow(const Bitmap& from, int y, BYTE* to) {
    const DWORD* row = from.Row(y);
    for (int x = 0; x < from.width; ++x) {
        if (!from.IsMonochrome()) {
            std::memcpy(to + x * from.bitCount / 8, &row[x], static_cast<size_t>(from.bitCount / 8));
        } else if (row[x] != 0) {
            to[x / 8] |= static_cast<BYTE>(0x80 >> (x % 8));
        }
    }
}

HBITMAP EnterBitmap(std::unique_ptr<Bitmap> bitmap) {
    return static_cast<HBITMAP>(EnterObject(std::move(bitmap)));
}

// Asked before the pixels are, so that a full machine is told alike for every kind of bitmap.
bool MayMakeBitmap() { return !platform::FaultTrips("bitmap") || FailWith(ERROR_NOT_ENOUGH_MEMORY); }

bool IsTrueColor(const BITMAPINFO* info, UINT usage) {
    return info && usage == DIB_RGB_COLORS && info->bmiHeader.biBitCount == 32 &&
           info->bmiHeader.biCompression == BI_RGB && info->bmiHeader.biHeight != INT32_MIN;
}

} // namespace

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
    if (bitmap && context->bitmap) {
        bitmap->bitCount = context->bitmap->bitCount;
    }
    return EnterBitmap(std::move(bitmap));
}

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits) {
    if (planes != 1 || (bitCount != 1 && bitCount != 24 && bitCount != 32)) {
        FailWith(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    auto bitmap = MayMakeBitmap() ? MakeBitmap(width, height, Rows::TopDown) : nullptr;
    if (bitmap) {
        bitmap->bitCount = static_cast<int>(bitCount);
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

LONG GetBitmapBits(HBITMAP handle, LONG size, LPVOID bits) {
    const Bitmap* bitmap = FindObject<Bitmap>(handle);
    if (!bitmap) {
        return FailWith(ERROR_INVALID_HANDLE);
    }
    const LONGLONG rowBytes = bitmap->RowBytes();
    const LONG whole = static_cast<LONG>(std::min<LONGLONG>(rowBytes * bitmap->height, INT32_MAX));
    if (!bits) {
        return whole;
    }
    const LONG copied = std::clamp(size, 0, whole);
    const std::unique_ptr<BYTE[]> row(new (std::nothrow) BYTE[static_cast<size_t>(rowBytes)]);
    if (!row) {
        return FailWith(ERROR_NOT_ENOUGH_MEMORY);
    }
    BYTE* to = static_cast<BYTE*>(bits);
    for (LONG done = 0, y = 0; done < copied; done += static_cast<LONG>(rowBytes), ++y) {
        std::fill_n(row.get(), rowBytes, BYTE{0});
        WriteRow(*bitmap, y, row.get());
        const LONGLONG part = std::min<LONGLONG>(rowBytes, copied - done);
        std::memcpy(to + done, row.get(), static_cast<size_t>(part));
    }
    return copied;
}
