#include "desk/desk.h"

#include <gtest/gtest.h>

extern int g_nAllocationsLeft;

TEST(Desk, StartsOrTellsThatItCannotWhicheverAllocationFails) {
    for (int nAllocation = 400; nAllocation >= 0; --nAllocation) {
        g_nAllocationsLeft = nAllocation;
        try {
            CDesk desk;
            const bool bStarted = desk.CreateView(nullptr) && desk.NewPage(10, 10, 1.0);
            EXPECT_EQ(bStarted || nAllocation == 400, desk.View() && desk.Document()) << nAllocation;
        } catch (const std::bad_alloc&) {}
    }
}
