#include "memory_shortage.h"

#include <afxtempl.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using CIntList = CList<int, int>;

std::vector<int> Contents(const CIntList& list) {
    std::vector<int> contents;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;) {
        contents.push_back(list.GetNext(pos));
    }
    return contents;
}

std::vector<int> Backward(const CIntList& list) {
    std::vector<int> contents;
    for (POSITION pos = list.GetTailPosition(); pos != nullptr;) {
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

// A list that looks elements up its own way, over the nodes it inherits.
class CEvenFinder : public CPtrList {
  public:
    int CountBehindHead() const {
        int n = 0;
        for (const CNode* pNode = m_pNodeHead->pNext; pNode != nullptr; pNode = pNode->pNext) {
            ++n;
        }
        return n;
    }
};

struct CCounted {
    CCounted() { ++s_nAlive; }
    CCounted(const CCounted&) { ++s_nAlive; }
    ~CCounted() { --s_nAlive; }
    CCounted& operator=(const CCounted&) = default;

    static inline int s_nAlive = 0;
};

} // namespace

TEST(List, StartsEmpty) {
    const CIntList list;

    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.GetTailPosition(), nullptr);
}

TEST(List, HeadAndTailGrowOutward) {
    CIntList list;

    list.AddTail(2);
    list.AddHead(1);
    list.AddTail(3);

    EXPECT_EQ(Contents(list), (Ints{1, 2, 3}));
    EXPECT_EQ(Backward(list), (Ints{3, 2, 1}));
    EXPECT_EQ(list.GetHead(), 1);
    EXPECT_EQ(list.GetTail(), 3);
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

TEST(List, RemovedEndsComeBackInOrder) {
    CIntList list;
    Fill(list, {1, 2, 3});

    EXPECT_EQ(list.RemoveTail(), 3);
    EXPECT_EQ(list.RemoveHead(), 1);
    EXPECT_EQ(list.RemoveHead(), 2);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetTailPosition(), nullptr);
}

TEST(List, FindLooksBehindTheStart) {
    CIntList list;
    Fill(list, {8, 5, 8});
    const POSITION first = list.GetHeadPosition();

    EXPECT_EQ(list.Find(8), first);
    EXPECT_EQ(list.Find(8, first), list.GetTailPosition());
    EXPECT_EQ(list.Find(8, list.GetTailPosition()), nullptr);
    EXPECT_EQ(list.Find(6), nullptr);
}

TEST(List, IndexOutsideFindsNothing) {
    CIntList list;
    Fill(list, {1, 2});

    EXPECT_EQ(list.FindIndex(1), list.GetTailPosition());
    EXPECT_EQ(list.FindIndex(2), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(List, ElementsChangeInPlace) {
    CIntList list;
    Fill(list, {1, 2, 3});

    list.SetAt(list.FindIndex(1), 20);
    list.GetHead() += 9;
    for (POSITION pos = list.GetTailPosition(); pos != nullptr;) {
        list.GetPrev(pos) += 1;
    }

    EXPECT_EQ(Contents(list), (Ints{11, 21, 4}));
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

TEST(List, OneBlockServesTenElements) {
    CIntList list;
    const int nBefore = testing_memory::CountAllocations();

    for (int n = 0; n < 10; ++n) {
        list.AddTail(n);
    }
    EXPECT_EQ(testing_memory::CountAllocations() - nBefore, 1);
    list.AddTail(10);
    EXPECT_EQ(testing_memory::CountAllocations() - nBefore, 2);
}

TEST(List, RemovedPlacesAreUsedAgain) {
    CIntList list(2);
    Fill(list, {1, 2});
    const int nBefore = testing_memory::CountAllocations();

    for (int n = 0; n < 50; ++n) {
        list.RemoveHead();
        list.AddTail(n);
    }

    EXPECT_EQ(testing_memory::CountAllocations(), nBefore);
    EXPECT_EQ(Contents(list), (Ints{48, 49}));
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

TEST(PtrList, DerivedListSeesTheNodes) {
    int values[3] = {};
    CEvenFinder list;
    for (int& value : values) {
        list.AddTail(&value);
    }

    EXPECT_EQ(list.CountBehindHead(), 2);
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CPtrList)));
}

TEST(TypedPtrList, ElementsHaveTheirType) {
    int a = 1;
    int b = 2;
    CTypedPtrList<CPtrList, int*> list;
    list.AddTail(&a);
    list.AddHead(&b);

    POSITION pos = list.GetHeadPosition();
    EXPECT_EQ(*list.GetNext(pos), 2);
    EXPECT_EQ(*list.GetAt(pos), 1);
    EXPECT_EQ(list.Find(&a), pos);
    EXPECT_EQ(list.RemoveTail(), &a);
}

TEST(ObList, HoldsObjectsAndIsCreatedByItsRecord) {
    CObject* const made = RUNTIME_CLASS(CObList)->CreateObject();
    CObList* const list = DYNAMIC_DOWNCAST(CObList, made);
    ASSERT_NE(list, nullptr);
    CPtrList element;

    list->AddTail(&element);

    EXPECT_EQ(list->GetHead()->GetRuntimeClass(), RUNTIME_CLASS(CPtrList));
    delete made;
}
