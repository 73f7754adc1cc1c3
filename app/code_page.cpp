#include "code_page.h"

#include <array>
#include <cstdio>

namespace {

/// Code page 1252 from 0x80 to 0x9F; 0 where it has no character. Everywhere else bytes are their own code
/// points.
constexpr std::array<unsigned, 32> Middle = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

unsigned CodePoint(unsigned char c) { return c >= 0x80 && c < 0xA0 ? Middle[c - 0x80U] : c; }

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

} // namespace

std::string ToUtf8(const std::string& bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto c = static_cast<unsigned char>(byte);
        const unsigned nCode = CodePoint(c);
        if (nCode != 0 || c == 0) {
            AppendUtf8(text, nCode);
        } else {
            char escape[5];
            std::snprintf(escape, sizeof(escape), "\\x%02X", c);
            text += escape;
        }
    }
    return text;
}
