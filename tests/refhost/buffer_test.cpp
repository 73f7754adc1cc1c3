#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "refhost_help.h"

using namespace refhost_help;

namespace {

HBUF32 Alloc(int nBits, int nWidth, int nHeight) {
    HBUF32 hBuf = 0;
    buf32Alloc(&hBuf, nBits, nWidth, nHeight, 1, nullptr);
    return hBuf;
}

} // namespace

TEST(Buffer, TellsItsSizeAndBytesPerPixel) {
    const CBufferPtr buffer(Alloc(24, 5, 7));
    int size[3] = {};

    EXPECT_EQ(1, buf32GetWHU(buffer.Get(), &size[0], &size[1], &size[2]));

    EXPECT_EQ(5, size[0]);
    EXPECT_EQ(7, size[1]);
    EXPECT_EQ(3, size[2]);
    EXPECT_EQ(1, buf32GetWHU(buffer.Get(), nullptr, nullptr, nullptr));
}

TEST(Buffer, FillOneClearsAndTheReservedValueIsZero) {
    int nReserved = 77;
    HBUF32 hBuf = 0;

    ASSERT_EQ(1, buf32Alloc(&hBuf, 8, 300, 2, 1, &nReserved));

    const CBufferPtr buffer(hBuf);
    const std::uint8_t* pPixels = static_cast<const std::uint8_t*>(buf32Lock(hBuf, BufReadWrite));
    EXPECT_EQ(0, nReserved);
    EXPECT_EQ(std::vector<std::uint8_t>(600, 0), std::vector<std::uint8_t>(pPixels, pPixels + 600));
}

TEST(Buffer, SizesAndDepthsOutOfRangeAreRefused) {
    struct Row {
        int nBits, nWidth, nHeight, nExpected;
    };
    for (const Row& row : {Row{24, 0, 1, 0}, Row{24, 1, 0, 0}, Row{24, 32768, 1, 0}, Row{8, 1, 32768, 0},
                           Row{16, 4, 4, 0}, Row{8, 32767, 1, 1}, Row{32, 1, 32767, 1}, Row{8, -3, 4, 0}}) {
        HBUF32 hBuf = 99;
        EXPECT_EQ(row.nExpected, buf32Alloc(&hBuf, row.nBits, row.nWidth, row.nHeight, 0, nullptr))
            << row.nBits << " " << row.nWidth << " " << row.nHeight;
        EXPECT_EQ(row.nExpected != 0, hBuf != 0);
        buf32Free(hBuf);
    }
    EXPECT_EQ(0, buf32Alloc(nullptr, 8, 1, 1, 0, nullptr));
}

TEST(Buffer, AllTogetherTakeAGibibyteAtMostAndNoneMorePixelsThanAPicture) {
    EXPECT_EQ(0, Alloc(8, 32767, 4097));      // 2^27 pixels and 28,671
    CBufferPtr first(Alloc(24, 16384, 8192)); // 3/8 of a gibibyte
    const CBufferPtr second(Alloc(24, 16384, 8192));
    EXPECT_EQ(0, Alloc(24, 16384, 8192));
    first.Reset();
    EXPECT_TRUE(second && CBufferPtr(Alloc(24, 16384, 8192)));
}

TEST(Buffer, AFreedHandleFailsEverywhereAlsoWhenItsSlotIsUsedAgain) {
    const HBUF32 hStale = Alloc(8, 2, 2);
    buf32Free(hStale);
    const CBufferPtr other(Alloc(8, 2, 2));

    for (const HBUF32 hBuf : {hStale, 0, 1, -1, 0x7FFFFFFF, static_cast<HBUF32>(0x80000000)}) {
        EXPECT_EQ(nullptr, buf32Lock(hBuf, BufReadWrite)) << hBuf;
        EXPECT_EQ(0, buf32Unlock(hBuf));
        EXPECT_EQ(0, buf32Free(hBuf));
        EXPECT_EQ(0, buf32DupBuf(hBuf));
        EXPECT_EQ(0, buf32GetWHU(hBuf, nullptr, nullptr, nullptr));
    }
}

TEST(Buffer, UnlocksAreCountedAgainstLocks) {
    const CBufferPtr buffer(Alloc(8, 1, 1));
    buf32Lock(buffer.Get(), BufReadWrite);
    buf32Lock(buffer.Get(), BufReadWrite);

    EXPECT_EQ(1, buf32Unlock(buffer.Get()));
    EXPECT_EQ(1, buf32Unlock(buffer.Get()));
    EXPECT_EQ(0, buf32Unlock(buffer.Get()));
}

TEST(Buffer, ACopyHasPixelsOfItsOwn) {
    const CBufferPtr first(Image(2, 1, {0x112233, 0x445566}));
    const CBufferPtr second(buf32DupBuf(first.Get()));

    buffer_host::Look(first.Get()).pixels[0] = 0xFF;

    EXPECT_EQ(0, std::memcmp(buffer_host::Look(second.Get()).pixels, "\x33\x22\x11\x66\x55\x44", 6));
}

TEST(Buffer, TheCountFollowsAThousandBuffersAndNoFailedOne) {
    const std::size_t nBefore = buffer_host::BufferCount();
    std::vector<HBUF32> handles;
    for (int i = 0; i < 1000; ++i) {
        handles.push_back(Alloc(8, 1, 1));
    }
    {
        const CFaultScope fault("buffer");
        EXPECT_EQ(0, Alloc(8, 1, 1));
        EXPECT_EQ(0, buf32DupBuf(handles[0]));
    }
    EXPECT_EQ(nBefore + 1000, buffer_host::BufferCount());
    for (const HBUF32 hBuf : handles) {
        EXPECT_EQ(1, buf32Free(hBuf));
    }
    EXPECT_EQ(nBefore, buffer_host::BufferCount());
}
