#include "code_page.h"

#include "handles.h"

#include "platform/code_page.h"

#include <algorithm>
#include <cstdio>
#include <iconv.h>
#include <new>
#include <vector>

namespace win32 {

struct LeadRange {
    UINT codePage;
    int first;
    int last;
};

constexpr std::array<LeadRange, 8> LeadRanges = {{
    {932, 0x81, 0x9F},
    {932, 0xE0, 0xFC},
    {936, 0x81, 0xFE},
    {949, 0x81, 0xFE},
    {950, 0x81, 0xFE},
    {1361, 0x84, 0xD3},
    {1361, 0xD8, 0xDE},
    {1361, 0xE0, 0xF9},
}};

constexpr std::array<UINT, 16> KnownCodePages = {437,  874,  932,  936,  949,  950,  1250, 1251,
                                                 1252, 1253, 1254, 1255, 1256, 1257, 1258, 1361};
constexpr std::array<UINT, 5> SystemCodePages = {932, 936, 949, 950, 1252};

UINT g_systemCodePage = 1252;

std::array<char, 8> ConverterName(UINT number) {
    std::array<char, 8> name{};
    std::snprintf(name.data(), name.size(), number == 1361 ? "JOHAB" : "CP%u", number);
    return name;
}

namespace {

// NoCharacter where the bytes are not one character.
WCHAR Convert(iconv_t converter, const char* bytes, size_t count) {
    std::array<WCHAR, 2> wide{};
    char* in = const_cast<char*>(bytes);
    char* out = reinterpret_cast<char*>(wide.data());
    size_t room = sizeof wide;
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    const bool converted = iconv(converter, &in, &count, &out, &room) != static_cast<size_t>(-1);
    return converted && room == sizeof(WCHAR) ? wide[0] : NoCharacter;
}

void FillPairs(CodePage& page, iconv_t converter) {
    for (int lead = 0; lead < 256; ++lead) {
        for (int trail = 0x40; page.lead[static_cast<size_t>(lead)] && trail < 256; ++trail) {
            const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
            page.pairs[static_cast<size_t>(lead) * 256 + static_cast<size_t>(trail)] =
                Convert(converter, bytes, 2);
        }
    }
}

void FillSingles(CodePage& page, iconv_t converter) {
    for (size_t byte = 0; byte < page.single.size(); ++byte) {
        const char text = static_cast<char>(byte);
        page.single[byte] = byte < 0x80       ? static_cast<WCHAR>(byte)
                            : page.lead[byte] ? NoCharacter
                                              : Convert(converter, &text, 1);
    }
}

void MarkLeads(CodePage& page) {
    for (const LeadRange& range : LeadRanges) {
        if (range.codePage == page.number) {
            std::fill(page.lead.begin() + range.first, page.lead.begin() + range.last + 1, true);
        }
    }
}

std::unique_ptr<CodePage> MakeCodePage(UINT number) {
    constexpr size_t PairCount = 65536;
    auto page = std::make_unique<CodePage>();
    page->number = number;
    MarkLeads(*page);
    page->single.fill(NoCharacter);
    const iconv_t converter = iconv_open("UTF-16LE", ConverterName(number).data());
    FillSingles(*page, converter);
    if (std::find(page->lead.begin(), page->lead.end(), true) != page->lead.end()) {
        page->pairs = std::make_unique<WCHAR[]>(PairCount);
        std::fill_n(page->pairs.get(), PairCount, NoCharacter);
        FillPairs(*page, converter);
    }
    if (converter != reinterpret_cast<iconv_t>(-1)) {
        iconv_close(converter);
    }
    return page;
}

} // namespace

const CodePage* FindCodePage(UINT number) {
    static auto& pages = *new std::vector<std::unique_ptr<CodePage>>;
    number = number == CP_ACP ? g_systemCodePage : number;
    const auto found =
        std::find_if(pages.begin(), pages.end(), [=](const auto& page) { return page->number == number; });
    if (found != pages.end()) {
        return found->get();
    }
    if (std::find(KnownCodePages.begin(), KnownCodePages.end(), number) == KnownCodePages.end()) {
        return nullptr;
    }
    pages.push_back(MakeCodePage(number));
    return pages.back().get();
}

namespace {

const CodePage*& Current() {
    static const CodePage* page = FindCodePage(g_systemCodePage);
    return page;
}

} // namespace

const CodePage& SystemCodePage() { return *Current(); }

Character FirstCharacter(const CodePage& page, const char* text, int count) {
    const BYTE first = static_cast<BYTE>(text[0]);
    if (page.lead[first] && count > 1) {
        const WORD pair = static_cast<WORD>(first * 256 + static_cast<BYTE>(text[1]));
        if (page.pairs[pair] != NoCharacter) {
            return {pair, page.pairs[pair], 2};
        }
    }
    return {first, page.single[first], 1};
}

} // namespace win32

using namespace win32;

bool platform::SetCodePage(UINT codePage) {
    if (std::find(SystemCodePages.begin(), SystemCodePages.end(), codePage) == SystemCodePages.end()) {
        return false;
    }
    g_systemCodePage = codePage;
    Current() = FindCodePage(codePage);
    return true;
}

UINT GetACP() { return g_systemCodePage; }

BOOL IsDBCSLeadByte(BYTE byte) { return SystemCodePage().IsLead(byte); }

BOOL IsDBCSLeadByteEx(UINT codePage, BYTE byte) {
    const CodePage* page = FindCodePage(codePage);
    return page ? page->IsLead(byte) : FailWith(ERROR_INVALID_PARAMETER);
}
