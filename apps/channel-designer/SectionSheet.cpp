// Typed columns of the section sheet, and the way between its cells and a reach.

#include "SectionSheet.h"

#include "cells/GridCellFltXYCrv.h"
#include "cells/GridCellTimeCtrl.h"
#include "platform/system/SysColors.h"
#include "support/FormatDouble.h"

#include <algorithm>
#include <cstdlib>

namespace {

struct ColumnLook {
    const char* heading;
    int width;
};
constexpr ColumnLook kLooks[SectionSheet::kColumns] = {
    {"Sec.", 38},           {"Chainage (m)", 84},
    {"Invert (m)", 76},     {"Bed width (m)", 88},
    {"Side slope", 70},     {"Barrels", 56},
    {"Lining", 156},        {"Lined", 86},
    {"Surveyed", 64},       {"Colour", 54},
    {"Inflow (m3/s)", 112}, {"Depth (m)", 70},
    {"Level (m)", 76},      {"", 62},
};

struct Precision {
    SectionSheet::Column column;
    int decimals;
};
constexpr Precision kPrecisions[] = {{SectionSheet::kChainage, 1},
                                     {SectionSheet::kInvert, 3},
                                     {SectionSheet::kBedWidth, 2},
                                     {SectionSheet::kSideSlope, 2}};

CString Number(double value, int decimals) {
    return xgFormatDouble(value, decimals, 0, 0);
}

double ReadNumber(const CString& text, double fallback) {
    char* end = nullptr;
    const double value = std::strtod(text.GetString(), &end);
    return end != text.GetString() ? value : fallback;
}

// The inflow cell's choices; its curve number is the section's index.
constexpr const char* kConstantChoice = "<constant>";
constexpr const char* kHydrographChoice = "<hydrograph>";
constexpr int kHydrographIndex = 1;

COleDateTime ToOleDate(const CalendarDate& date) {
    return COleDateTime(date.year, date.month, date.day, 0, 0, 0);
}

} // namespace

void SectionSheet::Configure() {
    SetColumnCount(kColumns);
    SetRowCount(1);
    SetFixedRowCount(1);
    SetFixedColumnCount(1);
    for (int col = 0; col < kColumns; ++col) {
        SetItemText(0, col, kLooks[col].heading);
        SetColumnWidth(col, kLooks[col].width);
    }
    for (const Precision& p : kPrecisions)
        SetColumnType(new EColTypeFLT(p.column, p.decimals));
    SetColumnType(new EColTypeINT(kBarrels));
    CStringArray linings;
    for (const Lining& l : Linings()) {
        CString option;
        option.Format("%s (n %.3f)", l.name, l.roughness);
        linings.Add(option);
    }
    SetColumnType(new EColTypeCBX(kLining, &linings, true, true));
    SetColumnType(new EColTypeTIM(kLined, "^", true, false, true));
    SetColumnType(new EColTypeTOG(kSurveyed, ""));
    SetColumnType(new EColTypeCOLR(kColour));
    CStringArray choices;
    choices.Add(kConstantChoice);
    choices.Add(kHydrographChoice);
    SetColumnType(new EColTypeFXY(kInflow, &choices, "0"));
    SetColumnType(new EColTypeBTN(kCalculate, "Flow..."));
    SetHandleTabKey(TRUE);
}

void SectionSheet::MakeRow(int row) {
    SetItemTextFmt(row, kSectionNumber, "%d", row);
    // The worked-out columns have no type: plain cells that the user reads but does not edit.
    for (int col : {kDepth, kLevel}) {
        SetItemState(row, col, GetItemState(row, col) | GV_STATE_READONLY);
        SetItemBkColour(row, col, GetSysColor(COLOR_BTNFACE));
    }
}

void SectionSheet::Show(const Reach& reach) {
    if (GetRowCount() != int(reach.sections.size()) + 1) {
        SetRowCount(int(reach.sections.size()) + 1);
        for (size_t i = 0; i < reach.sections.size(); ++i)
            MakeRow(RowOf(i));
    }
    for (size_t i = 0; i < reach.sections.size(); ++i) {
        const int row = RowOf(i);
        const CrossSection& s = reach.sections[i];
        SetItemText(row, kChainage, Number(s.chainage, 1));
        SetItemText(row, kInvert, Number(s.invert, 3));
        SetItemText(row, kBedWidth, Number(s.bedWidth, 2));
        SetItemText(row, kSideSlope, Number(s.sideSlope, 2));
        SetItemTextFmt(row, kBarrels, "%d", s.barrels);
        SetItemData(row, kLining, s.lining);
        const COleDateTime lined = ToOleDate(s.lined);
        SetItemText(row, kLined, FormatDateTime(&lined, kFormatDate));
        SetItemData(row, kSurveyed, s.surveyed ? 1 : 0);
        SetItemBkColour(row, kColour, COLORREF(s.colour));
        auto* inflow = static_cast<CGridCellFltXYCrv*>(GetCell(row, kInflow));
        if (s.inflow.isCurve) {
            int curve = int(i);
            inflow->SetComboSelection(kHydrographIndex);
            inflow->SetData(LPARAM(&curve));
        } else {
            double rate = s.inflow.constant;
            inflow->SetComboSelection(0);
            inflow->SetData(LPARAM(&rate));
        }
    }
    ShowProfile(reach);
}

void SectionSheet::ShowProfile(const Reach& reach) {
    const std::vector<ProfilePoint> profile = reach.Profile();
    for (size_t i = 0; i < profile.size() && RowOf(i) < GetRowCount(); ++i) {
        const ProfilePoint& p = profile[i];
        SetItemText(RowOf(i), kDepth, p.depth ? Number(*p.depth, 3) : CString("no flow"));
        SetItemText(RowOf(i), kLevel, p.level ? Number(*p.level, 3) : CString("-"));
    }
    Invalidate();
}

CrossSection SectionSheet::ReadRow(int row, const CrossSection& before) const {
    CrossSection s = before;
    s.chainage = ReadNumber(GetItemText(row, kChainage), s.chainage);
    s.invert = ReadNumber(GetItemText(row, kInvert), s.invert);
    s.bedWidth = ReadNumber(GetItemText(row, kBedWidth), s.bedWidth);
    s.sideSlope = ReadNumber(GetItemText(row, kSideSlope), s.sideSlope);
    s.barrels = std::max(1, int(ReadNumber(GetItemText(row, kBarrels), s.barrels)));
    const LPARAM lining = GetItemData(row, kLining);
    if (lining >= 0 && size_t(lining) < Linings().size())
        s.lining = int(lining);
    if (const auto* lined = reinterpret_cast<const COleDateTime*>(GetItemData(row, kLined));
        lined && lined->GetStatus() == COleDateTime::valid)
        s.lined = {lined->GetYear(), lined->GetMonth(), lined->GetDay()};
    s.surveyed = GetItemData(row, kSurveyed) != 0;
    s.colour = GetItemBkColour(row, kColour);
    const auto* inflow = static_cast<const CGridCellFltXYCrv*>(GetCell(row, kInflow));
    if (inflow->GetComboSelection() == kHydrographIndex) {
        // A hydrograph picked for a constant inflow starts from it; the user shapes it with
        // the cell's button.
        if (!s.inflow.isCurve)
            s.inflow = Inflow::Hydrograph(s.inflow.constant);
    } else if (const auto* rate = reinterpret_cast<const double*>(inflow->GetData())) {
        if (s.inflow.isCurve || *rate != s.inflow.constant)
            s.inflow = Inflow{false, std::max(0.0, *rate), {}};
    }
    return s;
}

Reach SectionSheet::Read(const Reach& reach) const {
    Reach read = reach;
    for (size_t i = 0; i < read.sections.size() && RowOf(i) < GetRowCount(); ++i)
        read.sections[i] = ReadRow(RowOf(i), reach.sections[i]);
    return read;
}
