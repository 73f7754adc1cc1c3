#include "image/picture_node.h"

#include <memory>

#include "image/node_host.h"
#include "image/pixel_scale.h"
#include "image/shown_picture.h"

namespace {

using buffer_host::View;

CBufferPtr NewBuffer(int nBits, int nWidth, int nHeight) {
    HBUF32 hBuf = 0;
    buf32Alloc(&hBuf, nBits, nWidth, nHeight, 0, nullptr);
    return CBufferPtr(hBuf);
}

std::size_t PixelCount(const View& view) {
    return static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height);
}

bool IsPicture(const Picture& picture) { return buffer_host::Look(picture.image.Get()).unit == 3; }

/// Sets what the node shows; the buffers it had go.
void Adopt(CImgNode& node, Picture&& shown, Picture&& original, const CRect& rect) {
    const int nPictureWidth = original.width;
    const int nPictureHeight = original.height;
    node.SetImage(shown.image.Release(), shown.mask.Release(), rect.left, rect.top, 0);
    buf32Free(node.m_hTransSrcImage);
    buf32Free(node.m_hTransSrcMask);
    node.m_hTransSrcImage = original.image.Release();
    node.m_hTransSrcMask = original.mask.Release();
    CShownPicture::MarkScaled(node);
    node.m_tx.SetOrWH(nPictureWidth, nPictureHeight, 0);
    node.m_nPictureWidth = nPictureWidth;
    node.m_nPictureHeight = nPictureHeight;
}

} // namespace

bool ScalePicture(const Picture& picture, int nWidth, int nHeight, Picture& scaled) {
    const bool bMask = static_cast<bool>(picture.mask);
    Picture result;
    result.image = NewBuffer(24, nWidth, nHeight);
    if (bMask) {
        result.mask = NewBuffer(8, nWidth, nHeight);
    }
    if (!IsPicture(picture) || !result.image || bMask != static_cast<bool>(result.mask)) {
        return false;
    }
    const PixelPair from{buffer_host::Look(picture.image.Get()), buffer_host::Look(picture.mask.Get())};
    if (!ScalePixels(from, {buffer_host::Look(result.image.Get()), buffer_host::Look(result.mask.Get())})) {
        return false;
    }
    result.width = nWidth;
    result.height = nHeight;
    scaled = std::move(result);
    return true;
}

bool SolidPicture(COLORREF color, int nWidth, int nHeight, Picture& picture) {
    Picture solid;
    solid.image = NewBuffer(24, nWidth, nHeight);
    const View view = buffer_host::Look(solid.image.Get());
    if (!view.pixels) {
        return false;
    }
    for (std::size_t i = 0; i < PixelCount(view); ++i) {
        view.pixels[i * 3] = GetBValue(color);
        view.pixels[i * 3 + 1] = GetGValue(color);
        view.pixels[i * 3 + 2] = GetRValue(color);
    }
    solid.width = nWidth;
    solid.height = nHeight;
    picture = std::move(solid);
    return true;
}

bool AddEllipseMask(Picture& picture) {
    CBufferPtr mask = NewBuffer(8, picture.width, picture.height);
    const View view = buffer_host::Look(mask.Get());
    if (!view.pixels) {
        return false;
    }
    const double dWidth = view.width;
    const double dHeight = view.height;
    for (int y = 0; y < view.height; ++y) {
        // Centres in halves of a pixel from the middle, as a share of the radius.
        const double dY = (2 * y + 1 - dHeight) / dHeight;
        for (int x = 0; x < view.width; ++x) {
            const double dX = (2 * x + 1 - dWidth) / dWidth;
            view.Row(y)[x] = dX * dX + dY * dY <= 1.0 ? 255 : 0;
        }
    }
    picture.mask = std::move(mask);
    return true;
}

CImgNode* MakePictureNode(CImgDoc& doc, Picture&& picture, const CRect& rect) {
    std::unique_ptr<CImgNode> pNode(new CImgNode(&doc));
    if (!pNode || !SetNodePicture(*pNode, std::move(picture), rect)) {
        return nullptr;
    }
    return pNode.release();
}

bool SetNodePicture(CImgNode& node, Picture&& picture, const CRect& rect) {
    if (!IsPicture(picture) || rect.IsRectEmpty() != FALSE) {
        return false;
    }
    const int nWidth = rect.right - rect.left;
    const int nHeight = rect.bottom - rect.top;
    if (nWidth == picture.width && nHeight == picture.height) {
        Picture none;
        none.width = picture.width;
        none.height = picture.height;
        Adopt(node, std::move(picture), std::move(none), rect);
        return true;
    }
    Picture shown;
    if (!ScalePicture(picture, nWidth, nHeight, shown)) {
        return false;
    }
    Adopt(node, std::move(shown), std::move(picture), rect);
    return true;
}
