#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "bus/bus_object.h"
#include "bus/masks.h"
#include "refhost_help.h"

using namespace refhost_help;

extern int g_nAllocationsLeft;

namespace {

struct IPing {
    static constexpr GUID Id = {0x11111111, 0x2222, 0x3333, {1, 2, 3, 4, 5, 6, 7, 8}};
    virtual void Ping() = 0;
};

class CPart : public CBusObject, public IPing {
  public:
    explicit CPart(int nKind) {
        AddKind(CategoryId, nKind);
        AddInterface<IPing>(this);
    }
    void Ping() override {
        ++nPings;
        if (onPing) {
            onPing();
        }
    }
    int nPings = 0;
    std::function<void()> onPing;
};

/// Everything of the kind that a search from `seeker` finds.
std::vector<CListenerObject*> Found(CListenerObject& seeker, int nKind) {
    std::vector<CListenerObject*> found;
    seeker.m_fnSetCommunicateObjectType(CategoryId, nKind);
    for (CListenerObject* pFound = seeker.m_fnFirst(); pFound; pFound = seeker.m_fnNext()) {
        found.push_back(pFound);
    }
    return found;
}

/// Reaches every object of the kind as a broadcast does: the filter is set again after each call.
void Broadcast(CGlobalObjectManager& manager, int nKind) {
    manager.m_fnSetCommunicateObjectType(CategoryId, nKind);
    for (CListenerObject* pFound = manager.m_fnFirst(); pFound;) {
        void* pInterface = nullptr;
        pFound->QueryInterface(IPing::Id, &pInterface, nullptr);
        if (pInterface) {
            static_cast<IPing*>(pInterface)->Ping();
        }
        manager.m_fnSetCommunicateObjectType(CategoryId, nKind);
        manager.m_fnSetCommunicateObjectCurrentSearchPosAt(pFound);
        pFound = manager.m_fnNext();
    }
}

} // namespace

TEST(Listener, FindsTargetsOfTheKindInLinkOrder) {
    CListenerObject seeker;
    CPart a(5), b(6), c(5);
    for (CPart* pPart : {&a, &b, &c}) {
        seeker.m_fnAddTargetObject(pPart);
    }

    EXPECT_EQ((std::vector<CListenerObject*>{&a, &c}), Found(seeker, 5));
    EXPECT_EQ((std::vector<CListenerObject*>{&b}), Found(seeker, 6));
    seeker.m_fnSetCommunicateObjectType(EditCategoryId, 5);
    EXPECT_EQ(nullptr, seeker.m_fnFirst());
}

TEST(Listener, ALinkWithoutMemoryForItsOtherSideIsOnNeither) {
    CListenerObject seeker;
    CPart part(5);
    g_nAllocationsLeft = 1;
    seeker.m_fnAddTargetObject(&part);
    EXPECT_TRUE(Found(seeker, 5).empty());
}

TEST(Listener, ALinkMadeTwiceIsGoneAfterOneRemoval) {
    CListenerObject seeker;
    CPart part(5);
    seeker.m_fnAddTargetObject(&part);
    seeker.m_fnAddTargetObject(&part);

    seeker.m_fnRemoveTargetObject(&part);

    EXPECT_TRUE(Found(seeker, 5).empty());
}

TEST(Listener, TargetsThatLeaveOrJoinDuringASearchSkipNobody) {
    CListenerObject seeker;
    auto pFirst = std::make_unique<CPart>(5);
    CPart second(5), third(5), late(5);
    for (CPart* pPart : {pFirst.get(), &second, &third}) {
        seeker.m_fnAddTargetObject(pPart);
    }
    seeker.m_fnSetCommunicateObjectType(CategoryId, 5);
    ASSERT_EQ(pFirst.get(), seeker.m_fnFirst());

    pFirst.reset();

    EXPECT_EQ(&second, seeker.m_fnNext());
    seeker.m_fnRemoveTargetObject(&third);
    seeker.m_fnAddTargetObject(&late);
    EXPECT_EQ(&late, seeker.m_fnNext());
    EXPECT_EQ(nullptr, seeker.m_fnNext());
}

TEST(Listener, SettingTheFilterRestartsTheSearch) {
    CListenerObject seeker;
    CPart first(5), second(5);
    seeker.m_fnAddTargetObject(&first);
    seeker.m_fnAddTargetObject(&second);
    Found(seeker, 5);

    int nResult = 0;
    seeker.SetCommunicateObjectType(CategoryId, 5, &nResult);

    EXPECT_EQ(1, nResult);
    EXPECT_EQ(&first, seeker.m_fnNext());
}

TEST(Listener, ADestroyedListenerLeavesBothDirections) {
    CPart stays(5);
    {
        CPart goes(5);
        goes.m_fnAddTargetObject(&stays);
        stays.m_fnAddTargetObject(&goes);
    }
    EXPECT_TRUE(Found(stays, 5).empty());
}

TEST(Listener, TheBaseAnswersNoAndClearsItsOutputs) {
    CListenerObject object;
    int nResult = 9;
    int nExtra[2] = {9, 9};
    void* pInterface = &object;

    EXPECT_EQ(0, object.IsKindOf(CategoryId, 0, &nResult, &nExtra[0]));
    EXPECT_EQ(0, object.QueryInterface(IPing::Id, &pInterface, &nExtra[1]));
    EXPECT_EQ(0, nResult + nExtra[0] + nExtra[1]);
    EXPECT_EQ(nullptr, pInterface);
}

TEST(GlobalManager, ABroadcastWhoseCalleeSearchesTheManagerReachesEachOnce) {
    CGlobalObjectManager& manager = *CGlobalObjectManager::m_fnGetGlobalObjectManager();
    CPart a(38), b(38), c(38), other(45);
    for (CPart* pPart : {&a, &b, &c, &other}) {
        manager.m_fnAddTargetObject(pPart);
    }
    b.onPing = [&] { Found(manager, 45); };

    Broadcast(manager, 38);

    EXPECT_EQ(1, a.nPings);
    EXPECT_EQ(1, b.nPings);
    EXPECT_EQ(1, c.nPings);
    EXPECT_EQ(0, other.nPings);
}

TEST(Masks, AMaskedKindIsNotFoundButStillAnswered) {
    CListenerObject seeker;
    CPart part(5);
    seeker.m_fnAddTargetObject(&part);

    bus::MaskKind(CategoryId, 5);

    int nResult = 0;
    EXPECT_TRUE(Found(seeker, 5).empty());
    EXPECT_EQ(1, part.IsKindOf(CategoryId, 5, &nResult, nullptr));
    bus::UnmaskKind(CategoryId, 5);
    EXPECT_EQ(1u, Found(seeker, 5).size());
}

TEST(Masks, AMaskedInterfaceIsMissingFromObjectsOfThatKindOnly) {
    CPart five(5), six(6);
    bus::MaskInterface(CategoryId, 5, IPing::Id);

    void* pInterface = &five;
    EXPECT_EQ(0, five.QueryInterface(IPing::Id, &pInterface, nullptr));
    EXPECT_EQ(nullptr, pInterface);
    EXPECT_EQ(1, six.QueryInterface(IPing::Id, &pInterface, nullptr));
    bus::ClearMasks();
    EXPECT_EQ(1, five.QueryInterface(IPing::Id, &pInterface, nullptr));
    EXPECT_EQ(static_cast<IPing*>(&five), pInterface);
}
