#include "image/pixel_scale.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <pixman.h>

namespace {

using buffer_host::OwnPixels;
using buffer_host::View;

constexpr int JoinedUnit = 4;

struct PixmanImageDeleter {
    void operator()(pixman_image_t* pImage) const { pixman_image_unref(pImage); }
};
using CPixmanImage = std::unique_ptr<pixman_image_t, PixmanImageDeleter>;

std::size_t PixelCount(const View& view) {
    return static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height);
}

std::uint8_t Multiplied(int value, int alpha) {
    return static_cast<std::uint8_t>((value * alpha + 127) / 255);
}

/// Image and mask as one buffer of colours multiplied by alpha: so the colours of transparent pixels do not
/// bleed.
void Join(const PixelPair& from, const View& joined) {
    for (std::size_t i = 0; i < PixelCount(joined); ++i) {
        const std::uint8_t alpha = from.mask.pixels ? from.mask.pixels[i] : 255;
        for (std::size_t channel = 0; from.image.pixels && channel < 3; ++channel) {
            joined.pixels[i * 4 + channel] = Multiplied(from.image.pixels[i * 3 + channel], alpha);
        }
        joined.pixels[i * 4 + 3] = alpha;
    }
}

/// The way back.
void Part(const View& joined, const View& image, const View& mask) {
    for (std::size_t i = 0; i < PixelCount(joined); ++i) {
        const int alpha = joined.pixels[i * 4 + 3];
        for (std::size_t channel = 0; image.pixels && channel < 3; ++channel) {
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

const View& SizedOf(const PixelPair& pair) { return pair.image.pixels ? pair.image : pair.mask; }

bool IsMismatched(const PixelPair& pair) {
    const bool bSame = pair.image.width == pair.mask.width && pair.image.height == pair.mask.height;
    return pair.image.pixels && pair.mask.pixels && !bSame;
}

} // namespace

bool ScalePixels(const PixelPair& from, const PixelPair& to) {
    if (IsMismatched(from) || IsMismatched(to)) {
        return ScalePixels({from.image, {}}, {to.image, {}}) && ScalePixels({{}, from.mask}, {{}, to.mask});
    }
    const View& sizeFrom = SizedOf(from);
    const View& sizeTo = SizedOf(to);
    const OwnPixels joined(JoinedUnit, sizeFrom.width, sizeFrom.height);
    const OwnPixels scaled(JoinedUnit, sizeTo.width, sizeTo.height);
    if (!joined.memory || !scaled.memory) {
        return false;
    }
    Join(from, joined.view);
    if (!ScaleJoined(joined.view, scaled.view)) {
        return false;
    }
    Part(scaled.view, to.image, to.mask);
    return true;
}
