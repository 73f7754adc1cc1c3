// Integer results that stay within 32 bits.
#pragma once

#include <algorithm>
#include <limits>

/// The value, or the nearest 32-bit integer when it lies beyond them. Coordinates may stand anywhere, so
/// differences and sums are taken in 64 bits.
constexpr int Saturated(long long nValue) {
    return static_cast<int>(
        std::clamp<long long>(nValue, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// The value truncated toward zero, saturated alike.
inline int Truncated(double dValue) {
    constexpr double dLeast = std::numeric_limits<int>::min();
    constexpr double dMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(dValue, dLeast, dMost));
}
