#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/counts.h"
#include "rich_text_help.h"
#include "text/rich_text_reader.h"

using rich_text_help::Record;

TEST(RichText, TheReaderGivesTheRunsInOrder) {
    QXRICHEDITINFO* const pInfo = Record({"ab\r\nc", "d"});
    RichTextRuns(pInfo)[1].dwEffects = rich_text_effect::Italic | rich_text_effect::Underline;
    RichTextRuns(pInfo)[1].nCharSet = 128;

    std::vector<RichTextRun> runs;
    ASSERT_TRUE(ReadRichText(pInfo, runs));

    ASSERT_EQ(2U, runs.size());
    EXPECT_EQ("ab\r\nc", runs[0].text);
    EXPECT_EQ("Arial", runs[0].face);
    EXPECT_EQ(12, runs[0].nHeight);
    EXPECT_EQ(11, runs[0].nAscent);
    EXPECT_EQ(3, runs[0].nDescent);
    EXPECT_FALSE(runs[0].bBold || runs[0].bItalic || runs[0].bUnderline);
    EXPECT_EQ("d", runs[1].text);
    EXPECT_TRUE(!runs[1].bBold && runs[1].bItalic && runs[1].bUnderline);
    EXPECT_EQ(128, runs[1].nCharSet);
    CHandleKiller::Kill(pInfo);
}

TEST(RichText, ABrokenRecordIsRefused) {
    using Breaks = std::function<void(QXRICHEDITINFO&, QXRICHEDITRUN&)>;
    const std::vector<Breaks> rows = {
        [](QXRICHEDITINFO& info, QXRICHEDITRUN&) { info.cbHeader = 48; },
        [](QXRICHEDITINFO& info, QXRICHEDITRUN&) { info.nRuns = 2; },
        [](QXRICHEDITINFO& info, QXRICHEDITRUN&) { info.nRuns = 0xFFFFFFFF; },
        [](QXRICHEDITINFO&, QXRICHEDITRUN& run) { run.nHeight = -1; },
        [](QXRICHEDITINFO&, QXRICHEDITRUN& run) { run.nDescent = 32768; },
        [](QXRICHEDITINFO&, QXRICHEDITRUN& run) { std::memset(run.szFace, 'x', sizeof(run.szFace)); },
        [](QXRICHEDITINFO&, QXRICHEDITRUN& run) {
            ::GlobalFree(reinterpret_cast<HGLOBAL>(static_cast<UINT_PTR>(run.hText)));
        },
        [](QXRICHEDITINFO&, QXRICHEDITRUN& run) {
            std::memset(::GlobalLock(reinterpret_cast<HGLOBAL>(static_cast<UINT_PTR>(run.hText))), 'x', 4);
        }};
    const unsigned nBefore = platform::CountLive().globalBlocks;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        QXRICHEDITINFO* const pInfo = Record({"abc"});
        rows[i](*pInfo, RichTextRuns(pInfo)[0]);
        std::vector<RichTextRun> runs(1);
        std::string bytes = "x";

        EXPECT_FALSE(ReadRichText(pInfo, runs)) << i;
        EXPECT_FALSE(RichTextToBytes(pInfo, bytes)) << i;

        EXPECT_TRUE(runs.empty() && bytes.empty()) << i;
        CHandleKiller::Kill(pInfo);
        EXPECT_EQ(nBefore, platform::CountLive().globalBlocks) << i;
    }
}

TEST(RichText, WhatIsNoBlockOrTooShortAOneIsRefused) {
    std::vector<RichTextRun> runs;
    QXRICHEDITINFO local{};
    local.cbHeader = RichTextHeaderSize;
    HGLOBAL hShort = ::GlobalAlloc(GPTR, RichTextHeaderSize - 1);
    auto* pShort = static_cast<QXRICHEDITINFO*>(::GlobalLock(hShort));
    pShort->cbHeader = RichTextHeaderSize;

    EXPECT_FALSE(ReadRichText(nullptr, runs));
    EXPECT_FALSE(ReadRichText(&local, runs));
    EXPECT_FALSE(ReadRichText(pShort, runs));
    CHandleKiller::Kill(pShort);
    EXPECT_EQ(0U, ::GlobalSize(hShort));
}

TEST(RichText, TheLastHandleFreesRecordAndTexts) {
    const unsigned nBefore = platform::CountLive().globalBlocks;
    {
        const CHandle<QXRICHEDITINFO, CHandleKiller> handle(Record({"a", "b"}));
        CHandle<QXRICHEDITINFO, CHandleKiller> copy;
        copy = handle;
        EXPECT_EQ(nBefore + 3, platform::CountLive().globalBlocks);
    }
    EXPECT_EQ(nBefore, platform::CountLive().globalBlocks);
}

TEST(RichText, TheFileHoldsTheRecordAndThenTheTexts) {
    QXRICHEDITINFO* const pInfo = Record({"a\r\nb", ""});

    std::string bytes;
    ASSERT_TRUE(RichTextToBytes(pInfo, bytes));

    // 128 + 2 * 76 bytes of record, then both texts with their zeros.
    ASSERT_EQ(280U + 5 + 1, bytes.size());
    EXPECT_EQ(0, std::memcmp(bytes.data(), pInfo, 280));
    EXPECT_EQ(std::string("a\r\nb\0\0", 6), bytes.substr(280));
    CHandleKiller::Kill(pInfo);
    EXPECT_TRUE(RichTextToBytes(nullptr, bytes));
    EXPECT_EQ("", bytes);
}
