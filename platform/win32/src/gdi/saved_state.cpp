#include "dc.h"

#include <algorithm>

using namespace win32;

int SaveDC(HDC dc) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return 0;
    }
    context->saved.push_back(*context);
    HoldObjects(*context);
    return static_cast<int>(context->saved.size());
}

BOOL RestoreDC(HDC dc, int saved) {
    DeviceContext* context = FindDc(dc);
    if (!context) {
        return FALSE;
    }
    auto& states = context->saved;
    const LONGLONG count = static_cast<LONGLONG>(states.size());
    const LONGLONG index = saved < 0 ? count + saved : saved - LONGLONG{1};
    if (index < 0 || index >= count) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    // The state that comes back keeps its own hold; those of the present one and of the later states go.
    const auto wanted = states.begin() + index;
    ReleaseObjects(*context);
    std::for_each(wanted + 1, states.end(), ReleaseObjects);
    static_cast<DcState&>(*context) = *wanted;
    states.erase(wanted, states.end());
    return TRUE;
}
