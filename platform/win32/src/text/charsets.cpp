#include "code_page.h"
#include "handles.h"

#include "fonts.h"
#include "gdi/dc.h"

#include <algorithm>

namespace win32 {

struct CharSet {
    BYTE charSet;
    UINT codePage;
    int signatureBit; // Of fsCsb.
};

constexpr std::array<CharSet, 15> CharSets = {{
    {ANSI_CHARSET, 1252, 0},
    {EASTEUROPE_CHARSET, 1250, 1},
    {RUSSIAN_CHARSET, 1251, 2},
    {GREEK_CHARSET, 1253, 3},
    {TURKISH_CHARSET, 1254, 4},
    {HEBREW_CHARSET, 1255, 5},
    {ARABIC_CHARSET, 1256, 6},
    {BALTIC_CHARSET, 1257, 7},
    {VIETNAMESE_CHARSET, 1258, 8},
    {THAI_CHARSET, 874, 16},
    {SHIFTJIS_CHARSET, 932, 17},
    {GB2312_CHARSET, 936, 18},
    {HANGUL_CHARSET, 949, 19},
    {CHINESEBIG5_CHARSET, 950, 20},
    {JOHAB_CHARSET, 1361, 21},
}};

template <typename Test>
const CharSet* FindCharSet(Test test) {
    const auto found = std::find_if(CharSets.begin(), CharSets.end(), test);
    return found == CharSets.end() ? nullptr : &*found;
}

BYTE CharSetOf(UINT codePage) {
    const CharSet* found = FindCharSet([=](const CharSet& set) { return set.codePage == codePage; });
    return found ? found->charSet : DEFAULT_CHARSET;
}

} // namespace win32

using namespace win32;

BOOL TranslateCharsetInfo(DWORD* source, LPCHARSETINFO info, DWORD flags) {
    const UINT_PTR number = reinterpret_cast<UINT_PTR>(source);
    const CharSet* found = FindCharSet([=](const CharSet& set) {
        return flags == TCI_SRCCHARSET ? set.charSet == number
                                       : flags == TCI_SRCCODEPAGE && set.codePage == number;
    });
    if (!found || !info) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    *info = {};
    info->ciCharset = found->charSet;
    info->ciACP = found->codePage;
    info->fs.fsCsb[0] = DWORD{1} << found->signatureBit;
    return TRUE;
}

int GetTextCharsetInfo(HDC dc, LPFONTSIGNATURE signature, DWORD) {
    const DeviceContext* context = FindDc(dc);
    if (!context) {
        return -1;
    }
    if (signature) {
        *signature = {};
    }
    const BYTE charSet = context->font->description.lfCharSet;
    return charSet == DEFAULT_CHARSET ? CharSetOf(GetACP()) : charSet;
}
