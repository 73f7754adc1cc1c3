// Bytes of the system code page as Unicode text.
#pragma once

#include <string>

/// The bytes (code page 1252) as UTF-8. A byte that is no character there becomes `\xHH`.
std::string ToUtf8(const std::string& bytes);
