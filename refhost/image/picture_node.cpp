#include "image/picture_node.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <pixman.h>

#include "image/node_host.h"

namespace {

using buffer_host::View;

struct PixmanImageDeleter {
    void operator()(pixman_image_t* pImage) const { pixman_image_unref(pImage); }
};
using CPixmanImage = std::unique_ptr<pixman_image_t, PixmanImageDeleter>;

CBufferPtr NewBuffer(int nBits, int nWidth, int nHeight) {
    HBUF32 hBuf = 0;
    buf32Alloc(&hBuf, nBits, nWidth, nHeight, 0, nullptr);
    return CBufferPtr(hBuf);
}

std::size_t PixelCount(const View& view) {
    return static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height);
}

std::uint8_t Multiplied(int value, int alpha) {
    return static_cast<std::uint8_t>((value * alpha + 127) / 255);
}

/// Image and mask as one buffer of colours multiplied by alpha: so the colours of transparent pixels do not
/// bleed.
CBufferPtr Join(const Picture& picture) {
    const View image = buffer_host::Look(picture.image.Get());
    const View mask = buffer_host::Look(picture.mask.Get());
    CBufferPtr joined = NewBuffer(32, image.width, image.height);
    const View out = buffer_host::Look(joined.Get());
    for (std::size_t i = 0; out.pixels && i < PixelCount(out); ++i) {
        const std::uint8_t alpha = mask.pixels ? mask.pixels[i] : 255;
        for (std::size_t channel = 0; channel < 3; ++channel) {
            out.pixels[i * 4 + channel] = Multiplied(image.pixels[i * 3 + channel], alpha);
        }
        out.pixels[i * 4 + 3] = alpha;
    }
    return joined;
}

/// The way back, into a picture whose buffers are there; the mask may be missing.
void Part(const View& joined, const View& image, const View& mask) {
    for (std::size_t i = 0; i < PixelCount(image); ++i) {
        const int alpha = joined.pixels[i * 4 + 3];
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const int value = joined.pixels[i * 4 + channel];
            image.pixels[i * 3 + channel] =
                static_cast<std::uint8_t>(alpha > 0 ? std::min(255, (value * 255 + alpha / 2) / alpha) : 0);
        }
        if (mask.pixels) {
            mask.pixels[i] = static_cast<std::uint8_t>(alpha);
        }
    }
}

CPixmanImage Wrap(const View& view) {
    return CPixmanImage(pixman_image_create_bits(PIXMAN_a8r8g8b8, view.width, view.height,
                                                 reinterpret_cast<std::uint32_t*>(view.pixels),
                                                 view.width * 4));
}

/// Sets the scaling from one size to another, every source pixel in its share. False when memory is out.
bool SetScaling(pixman_image_t* pSource, const View& from, const View& to) {
    constexpr int SubsampleBits = 7;
    const pixman_fixed_t scaleX = pixman_double_to_fixed(static_cast<double>(from.width) / to.width);
    const pixman_fixed_t scaleY = pixman_double_to_fixed(static_cast<double>(from.height) / to.height);
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform, scaleX, scaleY);
    int nValues = 0;
    pixman_fixed_t* pValues = pixman_filter_create_separable_convolution(
        &nValues, scaleX, scaleY, PIXMAN_KERNEL_LINEAR, PIXMAN_KERNEL_LINEAR, PIXMAN_KERNEL_BOX,
        PIXMAN_KERNEL_BOX, SubsampleBits, SubsampleBits);
    if (!pValues) {
        return false;
    }
    pixman_image_set_repeat(pSource, PIXMAN_REPEAT_PAD);
    const bool bSet =
        pixman_image_set_transform(pSource, &transform) != 0 &&
        pixman_image_set_filter(pSource, PIXMAN_FILTER_SEPARABLE_CONVOLUTION, pValues, nValues) != 0;
    std::free(pValues);
    return bSet;
}

bool ScaleJoined(const View& from, const View& to) {
    const CPixmanImage source = Wrap(from);
    const CPixmanImage target = Wrap(to);
    if (!source || !target || !SetScaling(source.get(), from, to)) {
        return false;
    }
    pixman_image_composite32(PIXMAN_OP_SRC, source.get(), nullptr, target.get(), 0, 0, 0, 0, 0, 0, to.width,
                             to.height);
    return true;
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
    const CBufferPtr from = Join(picture);
    const CBufferPtr to = NewBuffer(32, nWidth, nHeight);
    if (!from || !to || !ScaleJoined(buffer_host::Look(from.Get()), buffer_host::Look(to.Get()))) {
        return false;
    }
    Part(buffer_host::Look(to.Get()), buffer_host::Look(result.image.Get()),
         buffer_host::Look(result.mask.Get()));
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
