// The reach's water surface: at each section, the normal depth of the discharge that has
// gathered there over the local bed slope.

#include "Reach.h"

#include <algorithm>

const std::vector<Lining>& Linings() {
    static const std::vector<Lining> linings = {
        {"Concrete, trowelled", 0.013},
        {"Concrete, rough", 0.016},
        {"Earth, clean", 0.022},
        {"Gravel", 0.025},
        {"Grass", 0.030},
        {"Riprap", 0.035},
        {"Weeds and brush", 0.050},
    };
    return linings;
}

double Inflow::PeakRate() const {
    if (!isCurve)
        return constant;
    double peak = 0;
    for (const auto& [hours, rate] : curve)
        peak = std::max(peak, rate);
    return peak;
}

Inflow Inflow::Hydrograph(double peak) {
    return {true, 0, {{0.0, 0.0}, {2.0, peak > 0 ? peak : 1.0}, {6.0, 0.0}}};
}

double CrossSection::Roughness() const {
    const auto& linings = Linings();
    return lining >= 0 && size_t(lining) < linings.size() ? linings[size_t(lining)].roughness
                                                          : linings.front().roughness;
}

double CrossSection::Discharge(double depth, double slope) const {
    return barrels > 0 ? barrels * hydraulics::Discharge(Shape(), depth, Roughness(), slope) : 0;
}

std::optional<double> CrossSection::NormalDepth(double discharge, double slope) const {
    if (barrels < 1)
        return std::nullopt;
    return hydraulics::NormalDepth(Shape(), discharge / barrels, Roughness(), slope);
}

double Reach::BedSlope(size_t section) const {
    if (sections.size() < 2 || section >= sections.size())
        return 0;
    const size_t from = section + 1 < sections.size() ? section : section - 1;
    const CrossSection& up = sections[from];
    const CrossSection& down = sections[from + 1];
    const double run = down.chainage - up.chainage;
    return run > 0 ? (up.invert - down.invert) / run : 0;
}

double Reach::DischargeAt(size_t section) const {
    double total = discharge;
    for (size_t i = 0; i <= section && i < sections.size(); ++i)
        total += sections[i].inflow.PeakRate();
    return total;
}

std::vector<ProfilePoint> Reach::Profile() const {
    std::vector<ProfilePoint> profile;
    for (size_t i = 0; i < sections.size(); ++i) {
        const CrossSection& section = sections[i];
        ProfilePoint point{
            section.chainage, section.invert, DischargeAt(i), BedSlope(i), {}, {}, 0};
        point.depth = section.NormalDepth(point.discharge, point.slope);
        if (point.depth) {
            point.level = section.invert + *point.depth;
            point.velocity = hydraulics::Velocity(section.Shape(), *point.depth,
                                                  section.Roughness(), point.slope);
        }
        profile.push_back(point);
    }
    return profile;
}
