#pragma once

// Uniform flow in a trapezoidal channel by Manning's equation, in SI units:
// Q = A R^(2/3) S^(1/2) / n. Normal depth and the depth for a velocity are found by bisection,
// which is safe because discharge and velocity both grow with depth in a trapezoid.

#include <optional>
#include <vector>

namespace hydraulics {

constexpr double kGravity = 9.81; // m/s2

struct Trapezoid {
    double bedWidth = 0;  // m
    double sideSlope = 0; // horizontal per unit vertical; 0 is a rectangle
};

// Geometry of the flow at a depth; all zero for a depth at or below zero.
double FlowArea(const Trapezoid& channel, double depth);
double WettedPerimeter(const Trapezoid& channel, double depth);
double TopWidth(const Trapezoid& channel, double depth);

// The discharge at a depth (m3/s), 0 when any input makes no flow.
double Discharge(const Trapezoid& channel, double depth, double roughness, double slope);
// Mean velocity at a depth, 0 at no depth.
double Velocity(const Trapezoid& channel, double depth, double roughness, double slope);
// V / sqrt(g A / T): below 1 the flow is subcritical.
double FroudeNumber(const Trapezoid& channel, double depth, double roughness, double slope);

// The depth of uniform flow that carries `discharge`; none for a bed that does not fall, a
// channel without width or roughness, or a discharge that is not positive.
std::optional<double> NormalDepth(const Trapezoid& channel, double discharge, double roughness,
                                  double slope);
// The depth at which the mean velocity is `velocity`; none where no depth reaches it.
std::optional<double> DepthForVelocity(const Trapezoid& channel, double velocity, double roughness,
                                       double slope);

} // namespace hydraulics
