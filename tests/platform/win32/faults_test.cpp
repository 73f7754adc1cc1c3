#include "platform/faults.h"

#include <gtest/gtest.h>

#include <string>

static std::string Asked(const char* name, int times) {
    std::string answers;
    for (int i = 0; i < times; ++i) {
        answers += platform::FaultTrips(name) ? 'x' : '.';
    }
    return answers;
}

class Faults : public testing::Test {
  protected:
    ~Faults() override { platform::ClearFaults(); }
};

TEST_F(Faults, TripFromTheGivenAskingOn) {
    platform::ArmFault("bitmap", false, 2);

    EXPECT_EQ(Asked("bitmap", 5), "..xxx");
}

TEST_F(Faults, OnceMeansThatOneAskingAlone) {
    platform::ArmFault("bitmap", true, 1);

    EXPECT_EQ(Asked("bitmap", 4), ".x..");
}

TEST_F(Faults, OtherNamesAreNotTouched) {
    platform::ArmFault("bitmap", false, 0);

    EXPECT_EQ(Asked("window", 2), "..");
}

TEST_F(Faults, ArmingAgainCountsAnew) {
    platform::ArmFault("bitmap", true, 1);
    Asked("bitmap", 1);

    platform::ArmFault("bitmap", true, 1);

    EXPECT_EQ(Asked("bitmap", 3), ".x.");
}

TEST_F(Faults, ClearedOnesAreGone) {
    platform::ArmFault("bitmap", false, 0);

    platform::ClearFaults();

    EXPECT_EQ(Asked("bitmap", 2), "..");
}
