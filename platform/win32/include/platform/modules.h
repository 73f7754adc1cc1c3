#pragma once

namespace platform {

/// Called by LoadLibraryA right before a module is opened, so that what its static constructors register can
/// be told from what was there before. Null, the start value, means none.
using RawStartHook = void (*)();
void SetRawStartHook(RawStartHook hook);

} // namespace platform
