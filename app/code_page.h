// Bytes of the system code page as Unicode text.
#pragma once

#include <string>

#include <afxwin.h>

/// The bytes, in the system code page, as UTF-8. A byte that is no character there becomes `\xHH`.
std::string ToUtf8(const std::string& bytes);
/// The text's bytes, zeros included.
std::string BytesOf(const CString& text);
