#pragma once

// What the C interface has by way of convenience.

#include "win32/types.h"

/// The signed coordinates in a mouse message's LPARAM.
constexpr int GET_X_LPARAM(LPARAM value) { return static_cast<SHORT>(LOWORD(static_cast<ULONG_PTR>(value))); }
constexpr int GET_Y_LPARAM(LPARAM value) { return static_cast<SHORT>(HIWORD(static_cast<ULONG_PTR>(value))); }
