#include "handles.h"

#include <cstdlib>

namespace {

DWORD g_lastError = ERROR_SUCCESS;

} // namespace

BOOL win32::FailWith(DWORD code) {
    g_lastError = code;
    return FALSE;
}

DWORD GetLastError() { return g_lastError; }

void SetLastError(DWORD code) { g_lastError = code; }

int MulDiv(int number, int numerator, int denominator) {
    if (denominator == 0) {
        return -1;
    }
    const LONGLONG product = static_cast<LONGLONG>(number) * numerator;
    const LONGLONG divisor = denominator;
    // Rounding the magnitudes takes halves away from zero on both sides.
    const LONGLONG magnitude = (std::llabs(product) + std::llabs(divisor) / 2) / std::llabs(divisor);
    const LONGLONG result = (product < 0) != (divisor < 0) ? -magnitude : magnitude;
    return result < INT32_MIN || result > INT32_MAX ? -1 : static_cast<int>(result);
}
