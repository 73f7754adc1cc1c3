// The page that the benchmarks draw: where its items stand, and the pixels of its pictures.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace page {

inline constexpr int Width = 720; ///< document units and, at zoom 1, client pixels
inline constexpr int Height = 480;
inline constexpr int ItemWidth = 60;
inline constexpr int ItemHeight = 45;
inline constexpr int Pictures = 64; ///< item i shows picture i mod 64
inline constexpr int TopX = 330;    ///< where the last item stands, which lies on top of all others
inline constexpr int TopY = 217;
inline constexpr int PressX = 360; ///< a point that hits it
inline constexpr int PressY = 240;

struct Place {
    int x;
    int y;
};

/// Where item i of n stands on an area of that size.
inline Place PlaceOf(int i, int n, int nWidth, int nHeight) {
    if (i == n - 1) {
        return {TopX, TopY};
    }
    std::uint32_t a = static_cast<std::uint32_t>(i + 1) * 2654435761U;
    a ^= a >> 15;
    a *= 2246822519U;
    a ^= a >> 13;
    std::uint32_t b = a * 3266489917U;
    b ^= b >> 16;
    return {static_cast<int>(a % static_cast<std::uint32_t>(nWidth - ItemWidth + 1)),
            static_cast<int>(b % static_cast<std::uint32_t>(nHeight - ItemHeight + 1))};
}

/// Coverage 0 to 255 of an ellipse that fills the size; over the last tenth of its radius it fades out.
inline std::uint8_t MaskAt(int x, int y, int nWidth, int nHeight) {
    const double u = (x + 0.5) / nWidth * 2 - 1;
    const double v = (y + 0.5) / nHeight * 2 - 1;
    return static_cast<std::uint8_t>(
        std::lround(255 * std::clamp((1 - std::sqrt(u * u + v * v)) * 10, 0.0, 1.0)));
}

/// The colour of picture k, 0x00RRGGBB.
inline std::uint32_t RgbAt(int k, int x, int y) {
    return static_cast<std::uint32_t>((x * 4 + k * 37) & 255) << 16 |
           static_cast<std::uint32_t>((y * 5 + k * 59) & 255) << 8 |
           static_cast<std::uint32_t>((x * y + k * 83) & 255);
}

} // namespace page
