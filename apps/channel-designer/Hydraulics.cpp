// Manning's equation for a trapezoidal channel, and its inverses by bisection.

#include "Hydraulics.h"

#include <cmath>
#include <functional>

namespace hydraulics {

namespace {

constexpr double kDepthTolerance = 1e-7; // m
constexpr double kLargestDepth = 1000.0; // m: no channel of ours is deeper

bool Flows(const Trapezoid& channel, double roughness, double slope) {
    return channel.bedWidth > 0 && channel.sideSlope >= 0 && roughness > 0 && slope > 0 &&
           std::isfinite(channel.bedWidth + channel.sideSlope + roughness + slope);
}

// The depth where a quantity that grows with depth reaches `target`.
std::optional<double> SolveRising(const std::function<double(double)>& quantity, double target) {
    if (!(target > 0) || !std::isfinite(target))
        return std::nullopt;
    double low = 0, high = 1;
    while (quantity(high) < target) {
        high *= 2;
        if (high > kLargestDepth)
            return std::nullopt;
    }
    while (high - low > kDepthTolerance) {
        const double middle = 0.5 * (low + high);
        (quantity(middle) < target ? low : high) = middle;
    }
    return 0.5 * (low + high);
}

} // namespace

double FlowArea(const Trapezoid& channel, double depth) {
    return depth > 0 ? depth * (channel.bedWidth + channel.sideSlope * depth) : 0;
}

double WettedPerimeter(const Trapezoid& channel, double depth) {
    return depth > 0
               ? channel.bedWidth + 2 * depth * std::sqrt(1 + channel.sideSlope * channel.sideSlope)
               : 0;
}

double TopWidth(const Trapezoid& channel, double depth) {
    return depth > 0 ? channel.bedWidth + 2 * channel.sideSlope * depth : 0;
}

double Velocity(const Trapezoid& channel, double depth, double roughness, double slope) {
    if (!Flows(channel, roughness, slope) || !(depth > 0))
        return 0;
    const double radius = FlowArea(channel, depth) / WettedPerimeter(channel, depth);
    return std::pow(radius, 2.0 / 3.0) * std::sqrt(slope) / roughness;
}

double Discharge(const Trapezoid& channel, double depth, double roughness, double slope) {
    return FlowArea(channel, depth) * Velocity(channel, depth, roughness, slope);
}

double FroudeNumber(const Trapezoid& channel, double depth, double roughness, double slope) {
    const double area = FlowArea(channel, depth);
    if (!(area > 0))
        return 0;
    return Velocity(channel, depth, roughness, slope) /
           std::sqrt(kGravity * area / TopWidth(channel, depth));
}

std::optional<double> NormalDepth(const Trapezoid& channel, double discharge, double roughness,
                                  double slope) {
    if (!Flows(channel, roughness, slope))
        return std::nullopt;
    return SolveRising([&](double h) { return Discharge(channel, h, roughness, slope); },
                       discharge);
}

std::optional<double> DepthForVelocity(const Trapezoid& channel, double velocity, double roughness,
                                       double slope) {
    if (!Flows(channel, roughness, slope))
        return std::nullopt;
    // The hydraulic radius of a trapezoid grows with depth, but only towards a limit when the
    // sides are steep: a velocity beyond that limit is reached at no depth.
    return SolveRising([&](double h) { return Velocity(channel, h, roughness, slope); }, velocity);
}

} // namespace hydraulics
