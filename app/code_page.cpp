#include "code_page.h"

#include <cstdio>

namespace {

void AppendUtf8(std::string& text, unsigned nCode) {
    if (nCode < 0x80) {
        text += static_cast<char>(nCode);
    } else if (nCode < 0x800) {
        text += static_cast<char>(0xC0 | (nCode >> 6));
        text += static_cast<char>(0x80 | (nCode & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (nCode >> 12));
        text += static_cast<char>(0x80 | ((nCode >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (nCode & 0x3F));
    }
}

void AppendEscape(std::string& text, unsigned char c) {
    char escape[5];
    std::snprintf(escape, sizeof(escape), "\\x%02X", c);
    text += escape;
}

/// The character that the first one or two bytes stand for; 0 when they stand for none. The code pages hold
/// no character beyond 16 bits.
unsigned CharacterOf(const char* pBytes, int nBytes) {
    WCHAR wide = 0;
    return ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, pBytes, nBytes, &wide, 1) == 1 ? wide : 0U;
}

} // namespace

std::string ToUtf8(const std::string& bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t n = 0; n < bytes.size();) {
        const auto c = static_cast<unsigned char>(bytes[n]);
        const bool bPair = ::IsDBCSLeadByte(c) && n + 1 < bytes.size();
        const unsigned nCode = c < 0x80 ? c : CharacterOf(&bytes[n], bPair ? 2 : 1);
        if (nCode != 0 || c == 0) {
            AppendUtf8(text, nCode);
            n += bPair ? 2 : 1;
        } else {
            AppendEscape(text, c);
            n++;
        }
    }
    return text;
}

std::string BytesOf(const CString& text) {
    return {static_cast<LPCSTR>(text), static_cast<std::size_t>(text.GetLength())};
}
