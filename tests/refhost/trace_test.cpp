#include <gtest/gtest.h>

#include "desk/desk.h"
#include "platform/observer.h"
#include "refhost_help.h"
#include "trace/trace.h"

using namespace refhost_help;

namespace {

constexpr GUID Iface = {0x730B7788, 0x26FB, 0x45B7, {0xAB, 0xE9, 0x09, 0x48, 0xAA, 0x47, 0x9A, 0x32}};

class Trace : public ::testing::Test {
  protected:
    Trace() {
        trace::Take();
        trace::TurnOn(true);
    }
    ~Trace() override {
        trace::TurnOn(false);
        trace::Take();
    }
};

} // namespace

TEST_F(Trace, HoldsRowsInOrderUntilTheyAreTaken) {
    trace::Call("doc", "First", {1LL});
    {
        const trace::CQuietScope outer;
        { const trace::CQuietScope inner; }
        trace::Call("doc", "Hidden");
    }
    trace::BusCall("edit:12", Iface, 3, {2.5, "text"});
    trace::TurnOn(false);
    trace::Call("doc", "AfterTheEnd");

    const std::vector<trace::Row> rows = trace::Take();
    ASSERT_EQ(2u, rows.size());
    EXPECT_EQ("First", rows[0].op);
    EXPECT_EQ("", rows[0].iface);
    EXPECT_EQ("{730B7788-26FB-45B7-ABE9-0948AA479A32}", rows[1].iface);
    EXPECT_EQ("3", rows[1].op);
    EXPECT_EQ("text", std::get<std::string>(rows[1].args[1]));
    EXPECT_TRUE(trace::Take().empty());
    EXPECT_EQ(nullptr, platform::GetObserver());
}

TEST_F(Trace, ANodeIsKeptByItsIdAndOneThatIsNotThereIsZero) {
    CVorDoc doc(10, 10);
    CImgNode* pNode = new CImgNode(&doc);
    const std::uint32_t nId = pNode->m_nId;
    trace::Call("doc", "Op", {trace::Node(pNode), trace::Node(nullptr)});
    delete pNode;
    trace::Call("doc", "Late", {trace::Node(pNode)});

    const std::vector<trace::Row> rows = trace::Take();

    EXPECT_EQ(0u, std::get<trace::Node>(rows[1].args[0]).id);
    EXPECT_EQ(nId, std::get<trace::Node>(rows[0].args[0]).id);
    EXPECT_EQ(0u, std::get<trace::Node>(rows[0].args[1]).id);
}

TEST_F(Trace, TheViewAndTheWaitCursorReportThroughTheObserver) {
    const RECT rect{1, 2, 3, 4};
    CDesk desk;
    ASSERT_TRUE(desk.CreateView(nullptr));
    platform::IObserver* pObserver = platform::GetObserver();
    ASSERT_NE(nullptr, pObserver);

    pObserver->OnInvalidate(*desk.View(), &rect, TRUE);
    pObserver->OnInvalidate(nullptr, &rect, TRUE);
    pObserver->OnInvalidate(*desk.View(), nullptr, FALSE);
    pObserver->OnWaitCursor(1);
    pObserver->OnWaitCursor(-1);

    const std::vector<trace::Row> rows = trace::Take();
    ASSERT_EQ(4u, rows.size());
    EXPECT_EQ("view", rows[0].on);
    EXPECT_EQ("InvalidateRect", rows[0].op);
    EXPECT_EQ(3, std::get<RECT>(rows[0].args[0]).right);
    EXPECT_FALSE(std::get<trace::Pointer>(rows[1].args[0]).present);
    EXPECT_EQ("cursor", rows[2].on);
    EXPECT_EQ("BeginWaitCursor", rows[2].op);
    EXPECT_EQ("EndWaitCursor", rows[3].op);
}
