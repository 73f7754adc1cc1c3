#include <gtest/gtest.h>

#include "host/convert.h"
#include "host/services.h"
#include "refhost_help.h"
#include "services/services_host.h"

using namespace refhost_help;

namespace {

std::vector<std::uint8_t> BytesOf(const CBufferPtr& buffer) {
    const buffer_host::View view = buffer_host::Look(buffer.Get());
    return {view.pixels, view.pixels + view.RowBytes() * static_cast<std::size_t>(view.height)};
}

} // namespace

TEST(MergeBuf, WithoutAnExtraImageTheWorkFadesFromBlack) {
    const CBufferPtr out(Solid(0xFFFFFF, 1, 1));
    const CBufferPtr work(Image(1, 1, {0xC86433}));

    EXPECT_EQ(1, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 0, 50, 0));
    // 51 * 0.5 is 25.5 and rounds up.
    EXPECT_EQ((std::vector<std::uint8_t>{26, 50, 100}), BytesOf(out));
    EXPECT_EQ(1, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 0, 100, 0));
    EXPECT_EQ(BytesOf(work), BytesOf(out));
    EXPECT_EQ(1, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 0, 0, 0));
    EXPECT_EQ((std::vector<std::uint8_t>{0, 0, 0}), BytesOf(out));
}

TEST(MergeBuf, AnExtraImageCoversTheWorkWhereTheMaskSays) {
    const CBufferPtr out(Solid(0, 3, 1));
    const CBufferPtr work(Solid(0x000000, 3, 1));
    const CBufferPtr extra(Solid(0x0000C8, 3, 1));
    const CBufferPtr mask(Mask(3, 1, {0, 51, 255}));

    EXPECT_EQ(1, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), extra.Get(), 50, mask.Get()));

    // Blue 200 in shares of 0, 0.2 * 0.5 and 0.5.
    EXPECT_EQ((std::vector<std::uint8_t>{0, 0, 0, 20, 0, 0, 100, 0, 0}), BytesOf(out));
}

TEST(MergeBuf, BadBuffersSizesPercentagesAndTheFaultLeaveTheOutputAlone) {
    const CBufferPtr out(Solid(0x123456, 2, 1));
    const CBufferPtr work(Solid(0xFFFFFF, 2, 1));
    const CBufferPtr other(Solid(0xFFFFFF, 1, 2));
    const CBufferPtr mask(Mask(2, 1, {}));
    const std::vector<std::uint8_t> before = BytesOf(out);

    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), 0, 0, 50, 0));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(0, work.Get(), 0, 50, 0));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), other.Get(), 0, 50, 0));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), other.Get(), 50, 0));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 12345, 50, 0));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), mask.Get(), 0, 50, 0));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 0, 50, work.Get()));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 0, 101, 0));
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 0, -1, 0));
    const CFaultScope fault("merge");
    EXPECT_EQ(0, CGlobalAPI::m_fnMergeBuf(out.Get(), work.Get(), 0, 50, 0));
    EXPECT_EQ(before, BytesOf(out));
}

TEST(DefaultFont, TheNameIsCutToTheBufferAndMayBeMissing) {
    char szName[6] = "xxxxx";
    EXPECT_EQ(1, gfnGetDefaultFontNameFromQuorProd(szName, 6));
    EXPECT_STREQ("Arial", szName);

    SetDefaultFontName("Courier New");
    EXPECT_EQ(1, gfnGetDefaultFontNameFromQuorProd(szName, 4));
    EXPECT_STREQ("Cou", szName);
    EXPECT_EQ(0, gfnGetDefaultFontNameFromQuorProd(szName, 0));
    EXPECT_EQ(0, gfnGetDefaultFontNameFromQuorProd(nullptr, 6));
    SetDefaultFontName(nullptr);
    EXPECT_EQ(0, gfnGetDefaultFontNameFromQuorProd(szName, 6));
    EXPECT_STREQ("Cou", szName);
    SetDefaultFontName("Arial");
}

TEST(BitmapToBuffer, EveryDepthBecomesBlueGreenRed) {
    struct Row {
        UINT nDepth;
        std::vector<std::uint8_t> bits; ///< rows padded to 2 bytes
        std::vector<std::uint8_t> pixels;
    };
    // One pixel wide and two high: white and black, or two colours.
    const std::vector<Row> rows = {{1, {0x80, 0, 0x7F, 0}, {255, 255, 255, 0, 0, 0}},
                                   {24, {1, 2, 3, 0, 4, 5, 6, 0}, {1, 2, 3, 4, 5, 6}},
                                   {32, {1, 2, 3, 0, 4, 5, 6, 0}, {1, 2, 3, 4, 5, 6}}};
    for (const Row& row : rows) {
        HBITMAP hBitmap = ::CreateBitmap(1, 2, 1, row.nDepth, row.bits.data());
        HBUF32 hBuf = 0;

        EXPECT_EQ(1, cvt32DDBToBuf(hBitmap, &hBuf, 0)) << row.nDepth;

        const CBufferPtr buffer(hBuf);
        EXPECT_EQ(3, buffer_host::Look(hBuf).unit);
        EXPECT_EQ(row.pixels, BytesOf(buffer)) << row.nDepth;
        ::DeleteObject(hBitmap);
    }
}

TEST(BitmapToBuffer, WhatIsNoBitmapAndAMissingBufferGiveNone) {
    HPEN hPen = ::CreatePen(PS_SOLID, 1, 0);
    HBITMAP hBitmap = ::CreateBitmap(2, 2, 1, 32, nullptr);
    HBUF32 hBuf = 1;

    EXPECT_EQ(0, cvt32DDBToBuf(nullptr, &hBuf, 0));
    EXPECT_EQ(0, hBuf);
    EXPECT_EQ(0, cvt32DDBToBuf(reinterpret_cast<HBITMAP>(hPen), &hBuf, 0));
    EXPECT_EQ(0, cvt32DDBToBuf(hBitmap, nullptr, 0));
    const CFaultScope fault("buffer");
    EXPECT_EQ(0, cvt32DDBToBuf(hBitmap, &hBuf, 0));
    ::DeleteObject(hBitmap);
    ::DeleteObject(hPen);
}
