#pragma once

// Code pages: which bytes make a character, and which one.

#include <windows.h>

#include <array>
#include <memory>

namespace win32 {

/// Marks bytes that stand for nothing.
constexpr WCHAR NoCharacter = 0xFFFF;

struct CodePage {
    bool IsLead(BYTE byte) const { return lead[byte]; }
    bool HasPairs() const { return pairs != nullptr; }

    UINT number = 0;
    std::array<bool, 256> lead{};
    std::array<WCHAR, 256> single{};
    std::unique_ptr<WCHAR[]> pairs; // By lead * 256 + trail; null in a code page of single bytes.
};

/// One character of a text.
struct Character {
    WORD bytes;   // The byte, or lead * 256 + trail.
    WCHAR code;   // NoCharacter for a byte, alone or a lead without its trail, that stands for nothing.
    short length; // 1 or 2.
};

/// The number of the system's; FindCodePage knows it.
extern UINT g_systemCodePage;

/// Made at the first asking; CP_ACP is the system's. Null for an unknown one.
const CodePage* FindCodePage(UINT number);
/// Never null.
const CodePage& SystemCodePage();
/// The first character of `count` (at least 1) bytes.
Character FirstCharacter(const CodePage& page, const char* text, int count);
/// The name of the code page for conversions.
std::array<char, 8> ConverterName(UINT number);
/// The character set of a code page; DEFAULT_CHARSET when it has none.
BYTE CharSetOf(UINT codePage);

} // namespace win32
