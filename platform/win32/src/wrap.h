#pragma once

#include <windows.h>

namespace win32 {

// Sums of coordinates wrap around; a caller's extreme values are no reason to stop.
constexpr LONG WrapSum(LONG a, LONG b) {
    return static_cast<LONG>(static_cast<ULONG>(a) + static_cast<ULONG>(b));
}

constexpr LONG WrapDifference(LONG a, LONG b) {
    return static_cast<LONG>(static_cast<ULONG>(a) - static_cast<ULONG>(b));
}

} // namespace win32
