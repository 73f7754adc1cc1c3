#include "memory_shortage.h"

#include <afxcoll.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <stdexcept>

namespace {

class CShape : public CObject {
    DECLARE_DYNAMIC(CShape)
};

class CCircle : public CShape {
    DECLARE_DYNCREATE(CCircle)

    int m_nRadius = 7;
};

class CRefuser : public CObject {
    DECLARE_DYNCREATE(CRefuser)

    CRefuser() { throw std::runtime_error("no"); }
};

class CStored : public CObject {
    DECLARE_SERIAL(CStored)
};

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CCircle, CShape)
IMPLEMENT_DYNCREATE(CRefuser, CObject)
IMPLEMENT_SERIAL(CStored, CObject, 3)

// A class whose first operation of its own shows where the slots after CObject's begin.
class CSlots : public CObject {
  public:
    virtual int First() { return 1; }
};

// The slot number in a pointer to a virtual member, as the platform's calling convention stores it.
template <class MEMBER>
std::size_t SlotOf(MEMBER member) {
    std::size_t words[2];
    static_assert(sizeof(member) == sizeof(words));
    std::memcpy(words, &member, sizeof(words));
    return (words[0] - 1) / sizeof(void*);
}

} // namespace

TEST(RuntimeClass, ObjectIsKindOfItsClassAndBasesOnly) {
    const CCircle circle;

    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CCircle)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CStored)));
    EXPECT_FALSE(CShape().IsKindOf(RUNTIME_CLASS(CCircle)));
}

TEST(RuntimeClass, RecordCreatesAnObjectOfItsClass) {
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CCircle)->CreateObject());

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetRuntimeClass(), RUNTIME_CLASS(CCircle));
    EXPECT_EQ(DYNAMIC_DOWNCAST(CCircle, made.get())->m_nRadius, 7);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CStored, made.get()), nullptr);
}

TEST(RuntimeClass, NothingIsCreatedWithoutAConstructorOrByOneThatThrows) {
    EXPECT_EQ(RUNTIME_CLASS(CShape)->CreateObject(), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CRefuser)->CreateObject(), nullptr);
}

TEST(RuntimeClass, NewAnswersNullWhenMemoryIsShort) {
    const testing_memory::CShortageScope shortage;

    EXPECT_EQ(new CCircle, nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CCircle)->CreateObject(), nullptr);
}

TEST(RuntimeClass, OnlySerialClassesAreFoundByName) {
    CRuntimeClass* const stored = CRuntimeClass::FromName("CStored");

    ASSERT_EQ(stored, RUNTIME_CLASS(CStored));
    EXPECT_EQ(stored->m_wSchema, 3U);
    EXPECT_EQ(CRuntimeClass::FromName("CCircle"), nullptr);
}

TEST(RuntimeClass, OwnOperationsFollowTheFiveOfCObject) {
    // A virtual destructor takes two slots of the table.
    EXPECT_EQ(SlotOf(&CObject::GetRuntimeClass), 0U);
    EXPECT_EQ(SlotOf(&CObject::Serialize), 3U);
    EXPECT_EQ(SlotOf(&CObject::AssertValid), 4U);
    EXPECT_EQ(SlotOf(&CObject::Dump), 5U);
    EXPECT_EQ(SlotOf(&CSlots::First), 6U);
}
