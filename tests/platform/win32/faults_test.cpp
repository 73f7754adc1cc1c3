#include "platform/faults.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Asked(const char* name, int times) {
    std::string answers;
    for (int i = 0; i < times; ++i) {
        answers += platform::FaultTrips(name) ? 'x' : '.';
    }
    return answers;
}

} // namespace

TEST(Faults, TripFromTheGivenAskingOnOrOnlyThen) {
    platform::ArmFault("bitmap", false, 2);
    EXPECT_EQ(Asked("bitmap", 5), "..xxx");
    EXPECT_EQ(Asked("window", 2), "..");

    platform::ArmFault("bitmap", true, 1);
    EXPECT_EQ(Asked("bitmap", 1), ".");
    platform::ArmFault("bitmap", true, 1);
    EXPECT_EQ(Asked("bitmap", 4), ".x..");

    platform::ArmFault("bitmap", false, 0);
    platform::ClearFaults();
    EXPECT_EQ(Asked("bitmap", 2), "..");
}
