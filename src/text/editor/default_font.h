// The face that new texts start with.
#pragma once

#include <afxwin.h>

/// The host's default font, or "Arial" when it has none.
CString DefaultFontName();
