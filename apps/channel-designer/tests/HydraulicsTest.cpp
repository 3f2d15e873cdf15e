// Manning's equation against hand-worked cases, and its inverses.

#include "Hydraulics.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace hydraulics;

namespace {

const Trapezoid kChannel{3.0, 1.5};
constexpr double kEarth = 0.022;
constexpr double kSlope = 0.003;

TEST(Hydraulics, GeometryOfTheTrapezoid) {
    // At 1 m: A = (3 + 1.5) 1 = 4.5, P = 3 + 2 sqrt(1 + 2.25) = 6.6056, T = 6.
    EXPECT_DOUBLE_EQ(FlowArea(kChannel, 1.0), 4.5);
    EXPECT_NEAR(WettedPerimeter(kChannel, 1.0), 6.605551, 1e-6);
    EXPECT_DOUBLE_EQ(TopWidth(kChannel, 1.0), 6.0);
    for (double dry : {0.0, -1.0}) {
        EXPECT_EQ(FlowArea(kChannel, dry), 0);
        EXPECT_EQ(WettedPerimeter(kChannel, dry), 0);
        EXPECT_EQ(Discharge(kChannel, dry, kEarth, kSlope), 0);
    }
}

TEST(Hydraulics, ManningDischargeByHand) {
    // R = 4.5 / 6.605551 = 0.681247; Q = 4.5 * 0.681247^(2/3) * sqrt(0.003) / 0.022.
    const double expected = 4.5 * std::pow(4.5 / 6.605551, 2.0 / 3.0) * std::sqrt(0.003) / 0.022;
    EXPECT_NEAR(Discharge(kChannel, 1.0, kEarth, kSlope), expected, 1e-4);
    EXPECT_NEAR(expected, 8.6740, 1e-3);
    // A wide rectangle: R tends to the depth.
    EXPECT_NEAR(Velocity({1000.0, 0.0}, 0.5, 0.02, 0.001),
                std::pow(0.5, 2.0 / 3.0) * std::sqrt(0.001) / 0.02, 1e-3);
}

TEST(Hydraulics, NormalDepthInvertsTheDischarge) {
    for (double q : {0.05, 1.0, 8.6740, 40.0, 400.0}) {
        const auto h = NormalDepth(kChannel, q, kEarth, kSlope);
        ASSERT_TRUE(h) << q;
        EXPECT_NEAR(Discharge(kChannel, *h, kEarth, kSlope), q, q * 1e-5) << q;
    }
    EXPECT_NEAR(*NormalDepth(kChannel, 8.6740, kEarth, kSlope), 1.0, 1e-4);
}

TEST(Hydraulics, NoUniformFlowWithoutFallWidthOrRoughness) {
    EXPECT_FALSE(NormalDepth(kChannel, 5, kEarth, 0.0));
    EXPECT_FALSE(NormalDepth(kChannel, 5, kEarth, -0.001));
    EXPECT_FALSE(NormalDepth({0.0, 1.5}, 5, kEarth, kSlope));
    EXPECT_FALSE(NormalDepth(kChannel, 5, 0.0, kSlope));
    EXPECT_FALSE(NormalDepth(kChannel, 0.0, kEarth, kSlope));
    EXPECT_FALSE(NormalDepth(kChannel, NAN, kEarth, kSlope));
    EXPECT_FALSE(NormalDepth(kChannel, INFINITY, kEarth, kSlope));
}

TEST(Hydraulics, DepthForVelocityAndItsLimit) {
    const auto h = DepthForVelocity(kChannel, 1.5, kEarth, kSlope);
    ASSERT_TRUE(h);
    EXPECT_NEAR(Velocity(kChannel, *h, kEarth, kSlope), 1.5, 1e-5);
    // A rectangle's hydraulic radius never passes half its width: no depth gives more speed.
    const Trapezoid narrow{1.0, 0.0};
    const double limit = std::pow(0.5, 2.0 / 3.0) * std::sqrt(kSlope) / kEarth;
    EXPECT_FALSE(DepthForVelocity(narrow, limit * 1.01, kEarth, kSlope));
    EXPECT_TRUE(DepthForVelocity(narrow, limit * 0.9, kEarth, kSlope));
}

TEST(Hydraulics, FroudeNumberSeparatesTheRegimes) {
    EXPECT_LT(FroudeNumber(kChannel, 1.0, kEarth, kSlope), 1.0);
    EXPECT_GT(FroudeNumber(kChannel, 0.3, 0.011, 0.05), 1.0);
}

} // namespace

#include "Reach.h"

namespace {

TEST(ReachProfile, InflowsGatherDownTheReachAndAFlatBedHasNoLevel) {
    Reach reach;
    reach.discharge = 2;
    CrossSection s;
    s.bedWidth = 2;
    s.sideSlope = 1;
    for (auto [chainage, invert] :
         {std::pair{0.0, 10.0}, {100.0, 9.8}, {200.0, 9.8}, {300.0, 9.5}}) {
        s.chainage = chainage;
        s.invert = invert;
        reach.sections.push_back(s);
    }
    reach.sections[1].inflow = {false, 0.5, {}};
    reach.sections[2].inflow = {true, 0, {{0, 0}, {3, 1.5}, {6, 0.2}}};

    EXPECT_DOUBLE_EQ(reach.DischargeAt(0), 2.0);
    EXPECT_DOUBLE_EQ(reach.DischargeAt(1), 2.5);
    EXPECT_DOUBLE_EQ(reach.DischargeAt(3), 4.0); // a hydrograph gives its peak
    EXPECT_NEAR(reach.BedSlope(0), 0.002, 1e-12);
    EXPECT_NEAR(reach.BedSlope(3), 0.003, 1e-12); // the last section looks back

    const auto profile = reach.Profile();
    ASSERT_EQ(profile.size(), 4u);
    EXPECT_FALSE(profile[1].level) << "the bed from 100 m to 200 m is flat";
    ASSERT_TRUE(profile[0].level && profile[2].level);
    EXPECT_NEAR(*profile[0].level - 10.0, *NormalDepth({2, 1}, 2.0, s.Roughness(), 0.002), 1e-12);
    EXPECT_GT(profile[2].velocity, 0);
}

TEST(ReachProfile, BarrelsShareTheFlowEqually) {
    CrossSection box;
    box.bedWidth = 1.5;
    box.sideSlope = 0;
    box.lining = 0;
    CrossSection twin = box;
    twin.barrels = 2;
    const double slope = 0.002;
    EXPECT_DOUBLE_EQ(twin.Discharge(0.8, slope), 2 * box.Discharge(0.8, slope));
    ASSERT_TRUE(twin.NormalDepth(3.0, slope));
    EXPECT_NEAR(*twin.NormalDepth(3.0, slope), *box.NormalDepth(1.5, slope), 1e-12);
    twin.barrels = 0;
    EXPECT_FALSE(twin.NormalDepth(3.0, slope));
    EXPECT_EQ(twin.Discharge(0.8, slope), 0);
}

} // namespace
