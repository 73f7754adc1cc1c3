// The display that a host stands for.
#pragma once

namespace platform {

/// The resolution in pixels an inch, 96 at the start; both directions alike. Values below 1 are ignored.
void SetDisplayDpi(int dpi);
int DisplayDpi();

} // namespace platform
