#pragma once

#include <windows.h>

namespace platform {

/// The pixels of a top-level window, 0x00RRGGBB each.
struct Surface {
    DWORD* pixels;
    int width;
    int height;
    int stride; ///< Pixels from one row to the next.
};

/// Is told that pixels of a top-level window have changed and are final for now.
struct IPresenter {
    /// `dirty` is in client pixels of `top` and never empty.
    virtual void Present(HWND top, const RECT& dirty) = 0;

  protected:
    ~IPresenter() = default;
};

/// The presenter is not owned; null, the start value, means none.
void SetPresenter(IPresenter* presenter);
/// The surface of a top-level window; it stays the window's and holds until that is resized or destroyed.
/// False, and `out` untouched, for any other handle and for a window without area.
bool LockSurface(HWND top, Surface* out);

} // namespace platform
