#pragma once

// A reach of channel: its design discharge and its cross-sections in order of chainage, with
// what the engineer knows of each (lining, survey, the colour it is drawn in, an inflow that
// joins there). The profile of the water surface is worked out from it on demand.

#include "Hydraulics.h"

#include <string>
#include <utility>
#include <vector>

// The linings the roughness column offers, with Manning's n for each.
struct Lining {
    const char* name;
    double roughness;
};
const std::vector<Lining>& Linings();

struct CalendarDate {
    int year = 2000;
    int month = 1;
    int day = 1;
    bool operator==(const CalendarDate&) const = default;
};

// An inflow that joins the reach at a section: a constant rate, or a hydrograph of
// (hours, m3/s) points, whose peak the steady profile takes.
struct Inflow {
    bool isCurve = false;
    double constant = 0;
    std::vector<std::pair<double, double>> curve;

    double PeakRate() const;
    // A hydrograph to start from, rising to `peak` (1 m3/s when that is not positive) and
    // falling back.
    static Inflow Hydrograph(double peak);
    bool operator==(const Inflow&) const = default;
};

struct CrossSection {
    double chainage = 0;  // m along the reach
    double invert = 0;    // bed level, m
    double bedWidth = 1;  // m
    double sideSlope = 1; // horizontal per unit vertical
    int barrels = 1;      // identical channels side by side, as the cells of a box culvert
    int lining = 0;       // index into Linings()
    CalendarDate lined;
    bool surveyed = false;
    unsigned long colour = 0; // red | green << 8 | blue << 16
    Inflow inflow;

    double Roughness() const;
    // The shape of one barrel.
    hydraulics::Trapezoid Shape() const { return {bedWidth, sideSlope}; }
    // The flow of all barrels together at a depth, and the depth at which they carry a
    // discharge, each barrel taking an equal share.
    double Discharge(double depth, double slope) const;
    std::optional<double> NormalDepth(double discharge, double slope) const;
    bool operator==(const CrossSection&) const = default;
};

// The water surface at one section, with the flow that makes it. `level` is absent where the
// bed does not fall towards the next section, since uniform flow has no depth there.
struct ProfilePoint {
    double chainage;
    double invert;
    double discharge;
    double slope;
    std::optional<double> depth;
    std::optional<double> level;
    double velocity;
};

class Reach {
public:
    std::string name;
    double discharge = 1; // m3/s entering at the first section
    std::vector<CrossSection> sections;

    // The bed slope at a section: towards the next section, the last one looking back.
    double BedSlope(size_t section) const;
    // The discharge past a section: the upstream flow and every inflow down to it.
    double DischargeAt(size_t section) const;
    std::vector<ProfilePoint> Profile() const;
};
