#include "memory_shortage.h"

#include <afxtempl.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using CIntList = CList<int, int>;

std::vector<int> Contents(const CIntList& list) {
    std::vector<int> contents;
    for (POSITION pos = list.GetHeadPosition(); pos;) {
        contents.push_back(list.GetNext(pos));
    }
    return contents;
}

std::vector<int> Backward(const CIntList& list) {
    std::vector<int> contents;
    for (POSITION pos = list.GetTailPosition(); pos;) {
        contents.push_back(list.GetPrev(pos));
    }
    return contents;
}

void Fill(CIntList& list, const std::vector<int>& values) {
    for (int value : values) {
        list.AddTail(value);
    }
}

using Ints = std::vector<int>;

struct CCounted {
    CCounted() { ++s_nAlive; }
    CCounted(const CCounted&) { ++s_nAlive; }
    ~CCounted() { --s_nAlive; }
    CCounted& operator=(const CCounted&) = default;

    static inline int s_nAlive = 0;
};

} // namespace

TEST(List, EndsGrowOutwardAndComeBackInOrder) {
    CIntList list;
    list.AddTail(2);
    list.AddHead(1);
    list.AddTail(3);
    EXPECT_EQ(Contents(list), (Ints{1, 2, 3}));
    EXPECT_EQ(Backward(list), (Ints{3, 2, 1}));

    EXPECT_EQ(list.RemoveTail(), 3);
    EXPECT_EQ(list.RemoveHead(), 1);
    EXPECT_EQ(list.RemoveHead(), 2);
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.GetTailPosition(), nullptr);
}

TEST(List, InsertionsGoBesideTheirPosition) {
    CIntList list;
    const POSITION middle = list.AddTail(5);

    list.InsertBefore(middle, 4);
    list.InsertAfter(middle, 6);
    list.InsertBefore(nullptr, 3);
    list.InsertAfter(nullptr, 7);

    EXPECT_EQ(Contents(list), (Ints{3, 4, 5, 6, 7}));
    EXPECT_EQ(Backward(list), (Ints{7, 6, 5, 4, 3}));
}

TEST(List, PositionsOutliveTheRemovalOfOthers) {
    CIntList list;
    Fill(list, {0, 1, 2, 3, 4});
    const POSITION third = list.FindIndex(2);

    list.RemoveAt(list.FindIndex(1));
    list.RemoveAt(list.FindIndex(2));
    list.RemoveHead();
    list.AddTail(9);

    EXPECT_EQ(list.GetAt(third), 2);
    EXPECT_EQ(Contents(list), (Ints{2, 4, 9}));
}

TEST(List, FindLooksBehindTheStartAndIndexFromIt) {
    CIntList list;
    Fill(list, {8, 5, 8});
    const POSITION first = list.GetHeadPosition();
    const POSITION last = list.GetTailPosition();

    EXPECT_EQ(list.Find(8), first);
    EXPECT_EQ(list.Find(8, first), last);
    EXPECT_EQ(list.Find(8, last), nullptr);
    EXPECT_EQ(list.FindIndex(2), last);
    EXPECT_EQ(list.FindIndex(3), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(List, AnotherListIsAddedInItsOrder) {
    CIntList list;
    CIntList other;
    Fill(list, {3});
    Fill(other, {1, 2});

    list.AddHead(&other);
    list.AddTail(&other);
    list.AddTail(&list);

    EXPECT_EQ(Contents(list), (Ints{1, 2, 3, 1, 2, 1, 2, 3, 1, 2}));
    EXPECT_EQ(Contents(other), (Ints{1, 2}));
}

TEST(List, OneBlockServesTenElementsAndRemovedPlacesAreUsedAgain) {
    CIntList list;
    const int nBefore = testing_memory::CountAllocations();

    for (int n = 0; n < 10; ++n) {
        list.AddTail(n);
    }
    for (int n = 10; n < 50; ++n) {
        list.RemoveHead();
        list.AddTail(n);
    }
    EXPECT_EQ(testing_memory::CountAllocations() - nBefore, 1);
    list.AddTail(50);
    EXPECT_EQ(testing_memory::CountAllocations() - nBefore, 2);
    EXPECT_EQ(list.GetHead(), 40);
}

TEST(List, ShortMemoryLeavesTheListAsItWas) {
    CIntList list(2);
    Fill(list, {1, 2});
    CIntList other;
    Fill(other, {7});

    {
        const testing_memory::CShortageScope shortage;
        EXPECT_EQ(list.AddTail(3), nullptr);
        EXPECT_EQ(list.AddHead(3), nullptr);
        EXPECT_EQ(list.InsertAfter(list.GetHeadPosition(), 3), nullptr);
        list.AddTail(&other);
    }

    EXPECT_EQ(Contents(list), (Ints{1, 2}));
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_NE(list.AddTail(3), nullptr);
}

TEST(List, EveryElementIsDestroyedOnce) {
    {
        CList<CCounted> list(3);
        for (int n = 0; n < 7; ++n) {
            list.AddTail(CCounted());
        }
        EXPECT_EQ(CCounted::s_nAlive, 7);
        list.RemoveHead();
        list.RemoveAt(list.FindIndex(2));
        EXPECT_EQ(CCounted::s_nAlive, 5);
    }
    EXPECT_EQ(CCounted::s_nAlive, 0);
}
