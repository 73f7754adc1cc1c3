// Making a text object: an editor that nobody sees lays the text out, the text engine renders it.
#pragma once

#include "host/tool.h"

namespace text_objects {
CTextNode* CreateTextNode(CTool& tool, const CString& strText, const CString& strFontName, COLORREF crColor,
                          int nPixelSize, int nAlignment, int nStyle);
} // namespace text_objects
