#pragma once

#include "window_tree.h"

namespace win32 {

/// The class "RICHEDIT" (see richedit.h).
std::unique_ptr<WindowClass> MakeRichEditClass();

} // namespace win32
