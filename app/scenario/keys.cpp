#include "scenario/keys.h"

#include <array>
#include <cctype>

#include <windows.h>

namespace {

struct KeyRow {
    const char* pszName;
    int nKey;
};

constexpr std::array<KeyRow, 13> Keys = {{
    {"LEFT", VK_LEFT},
    {"UP", VK_UP},
    {"RIGHT", VK_RIGHT},
    {"DOWN", VK_DOWN},
    {"HOME", VK_HOME},
    {"END", VK_END},
    {"ENTER", VK_RETURN},
    {"ESC", VK_ESCAPE},
    {"BACKSPACE", VK_BACK},
    {"DELETE", VK_DELETE},
    {"TAB", VK_TAB},
    {"CTRL", VK_CONTROL},
    {"SHIFT", VK_SHIFT},
}};

} // namespace

int KeyOfName(const std::string& name) {
    for (const KeyRow& row : Keys) {
        if (name == row.pszName) {
            return row.nKey;
        }
    }
    const bool bLetter = name.size() == 1 && std::isalpha(static_cast<unsigned char>(name[0])) != 0;
    return bLetter ? std::toupper(static_cast<unsigned char>(name[0])) : 0;
}

std::string NameOfKey(int nKey) {
    for (const KeyRow& row : Keys) {
        if (nKey == row.nKey) {
            return row.pszName;
        }
    }
    return nKey >= 'A' && nKey <= 'Z' ? std::string(1, static_cast<char>(nKey)) : std::to_string(nKey);
}
