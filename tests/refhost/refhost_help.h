// What the tests of the host's libraries share: small pictures and pages, spoken of in a user's words.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "buffer/buffer_host.h"
#include "host/img_doc.h"
#include "image/node_host.h"
#include "image/page_composer.h"
#include "platform/faults.h"

namespace refhost_help {

/// Disarms every fault at its end.
class CFaultScope {
  public:
    explicit CFaultScope(const char* pszName, bool bOnce = false, unsigned nAfter = 0) {
        platform::ArmFault(pszName, bOnce, nAfter);
    }
    ~CFaultScope() { platform::ClearFaults(); }
    CFaultScope(const CFaultScope&) = delete;
    CFaultScope& operator=(const CFaultScope&) = delete;
};

/// A 24-bit buffer of pixels given as 0xRRGGBB, row by row.
inline HBUF32 Image(int nWidth, int nHeight, std::initializer_list<std::uint32_t> pixels) {
    HBUF32 hBuf = 0;
    buf32Alloc(&hBuf, 24, nWidth, nHeight, 1, nullptr);
    std::uint8_t* pOut = buffer_host::Look(hBuf).pixels;
    for (const std::uint32_t pixel : pixels) {
        *pOut++ = static_cast<std::uint8_t>(pixel);
        *pOut++ = static_cast<std::uint8_t>(pixel >> 8);
        *pOut++ = static_cast<std::uint8_t>(pixel >> 16);
    }
    return hBuf;
}

inline HBUF32 Solid(std::uint32_t pixel, int nWidth, int nHeight) {
    HBUF32 hBuf = Image(nWidth, nHeight, {});
    const buffer_host::View view = buffer_host::Look(hBuf);
    for (std::size_t i = 0; i < view.RowBytes() * static_cast<std::size_t>(nHeight); i += 3) {
        view.pixels[i] = static_cast<std::uint8_t>(pixel);
        view.pixels[i + 1] = static_cast<std::uint8_t>(pixel >> 8);
        view.pixels[i + 2] = static_cast<std::uint8_t>(pixel >> 16);
    }
    return hBuf;
}

inline HBUF32 Mask(int nWidth, int nHeight, std::initializer_list<std::uint8_t> values) {
    HBUF32 hBuf = 0;
    buf32Alloc(&hBuf, 8, nWidth, nHeight, 1, nullptr);
    std::uint8_t* pOut = buffer_host::Look(hBuf).pixels;
    for (const std::uint8_t value : values) {
        *pOut++ = value;
    }
    return hBuf;
}

/// A node at the front of the page; without an image it only has a place.
inline CImgNode* AddBox(CImgDoc& doc, const CRect& rect) {
    CImgNode* pNode = new CImgNode(&doc);
    pNode->m_fnResize(rect);
    doc.GetObjList()->AddHead(pNode);
    return pNode;
}

inline CImgNode* AddPicture(CImgDoc& doc, HBUF32 hImage, HBUF32 hMask, int x, int y) {
    CImgNode* pNode = new CImgNode(&doc);
    pNode->SetImage(hImage, hMask, x, y, 0);
    doc.GetObjList()->AddHead(pNode);
    return pNode;
}

inline std::vector<CImgNode*> NodesOf(const CImgNodeList& list) {
    std::vector<CImgNode*> nodes;
    for (POSITION position = list.GetHeadPosition(); position;) {
        nodes.push_back(list.GetNext(position));
    }
    return nodes;
}

/// A picture of a page that a test composes into.
struct Canvas {
    Canvas(int nWidth, int nHeight, std::uint32_t pixel = 0x00ABCDEF)
        : pixels(static_cast<std::size_t>(nWidth * nHeight), pixel), width(nWidth), height(nHeight) {}
    PixelTarget Target() { return {pixels.data(), width, height, width}; }
    CRect All() const { return CRect(0, 0, width, height); }
    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }

    std::vector<std::uint32_t> pixels;
    int width;
    int height;
};

} // namespace refhost_help
