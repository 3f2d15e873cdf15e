#pragma once

// The spreadsheet of a reach's cross-sections: one row a section, one typed column for each
// thing the engineer enters, and two read-only columns with the depth and level worked out
// from them. It shows a reach and reads back what the user changed.

#include "Reach.h"

#include "spreadsheet/SpreadSheetORVA.h"

class SectionSheet : public CSpreadSheetORVA {
public:
    enum Column {
        kSectionNumber,
        kChainage,
        kInvert,
        kBedWidth,
        kSideSlope,
        kBarrels,
        kLining,
        kLined,
        kSurveyed,
        kColour,
        kInflow,
        kDepth,
        kLevel,
        kCalculate, // a button that opens the flow calculator on the row's section
        kColumns
    };

    // Lays out and types the columns of an empty sheet; call once its window exists.
    void Configure();
    // Rows for every section of the reach, with the worked-out columns from its profile.
    void Show(const Reach& reach);
    void ShowProfile(const Reach& reach);
    // The sections as the sheet holds them now; the reach gives what the sheet does not hold.
    Reach Read(const Reach& reach) const;

    static int RowOf(size_t section) { return int(section) + 1; }

private:
    void MakeRow(int row);
    CrossSection ReadRow(int row, const CrossSection& before) const;
};
