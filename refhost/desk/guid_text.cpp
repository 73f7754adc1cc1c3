#include "desk/guid_text.h"

#include <cctype>
#include <cstdio>

namespace {

constexpr char Pattern[] = "{hhhhhhhh-hhhh-hhhh-hhhh-hhhhhhhhhhhh}";

bool HasForm(const std::string& text) {
    if (text.size() != sizeof(Pattern) - 1) {
        return false;
    }
    for (std::size_t n = 0; n < text.size(); n++) {
        const bool bDigit = std::isxdigit(static_cast<unsigned char>(text[n])) != 0;
        if (Pattern[n] == 'h' ? !bDigit : text[n] != Pattern[n]) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string GuidText(const GUID& guid) {
    char text[sizeof(Pattern)];
    const BYTE* p = guid.Data4;
    std::snprintf(text, sizeof(text), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", guid.Data1,
                  guid.Data2, guid.Data3, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7]);
    return text;
}

bool ParseGuid(const std::string& text, GUID& guid) {
    if (!HasForm(text)) {
        return false;
    }
    const auto field = [&text](std::size_t nAt, std::size_t nDigits) {
        return std::stoul(text.substr(nAt, nDigits), nullptr, 16);
    };
    guid.Data1 = static_cast<DWORD>(field(1, 8));
    guid.Data2 = static_cast<WORD>(field(10, 4));
    guid.Data3 = static_cast<WORD>(field(15, 4));
    for (std::size_t n = 0; n < 8; n++) {
        guid.Data4[n] = static_cast<BYTE>(field(n < 2 ? 20 + 2 * n : 21 + 2 * n, 2));
    }
    return true;
}
