// What the host does to its view: size, zoom, scroll, recomposition.
#pragma once

#include <functional>

#include "host/vor_view.h"

/// The host's hand on a view. Nothing of it is recorded in the trace.
struct CViewHost {
    /// Called after the whole cache was composed afresh, so that the current tool can show its marks again.
    using RecomposedHook = std::function<void(CVorView&)>;
    static void SetRecomposedHook(CVorView& view, RecomposedHook hook);

    /// Resizes the window, if there is one, and the display cache (client pixels). False when no cache of
    /// that size can be made; the view then shows nothing until the next change.
    static bool SetClientSize(CVorView& view, int nWidth, int nHeight);
    /// View pixels per document unit; false, and no change, unless above 0 and finite.
    static bool SetZoom(CVorView& view, double dZoom);
    /// The document point at the client's top-left.
    static void SetScroll(CVorView& view, const CPoint& ptDoc);
    /// Size, zoom and scroll at once, with one recomposition.
    static bool SetAll(CVorView& view, int nWidth, int nHeight, double dZoom, const CPoint& ptDoc);
    /// Makes the cache of that size unless it is; recomposes when it was made. False as above.
    static bool FitCache(CVorView& view, int nWidth, int nHeight);
    /// Composes everything, invalidates the window, and calls the hook.
    static void RecomposeAll(CVorView& view);
    static CSize ClientSize(const CVorView& view);
    /// The cache's own pixel, 0x00RRGGBB; false outside.
    static bool CachePixel(const CVorView& view, int x, int y, DWORD& pixel);
};
