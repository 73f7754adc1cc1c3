#include "image/display_cache.h"

#include <cstring>

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

} // namespace

CDisplayCache::~CDisplayCache() { Release(); }

void CDisplayCache::Release() {
    if (m_hDC != nullptr && m_hFormer != nullptr)
        SelectObject(m_hDC, m_hFormer);
    if (m_hBitmap != nullptr)
        DeleteObject(m_hBitmap);
    if (m_hDC != nullptr)
        DeleteDC(m_hDC);
    if (m_hSourceDC != nullptr)
        DeleteDC(m_hSourceDC);
    m_target = {};
    m_hDC = m_hSourceDC = nullptr;
    m_hBitmap = nullptr;
    m_hFormer = nullptr;
}

bool CDisplayCache::Resize(int nWidth, int nHeight) {
    Release();
    if (nWidth <= 0 || nHeight <= 0)
        return true;
    std::uint32_t* pPixels = nullptr;
    m_hDC = CreateCompatibleDC(nullptr);
    m_hSourceDC = CreateCompatibleDC(nullptr);
    m_hBitmap = MakeBitmap(nWidth, nHeight, &pPixels);
    if (m_hDC == nullptr || m_hSourceDC == nullptr || m_hBitmap == nullptr) {
        Release();
        return false;
    }
    m_hFormer = SelectObject(m_hDC, m_hBitmap);
    m_target = {pPixels, nWidth, nHeight, nWidth};
    return true;
}

void CDisplayCache::Compose(const CImgDoc* pDoc, const ViewMap& map, const RECT& rcPart) {
    m_composer.Compose(pDoc, map, m_target, rcPart);
}

HBITMAP CDisplayCache::CopyOut(const RECT& rect) const {
    const RECT rcAll{0, 0, m_target.width, m_target.height};
    RECT rcCopied;
    if (IntersectRect(&rcCopied, &rect, &rcAll) == FALSE)
        return nullptr;
    const int nWidth = rcCopied.right - rcCopied.left;
    std::uint32_t* pOut = nullptr;
    HBITMAP hBitmap = MakeBitmap(nWidth, rcCopied.bottom - rcCopied.top, &pOut);
    if (hBitmap == nullptr)
        return nullptr;
    for (int y = rcCopied.top; y < rcCopied.bottom; ++y, pOut += nWidth)
        std::memcpy(pOut, m_target.Row(y) + rcCopied.left, static_cast<std::size_t>(nWidth) * sizeof *pOut);
    return hBitmap;
}

void CDisplayCache::CopyIn(const POINT& point, HBITMAP hBitmap) {
    BITMAP bitmap;
    if (m_hDC == nullptr || GetObjectA(hBitmap, sizeof bitmap, &bitmap) == 0)
        return;
    const HGDIOBJ hFormer = SelectObject(m_hSourceDC, hBitmap);
    if (hFormer == nullptr)
        return;
    BitBlt(m_hDC, point.x, point.y, bitmap.bmWidth, bitmap.bmHeight, m_hSourceDC, 0, 0, SRCCOPY);
    SelectObject(m_hSourceDC, hFormer);
}

void CDisplayCache::Paint(HDC hDC, const RECT& rect) const {
    if (m_hDC != nullptr && IsRectEmpty(&rect) == FALSE)
        BitBlt(hDC, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, m_hDC, rect.left,
               rect.top, SRCCOPY);
}
