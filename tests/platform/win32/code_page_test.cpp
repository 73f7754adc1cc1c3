#include "text_stage.h"

#include <array>

namespace {

std::u16string Wide(UINT codePage, DWORD flags, const std::string& bytes) {
    std::u16string wide(32, u'?');
    const int count = MultiByteToWideChar(codePage, flags, bytes.data(), static_cast<int>(bytes.size()),
                                          wide.data(), static_cast<int>(wide.size()));
    return wide.substr(0, static_cast<size_t>(count));
}

std::string Narrow(UINT codePage, const std::u16string& wide, LPCSTR defaultChar, LPBOOL usedDefault) {
    std::string bytes(32, '!');
    const int count =
        WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()), bytes.data(),
                            static_cast<int>(bytes.size()), defaultChar, usedDefault);
    return bytes.substr(0, static_cast<size_t>(count));
}

} // namespace

TEST(CodePages, FiveMayBeTheSystems) {
    const CodePageScope whatever(1252);
    for (const UINT page : {932U, 936U, 949U, 950U, 1252U}) {
        EXPECT_TRUE(platform::SetCodePage(page));
        EXPECT_EQ(GetACP(), page);
    }
    for (const UINT page : {0U, 1U, 437U, 1250U, 65001U}) {
        EXPECT_FALSE(platform::SetCodePage(page)) << page;
    }
    EXPECT_EQ(GetACP(), 1252U);
}

TEST(CodePages, LeadBytesAreThoseOfThePage) {
    const struct {
        UINT page;
        std::array<BYTE, 4> leads;
        std::array<BYTE, 4> others;
    } rows[] = {
        {932, {0x81, 0x9F, 0xE0, 0xFC}, {0x80, 0xA0, 0xDF, 0xFD}},
        {936, {0x81, 0xA0, 0xDF, 0xFE}, {0x00, 0x7F, 0x80, 0xFF}},
        {949, {0x81, 0xA0, 0xDF, 0xFE}, {0x00, 0x7F, 0x80, 0xFF}},
        {950, {0x81, 0xA0, 0xDF, 0xFE}, {0x00, 0x7F, 0x80, 0xFF}},
    };
    for (const auto& row : rows) {
        const CodePageScope page(row.page);
        for (size_t i = 0; i < row.leads.size(); ++i) {
            EXPECT_TRUE(IsDBCSLeadByte(row.leads[i])) << row.page << ' ' << i;
            EXPECT_FALSE(IsDBCSLeadByte(row.others[i])) << row.page << ' ' << i;
        }
    }
    EXPECT_FALSE(IsDBCSLeadByte(0x81));
    EXPECT_TRUE(IsDBCSLeadByteEx(932, 0x81));
    EXPECT_FALSE(IsDBCSLeadByteEx(437, 0x81));
}

TEST(CodePages, BytesBecomeCharactersAndBack) {
    const struct {
        UINT page;
        std::string bytes;
        std::u16string wide;
    } rows[] = {
        {1252, "a\xE9\x80", u"a\u00E9\u20AC"}, {932, "a\x82\xA0\xB1\\", u"a\u3042\uFF71\\"},
        {936, "\xC4\xE3", u"\u4F60"},          {949, "\xB0\xA1", u"\uAC00"},
        {950, "\xA7\x41", u"\u4F60"},          {1251, "\xC0", u"\u0410"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Wide(row.page, MB_ERR_INVALID_CHARS, row.bytes), row.wide) << row.page;
        EXPECT_EQ(Narrow(row.page, row.wide, nullptr, nullptr), row.bytes) << row.page;
    }
}

TEST(CodePages, WhatStandsForNothingIsReplacedOrAnError) {
    const CodePageScope japanese(932);
    EXPECT_EQ(Wide(CP_ACP, 0, "\x82"), u"\uFFFD");
    EXPECT_EQ(Wide(CP_ACP, 0, "\x82\x20"), u"\uFFFD ");
    EXPECT_EQ(Wide(CP_ACP, MB_ERR_INVALID_CHARS, "\x82"), u"");
    EXPECT_EQ(GetLastError(), ERROR_NO_UNICODE_TRANSLATION);

    BOOL used = FALSE;
    EXPECT_EQ(Narrow(1252, u"a\u3042z", nullptr, &used), "a?z");
    EXPECT_TRUE(used);
    EXPECT_EQ(Narrow(1252, u"\u3042z", "_", &used), "_z");
    EXPECT_EQ(Narrow(1252, u"az", "_", &used), "az");
    EXPECT_FALSE(used);
}

TEST(CodePages, ShortBuffersAndUnknownPagesFail) {
    WCHAR wide[2] = {};
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", -1, nullptr, 0), 4);
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", 3, wide, 2), 0);
    EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
    EXPECT_EQ(MultiByteToWideChar(77, 0, "abc", 3, wide, 2), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
}

TEST(CharSets, HaveTheirCodePages) {
    const struct {
        UINT_PTR charSet;
        UINT codePage;
    } rows[] = {{ANSI_CHARSET, 1252},       {SHIFTJIS_CHARSET, 932},    {HANGUL_CHARSET, 949},
                {GB2312_CHARSET, 936},      {CHINESEBIG5_CHARSET, 950}, {RUSSIAN_CHARSET, 1251},
                {EASTEUROPE_CHARSET, 1250}, {GREEK_CHARSET, 1253},      {TURKISH_CHARSET, 1254}};
    for (const auto& row : rows) {
        CHARSETINFO info{};
        EXPECT_TRUE(TranslateCharsetInfo(reinterpret_cast<DWORD*>(row.charSet), &info, TCI_SRCCHARSET));
        EXPECT_EQ(info.ciACP, row.codePage);
        EXPECT_TRUE(
            TranslateCharsetInfo(reinterpret_cast<DWORD*>(UINT_PTR{row.codePage}), &info, TCI_SRCCODEPAGE));
        EXPECT_EQ(info.ciCharset, row.charSet);
    }
    for (const UINT_PTR charSet : {UINT_PTR{DEFAULT_CHARSET}, UINT_PTR{SYMBOL_CHARSET}, UINT_PTR{3}}) {
        CHARSETINFO info{77, 77, {}};
        EXPECT_FALSE(TranslateCharsetInfo(reinterpret_cast<DWORD*>(charSet), &info, TCI_SRCCHARSET));
        EXPECT_EQ(info.ciACP, 77U) << charSet;
    }
}

TEST(CharSets, DefaultOneIsTheSystems) {
    const TextStage stage;
    EXPECT_EQ(GetTextCharsetInfo(stage.Dc(), nullptr, 0), ANSI_CHARSET);
    const CodePageScope korean(949);
    EXPECT_EQ(GetTextCharsetInfo(stage.Dc(), nullptr, 0), HANGUL_CHARSET);
}
