// What a node does with its own pixels when its size changes or its outline is needed.
#include <algorithm>
#include <cstdint>
#include <utility>

#include "host/img_node.h"
#include "image/node_host.h"
#include "image/picture_node.h"
#include "image/shown_picture.h"

namespace {

using buffer_host::Look;
using buffer_host::View;

bool HasSize(const View& view, int nWidth, int nHeight) {
    return view.width == nWidth && view.height == nHeight;
}

/// A copy of the picture at that size.
bool Resampled(const Picture& original, int nWidth, int nHeight, Picture& shown) {
    if (original.width != nWidth || original.height != nHeight) {
        return ScalePicture(original, nWidth, nHeight, shown);
    }
    shown.image = CBufferPtr(buf32DupBuf(original.image.Get()));
    shown.mask = CBufferPtr(original.mask ? buf32DupBuf(original.mask.Get()) : 0);
    return shown.image && static_cast<bool>(shown.mask) == static_cast<bool>(original.mask);
}

/// The stronger of what is there and the node's mask, pixel by pixel, into a buffer over `rcWhole`.
void AddMask(const View& whole, const CRect& rcWhole, CImgNode& node) {
    CRect rcNode;
    node.GetBoundRect(&rcNode);
    const View mask = CShownPicture::Of(node).mask;
    for (int y = rcNode.top; y < rcNode.bottom; ++y) {
        std::uint8_t* pOut = whole.Row(y - rcWhole.top) - rcWhole.left;
        for (int x = rcNode.left; x < rcNode.right; ++x) {
            std::uint8_t value = 255;
            if (mask.pixels) {
                const std::int64_t nColumn = std::int64_t{x - rcNode.left} * mask.width / rcNode.Width();
                const std::int64_t nRow = std::int64_t{y - rcNode.top} * mask.height / rcNode.Height();
                value = mask.Row(static_cast<int>(nRow))[nColumn];
            }
            pOut[x] = std::max(pOut[x], value);
        }
    }
}

} // namespace

void CImgNode::m_fnAdjustImageNodeBuf(int /*nReserved*/, int /*nReserved2*/) {
    const View image = Look(m_hImage);
    const int nWidth = m_tx.nWidth;
    const int nHeight = m_tx.nHeight;
    if (!image.pixels || nWidth <= 0 || nHeight <= 0 || HasSize(image, nWidth, nHeight)) {
        return;
    }
    // A mask of another size than the image's has a scale of its own and stays as it is.
    const bool bMaskGoesAlong = HasSize(Look(m_tx.hMask), image.width, image.height);
    const bool bOriginal = m_hTransSrcImage != 0;
    HBUF32& hSource = bOriginal ? m_hTransSrcImage : m_hImage;
    HBUF32 hNoMask = 0;
    HBUF32& hSourceMask = bOriginal ? m_hTransSrcMask : (bMaskGoesAlong ? m_tx.hMask : hNoMask);

    Picture original;
    original.image = CBufferPtr(std::exchange(hSource, 0));
    original.mask = CBufferPtr(std::exchange(hSourceMask, 0));
    original.width = Look(original.image.Get()).width;
    original.height = Look(original.image.Get()).height;
    Picture shown;
    const bool bMade = Resampled(original, nWidth, nHeight, shown);
    HBUF32& hKeptImage = bMade ? m_hTransSrcImage : hSource;
    HBUF32& hKeptMask = bMade ? m_hTransSrcMask : hSourceMask;
    hKeptImage = original.image.Release();
    hKeptMask = original.mask.Release();
    if (!bMade) {
        return;
    }
    if (bOriginal) {
        buf32Free(m_hImage);
    }
    m_hImage = shown.image.Release();
    CNodeBookkeeping::PlaceChanged(*this);
    if (bMaskGoesAlong) {
        if (bOriginal) {
            buf32Free(m_tx.hMask);
        }
        m_tx.hMask = shown.mask.Release();
    }
    CShownPicture::MarkScaled(*this);
}

HBUF32 CImgNode::CreateMaskBufByCombine() {
    const CRect rcWhole = m_fnGetBoundRectWithFrame();
    HBUF32 hWhole = 0;
    if (!buf32Alloc(&hWhole, 8, rcWhole.Width(), rcWhole.Height(), 1, nullptr)) {
        return 0;
    }
    const View whole = Look(hWhole);
    AddMask(whole, rcWhole, *this);
    if (m_pFrameNode) {
        AddMask(whole, rcWhole, *m_pFrameNode);
    }
    return hWhole;
}
