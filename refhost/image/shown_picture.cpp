#include "image/shown_picture.h"

#include <array>
#include <new>

namespace {

using buffer_host::Look;
using buffer_host::OwnPixels;
using buffer_host::View;

/// Nothing for a buffer of another depth.
View LookAt(HBUF32 hBuf, int nUnit) {
    const View view = Look(hBuf);
    return view.unit == nUnit ? view : View{};
}

bool HasNodeSize(const View& view, const CImgNode& node) {
    return view.width == node.m_tx.nWidth && view.height == node.m_tx.nHeight;
}

std::array<HBUF32, 4> BuffersOf(const CImgNode& node) {
    return {node.m_hImage, node.m_tx.hMask, node.m_hTransSrcImage, node.m_hTransSrcMask};
}

} // namespace

CScaledSource::CScaledSource(const CImgNode& node, const PixelPair& source)
    : m_hImage(node.m_hTransSrcImage), m_hMask(node.m_hTransSrcMask),
      m_size(node.m_tx.nWidth, node.m_tx.nHeight), m_image(3, m_size.cx, m_size.cy) {
    if (source.mask.pixels) {
        m_mask = OwnPixels(1, m_size.cx, m_size.cy);
    }
    const bool bRoom = m_image.memory && (!source.mask.pixels || m_mask.memory);
    if (!bRoom || !ScalePixels(source, {m_image.view, m_mask.view})) {
        m_image = OwnPixels();
        m_mask = OwnPixels();
    }
}

bool CScaledSource::IsOf(const CImgNode& node) const {
    return m_hImage == node.m_hTransSrcImage && m_hMask == node.m_hTransSrcMask &&
           m_size == CSize(node.m_tx.nWidth, node.m_tx.nHeight);
}

PixelPair CShownPicture::Of(const CImgNode& node) {
    const PixelPair own{LookAt(node.m_hImage, 3), LookAt(node.m_tx.hMask, 1)};
    const PixelPair source{LookAt(node.m_hTransSrcImage, 3), LookAt(node.m_hTransSrcMask, 1)};
    if (!source.image.pixels || (HasNodeSize(own.image, node) && IsMarked(node))) {
        return own;
    }
    PixelPair shown{source.image, source.mask.pixels ? source.mask : own.mask};
    if (HasNodeSize(source.image, node)) {
        return shown;
    }
    if (!node.m_pScaledSource || !node.m_pScaledSource->IsOf(node)) {
        node.m_pScaledSource.reset(new (std::nothrow) CScaledSource(node, source));
    }
    if (node.m_pScaledSource && node.m_pScaledSource->Image().pixels) {
        shown.image = node.m_pScaledSource->Image();
        shown.mask = source.mask.pixels ? node.m_pScaledSource->Mask() : own.mask;
    }
    return shown;
}

void CShownPicture::MarkScaled(CImgNode& node) {
    node.m_scaledBuffers = BuffersOf(node);
    node.m_pScaledSource.reset();
}

void CShownPicture::CopyMark(const CImgNode& from, CImgNode& to) {
    if (IsMarked(from)) {
        MarkScaled(to);
    }
}

// Handles do not come again soon, so none of the four is another buffer than it was.
bool CShownPicture::IsMarked(const CImgNode& node) { return node.m_scaledBuffers == BuffersOf(node); }
