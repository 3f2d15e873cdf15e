#pragma once

// An open reach: its data, where it came from, its recovery copy in the temporary directory,
// and the plots that show it. The reach window owns it; the plots refer to it by pointer and
// are closed with it, and the document finds them again by identifier, since a user may close
// a plot on its own.

#include "Reach.h"

#include "plot/Plot.h"

#include <string>

class SectionSheet;

// The bit of the plots' update set that says "a reach changed"; the data is its document.
constexpr int kReachChangedBit = 30;

class ReachDocument {
public:
    ReachDocument() = default;
    ReachDocument(const ReachDocument&) = delete;
    ReachDocument& operator=(const ReachDocument&) = delete;
    // A reach closed as it should be needs no recovery copy.
    ~ReachDocument();

    Reach reach;
    std::string path;
    std::string recoveryPath; // a copy after each change, for when the program dies
    SectionSheet* sheet = nullptr;
    int profilePlotId = 0;
    int ratingPlotId = 0;

    // After the reach changed: the sheet's worked-out columns, the recovery copy, and every
    // plot that shows the reach.
    void Changed();
    // A new bed level for one section, as a dragged point of the long profile gives it.
    void SetInvert(size_t section, double invert);
    // The plots of this document that are still open.
    EPlot* ProfilePlot() const;
    EPlot* RatingPlot() const;
    void ClosePlots();
};
