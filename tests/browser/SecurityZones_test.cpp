#include "browser/SecurityZones.h"

#include <gtest/gtest.h>

#include <limits>

namespace velkarix {
namespace {

TEST(SecurityZones, AreNamedByTheirNumbers) {
    const std::vector<std::string> wanted = {"My Computer", "Local Intranet", "Trusted Sites",
                                             "Internet", "Restricted Sites"};
    EXPECT_EQ(SecurityZoneNames(), wanted);
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_EQ(SecurityZoneName(static_cast<double>(i)), wanted[i]);
    }
}

TEST(SecurityZones, AreUnknownByAnyOtherNumber) {
    using Limits = std::numeric_limits<double>;
    for (const double number :
         {-1.0, 5.0, 2.5, 4294967296.0, 1e300, Limits::infinity(), Limits::quiet_NaN()}) {
        EXPECT_EQ(SecurityZoneName(number), "Unknown") << number;
    }
}

}  // namespace
}  // namespace velkarix
