#include "size_limits.h"
#include "surface_state.h"
#include "window_tree.h"

#include <algorithm>
#include <utility>

namespace win32 {

namespace {

platform::IPresenter* g_presenter = nullptr;

size_t PixelCount(const Window& window) {
    return static_cast<size_t>(window.Width()) * static_cast<size_t>(window.Height());
}

void CopyCommon(const DWORD* from, int fromWidth, int fromHeight, Window& to) {
    const int width = std::min(fromWidth, to.Width());
    const int height = std::min(fromHeight, to.Height());
    for (int y = 0; y < height; ++y) {
        std::copy_n(from + static_cast<ptrdiff_t>(y) * fromWidth, width,
                    to.pixels.get() + static_cast<ptrdiff_t>(y) * to.Width());
    }
}

} // namespace

bool SizeSurface(Window& window, int oldWidth, int oldHeight) {
    if (window.pixels && window.Width() == oldWidth && window.Height() == oldHeight) {
        return true;
    }
    platform::PixelArray sized;
    if (PixelCount(window) > LargestPixelCount) {
        return false;
    }
    if (PixelCount(window) > 0) {
        sized = platform::MakePixels(PixelCount(window));
        if (!sized) {
            return false;
        }
    }
    const platform::PixelArray before = std::exchange(window.pixels, std::move(sized));
    if (before && window.pixels) {
        CopyCommon(before.get(), oldWidth, oldHeight, window);
    }
    return true;
}

void PresentSurface(HWND top, const RECT& dirty) {
    if (g_presenter && !IsRectEmpty(&dirty) && g_windows.Find(top)) {
        g_presenter->Present(top, dirty);
    }
}

} // namespace win32

void platform::SetPresenter(IPresenter* presenter) { win32::g_presenter = presenter; }

bool platform::LockSurface(HWND top, Surface* out) {
    const win32::Window* window = win32::g_windows.Find(top);
    if (!window || !window->pixels || !out) {
        return false;
    }
    *out = {window->pixels.get(), window->Width(), window->Height(), window->Width()};
    return true;
}
