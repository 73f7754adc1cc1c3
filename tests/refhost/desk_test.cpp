#include "desk/desk.h"

#include <new>

#include <gtest/gtest.h>

#include "refhost_help.h"
#include "short_memory.h"

TEST(DeskStart, WithoutItsReceiversThereIsNoDesk) {
    for (unsigned nMade = 0; nMade < 3; ++nMade) {
        const refhost_help::CFaultScope fault("tool", true, nMade);
        EXPECT_THROW(CDesk{}, std::bad_alloc) << nMade;
    }
}

TEST(DeskPage, WithoutADocumentTheFormerPageStays) {
    CDesk desk;
    ASSERT_TRUE(desk.NewPage(10, 20, 1.0));
    const CVorDoc* pFormer = desk.Document();
    {
        const CAllocationsScope none(0);
        EXPECT_FALSE(desk.NewPage(30, 40, 1.0));
        EXPECT_FALSE(desk.CreateView(nullptr));
    }
    EXPECT_EQ(desk.Document(), pFormer);
}
