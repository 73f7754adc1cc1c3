#pragma once

#include <windows.h>

#include <richedit.h>

namespace win32 {

/// Everything a format can say.
constexpr DWORD WholeFormat = CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE | CFM_STRIKEOUT | CFM_PROTECTED |
                              CFM_CHARSET | CFM_OFFSET | CFM_FACE | CFM_COLOR | CFM_SIZE;

/// The format of a new control.
CHARFORMATA FirstFormat();
/// Takes over what the mask of `change` names.
void ApplyFormat(CHARFORMATA& format, const CHARFORMATA& change);
/// The CFM_ bits of what differs.
DWORD FormatDifference(const CHARFORMATA& a, const CHARFORMATA& b);

} // namespace win32
