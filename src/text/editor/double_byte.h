// Characters of two bytes in the system code page.
#pragma once

#include <afxwin.h>

/// Whether byte `nIndex` of the line begins a two-byte character, counted from the line's first byte on. A
/// lead byte at the line's end counts; false outside the line.
bool IsLeadAt(const CString& strLine, int nIndex);
/// `nBytes` of the line, or one more where that would cut a two-byte character.
int WholeCharacters(const CString& strLine, int nBytes);
