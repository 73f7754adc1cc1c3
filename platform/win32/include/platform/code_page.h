// The system code page of a host.
#pragma once

#include <windows.h>

namespace platform {

/// 1252 (the start value), 932, 936, 949 or 950. False, and nothing changes, for any other.
bool SetCodePage(UINT codePage);

} // namespace platform
