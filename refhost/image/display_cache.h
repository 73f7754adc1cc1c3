// The view's pixels, ready to be painted.
#pragma once

#include <vector>

#include <windows.h>

#include "image/changed_area.h"
#include "image/page_composer.h"
#include "image/view_host.h"
#include "platform/pixels.h"

/// A 32-bit bitmap of the client's size, kept selected in a context of its own. Beside it stands the page's
/// picture without marks: only what changed on the page is composed anew, the rest is copied from there.
class CDisplayCache {
  public:
    CDisplayCache() = default;
    CDisplayCache(const CDisplayCache&) = delete;
    CDisplayCache& operator=(const CDisplayCache&) = delete;
    ~CDisplayCache();

    /// Makes the cache anew, its pixels undefined. False when it cannot be made; it then has no pixels. A
    /// size without area is one without pixels.
    bool Resize(int nWidth, int nHeight);
    void Compose(const CImgDoc* pDoc, const ViewMap& map, const RECT& rcPart);
    /// A new bitmap of the rectangle's pixels, owned by the caller; null when the rectangle, clipped, is
    /// empty or none can be made.
    HBITMAP CopyOut(const RECT& rect) const;
    /// Puts the bitmap's pixels in with its top-left at the point; what falls outside is left away.
    void CopyIn(const POINT& point, HBITMAP hBitmap);
    /// Blits the rectangle to the same place of another context.
    void Paint(HDC hDC, const RECT& rect) const;

    CSize Size() const { return CSize(m_target.width, m_target.height); }
    const PixelTarget& Pixels() const { return m_target; }

    CViewHost::RecomposedHook m_hook;
    std::vector<CImgNode*> m_hits; ///< working memory of hit tests

  private:
    /// What the picture without marks was composed from.
    struct Source {
        const CImgDoc* pDoc = nullptr;
        HBUF32 hBase = 0;
        std::uint32_t nLocks = 0;
        double dZoom = 0.0;
        POINT ptScroll{0, 0};

        bool operator==(const Source& other) const;
    };

    void Release();
    void GatherChanges(const CImgDoc* pDoc, const ViewMap& map);
    void ComposeChanged(const CImgDoc* pDoc, const ViewMap& map, const RECT& rcPart);
    RECT All() const { return {0, 0, m_target.width, m_target.height}; }

    PixelTarget m_target;
    HDC m_hDC = nullptr;
    HDC m_hSourceDC = nullptr; ///< holds a bitmap while it is copied in
    HBITMAP m_hBitmap = nullptr;
    HGDIOBJ m_hFormer = nullptr; ///< what stood in the context before the bitmap
    CPageComposer m_composer;
    platform::PixelArray m_pagePixels;
    PixelTarget m_page;
    Source m_source;
    CChangedArea m_stale; ///< client pixels where the picture without marks is out of date
};
