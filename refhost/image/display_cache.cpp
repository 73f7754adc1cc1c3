#include "image/display_cache.h"

#include <cstring>

#include "buffer/buffer_host.h"
#include "image/node_host.h"

namespace {

/// A bitmap with its first row at the top; `*ppPixels` are its pixels. Null when none can be made.
HBITMAP MakeBitmap(int nWidth, int nHeight, std::uint32_t** ppPixels) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = nWidth;
    info.bmiHeader.biHeight = -nHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* pBits = nullptr;
    HBITMAP hBitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
    *ppPixels = static_cast<std::uint32_t*>(pBits);
    return hBitmap;
}

double PixelsOf(const RECT& rect) {
    return (static_cast<double>(rect.right) - rect.left) * (static_cast<double>(rect.bottom) - rect.top);
}

} // namespace

CDisplayCache::~CDisplayCache() { Release(); }

void CDisplayCache::Release() {
    if (m_hDC && m_hFormer) {
        SelectObject(m_hDC, m_hFormer);
    }
    if (m_hBitmap) {
        DeleteObject(m_hBitmap);
    }
    if (m_hDC) {
        DeleteDC(m_hDC);
    }
    if (m_hSourceDC) {
        DeleteDC(m_hSourceDC);
    }
    m_target = {};
    m_page = {};
    m_pagePixels.reset();
    m_source = {};
    m_stale.Clear();
    m_hDC = m_hSourceDC = nullptr;
    m_hBitmap = nullptr;
    m_hFormer = nullptr;
}

bool CDisplayCache::Resize(int nWidth, int nHeight) {
    Release();
    if (nWidth <= 0 || nHeight <= 0) {
        return true;
    }
    std::uint32_t* pPixels = nullptr;
    m_hDC = CreateCompatibleDC(nullptr);
    m_hSourceDC = CreateCompatibleDC(nullptr);
    m_hBitmap = MakeBitmap(nWidth, nHeight, &pPixels);
    m_pagePixels = platform::MakePixels(static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight));
    if (!m_hDC || !m_hSourceDC || !m_hBitmap || !m_pagePixels) {
        Release();
        return false;
    }
    m_hFormer = SelectObject(m_hDC, m_hBitmap);
    m_target = {pPixels, nWidth, nHeight, nWidth};
    m_page = {m_pagePixels.get(), nWidth, nHeight, nWidth};
    m_stale.Add(All());
    return true;
}

bool CDisplayCache::Source::operator==(const Source& other) const {
    return pDoc == other.pDoc && hBase == other.hBase && nLocks == other.nLocks && dZoom == other.dZoom &&
           ptScroll.x == other.ptScroll.x && ptScroll.y == other.ptScroll.y;
}

void CDisplayCache::Compose(const CImgDoc* pDoc, const ViewMap& map, const RECT& rcPart) {
    const RECT rcAll = All();
    RECT rcCopied;
    if (IntersectRect(&rcCopied, &rcPart, &rcAll) == FALSE) {
        return;
    }
    GatherChanges(pDoc, map);
    ComposeChanged(pDoc, map, rcCopied);
    const std::size_t nBytes =
        static_cast<std::size_t>(rcCopied.right - rcCopied.left) * sizeof(std::uint32_t);
    for (int y = rcCopied.top; y < rcCopied.bottom; ++y) {
        std::memcpy(m_target.Row(y) + rcCopied.left, m_page.Row(y) + rcCopied.left, nBytes);
    }
}

void CDisplayCache::GatherChanges(const CImgDoc* pDoc, const ViewMap& map) {
    const Source source{pDoc, pDoc ? pDoc->GetBaseImage() : 0, buffer_host::LockCount(), map.dZoom,
                        map.ptScroll};
    if (!(source == m_source)) {
        m_source = source;
        m_stale.Clear();
        m_stale.Add(All());
    }
    if (!pDoc) {
        return;
    }
    CChangedArea& changed = CNodeBookkeeping::Changed(*pDoc);
    const RECT rcAll = All();
    for (const RECT& rect : changed.Rects()) {
        const RECT rcClient = map.RectToClient(rect);
        const RECT rcNear{-1, -1, rcAll.right + 1, rcAll.bottom + 1};
        RECT rcStale;
        if (IntersectRect(&rcStale, &rcClient, &rcNear) == FALSE) {
            continue;
        }
        InflateRect(&rcStale, 1, 1); // a scaled edge may round into the next pixel
        if (IntersectRect(&rcStale, &rcStale, &rcAll) != FALSE) {
            m_stale.Add(rcStale);
        }
    }
    changed.Clear();
}

// Stale rectangles may overlap. Where composing each would touch more pixels than their common bounds hold,
// those are composed once.
void CDisplayCache::ComposeChanged(const CImgDoc* pDoc, const ViewMap& map, const RECT& rcPart) {
    RECT rcBounds{0, 0, 0, 0};
    double dPixels = 0;
    for (const RECT& stale : m_stale.Rects()) {
        RECT rcComposed;
        if (IntersectRect(&rcComposed, &stale, &rcPart) != FALSE) {
            dPixels += PixelsOf(rcComposed);
        }
        UnionRect(&rcBounds, &rcBounds, &rcComposed);
    }
    if (dPixels >= PixelsOf(rcBounds)) {
        m_composer.Compose(pDoc, map, m_page, rcBounds);
    } else {
        for (const RECT& stale : m_stale.Rects()) {
            RECT rcComposed;
            if (IntersectRect(&rcComposed, &stale, &rcPart) != FALSE) {
                m_composer.Compose(pDoc, map, m_page, rcComposed);
            }
        }
    }
    m_stale.RemoveWithin(rcPart);
}

HBITMAP CDisplayCache::CopyOut(const RECT& rect) const {
    const RECT rcAll{0, 0, m_target.width, m_target.height};
    RECT rcCopied;
    if (IntersectRect(&rcCopied, &rect, &rcAll) == FALSE) {
        return nullptr;
    }
    const int nWidth = rcCopied.right - rcCopied.left;
    std::uint32_t* pOut = nullptr;
    HBITMAP hBitmap = MakeBitmap(nWidth, rcCopied.bottom - rcCopied.top, &pOut);
    if (!hBitmap) {
        return nullptr;
    }
    for (int y = rcCopied.top; y < rcCopied.bottom; ++y, pOut += nWidth) {
        std::memcpy(pOut, m_target.Row(y) + rcCopied.left, static_cast<std::size_t>(nWidth) * sizeof *pOut);
    }
    return hBitmap;
}

void CDisplayCache::CopyIn(const POINT& point, HBITMAP hBitmap) {
    BITMAP bitmap;
    if (!m_hDC || GetObjectA(hBitmap, sizeof bitmap, &bitmap) == 0) {
        return;
    }
    const HGDIOBJ hFormer = SelectObject(m_hSourceDC, hBitmap);
    if (!hFormer) {
        return;
    }
    BitBlt(m_hDC, point.x, point.y, bitmap.bmWidth, bitmap.bmHeight, m_hSourceDC, 0, 0, SRCCOPY);
    SelectObject(m_hSourceDC, hFormer);
}

void CDisplayCache::Paint(HDC hDC, const RECT& rect) const {
    if (m_hDC && IsRectEmpty(&rect) == FALSE) {
        BitBlt(hDC, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, m_hDC, rect.left,
               rect.top, SRCCOPY);
    }
}
