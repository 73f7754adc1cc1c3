#include "platform/counts.h"

#include <gtest/gtest.h>
#include <windows.h>

TEST(Memory, BlockKeepsItsBytesBetweenLocks) {
    const HGLOBAL block = GlobalAlloc(GHND, 16);
    EXPECT_LE(reinterpret_cast<UINT_PTR>(block), 0x7FFFFFFFU);
    char* bytes = static_cast<char*>(GlobalLock(block));
    EXPECT_EQ(bytes[15], 0);
    bytes[15] = 'x';
    GlobalUnlock(block);

    EXPECT_EQ(GlobalSize(block), 16U);
    EXPECT_EQ(static_cast<char*>(GlobalLock(block))[15], 'x');

    EXPECT_EQ(GlobalFree(block), nullptr);
    EXPECT_EQ(GlobalAlloc(GMEM_MOVEABLE, SIZE_MAX / 2), nullptr);
}

TEST(Memory, UnlockTellsWhetherLocksRemain) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 4);
    GlobalLock(block);
    GlobalLock(block);

    EXPECT_TRUE(GlobalUnlock(block));
    EXPECT_FALSE(GlobalUnlock(block));
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS);
    EXPECT_FALSE(GlobalUnlock(block));
    EXPECT_EQ(GetLastError(), ERROR_NOT_LOCKED);
    GlobalFree(block);
}

TEST(Memory, FreedBlockIsKnownAsFreed) {
    const unsigned before = platform::CountLive().globalBlocks;
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 4);
    EXPECT_EQ(platform::CountLive().globalBlocks, before + 1);
    GlobalFree(block);
    const HGLOBAL next = GlobalAlloc(GMEM_MOVEABLE, 4);

    EXPECT_EQ(GlobalLock(block), nullptr);
    EXPECT_EQ(GlobalFree(block), block);
    EXPECT_EQ(GlobalSize(block), 0U);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);

    GlobalFree(next);
    EXPECT_EQ(platform::CountLive().globalBlocks, before);
}

TEST(Memory, BlockIsFoundByWhereItsBytesStart) {
    const HGLOBAL first = GlobalAlloc(GMEM_FIXED, 4);
    const HGLOBAL second = GlobalAlloc(GMEM_MOVEABLE, 4);
    const char* bytes = static_cast<const char*>(GlobalLock(second));

    EXPECT_EQ(GlobalHandle(bytes), second);
    EXPECT_EQ(GlobalHandle(GlobalLock(first)), first);
    EXPECT_EQ(GlobalHandle(bytes + 1), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);

    GlobalFree(first);
    GlobalFree(second);
    EXPECT_EQ(GlobalHandle(nullptr), nullptr);
}
