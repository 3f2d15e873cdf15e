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

TEST(Hydraulics, RatingCurveRises) {
    const auto curve = RatingCurve(kChannel, kEarth, kSlope, 2.0, 8);
    ASSERT_EQ(curve.size(), 8u);
    EXPECT_DOUBLE_EQ(curve.front().depth, 0.25);
    EXPECT_DOUBLE_EQ(curve.back().depth, 2.0);
    for (size_t i = 1; i < curve.size(); ++i)
        EXPECT_GT(curve[i].discharge, curve[i - 1].discharge);
    EXPECT_TRUE(RatingCurve(kChannel, kEarth, kSlope, 0, 8).empty());
}

} // namespace
