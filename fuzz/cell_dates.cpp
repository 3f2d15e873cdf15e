// Feeds random texts to the date, integer, floating point and curve cells under one of several
// regional settings. Whatever a cell keeps must read back as itself: a date cell's value shows
// as a text that parses to the same moment, and a number cell's text is a fixed point of its
// own normalising. A curve cell's text never touches its curve or data set.

#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellFltXYCrv.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/GridCellTimeCtrl.h"
#include "platform/system/UserSettings.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

namespace {

constexpr double kOneSecond = 1.0 / (24.0 * 60.0 * 60.0);
constexpr double kOneMinute = 60.0 * kOneSecond;
constexpr int kMaxDecimals = 12;
// What the shortest text of a float and of a double may lose, relative to the value.
constexpr double kSingleRelative = 1e-6;
constexpr double kDoubleRelative = 1e-13;

struct Region {
    const char* shortDate;
    const char* timeFormat;
    const char* shortTime;
};
constexpr Region kRegions[] = {
    {"M/d/yyyy", "h:mm:ss tt", "h:mm tt"},      {"d.M.yy", "HH:mm:ss", "HH:mm"},
    {"yyyy-MM-dd", "HH:mm:ss", "HH:mm"},        {"dd/MM/yyyy", "H:mm:ss", "H:mm"},
    {"MMM d, yyyy", "hh:mm:ss tt", "hh:mm tt"},
};

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void UseRegion(const Region& region) {
    WriteUserSetting(kInternationalKey, "sShortDate", region.shortDate);
    WriteUserSetting(kInternationalKey, "sTimeFormat", region.timeFormat);
    WriteUserSetting(kInternationalKey, "sShortTime", region.shortTime);
}

// A value a date cell holds shows as text that means the same moment, to the precision shown.
void CheckDateCell(const CGridCellTimeCtrl& cell) {
    const auto* value = reinterpret_cast<const COleDateTime*>(cell.GetData());
    if (value == nullptr) {
        return;
    }
    Check(value->GetStatus() == COleDateTime::valid);
    const unsigned flags = kFormatDate | kFormatTime | (cell.NoSeconds() ? kFormatNoSeconds : 0);
    const CString shown = FormatDateTime(value, flags);
    Check(!shown.IsEmpty());
    CGridCellTimeCtrl copy;
    copy.SetNoSeconds(cell.NoSeconds());
    copy.SetText(shown);
    const auto* reread = reinterpret_cast<const COleDateTime*>(copy.GetData());
    Check(reread != nullptr);
    const double tolerance = cell.NoSeconds() ? kOneMinute : kOneSecond;
    Check(std::fabs(DATE(*reread) - DATE(*value)) <= tolerance);
}

void CheckIntCell(const CGridCellIntCtrl& cell) {
    const CString text = cell.GetText();
    if (text.IsEmpty()) {
        Check(cell.GetData() == 0);
        return;
    }
    const int value = *reinterpret_cast<const int*>(cell.GetData());
    CString again;
    again.Format("%d", value);
    Check(again == text);
}

double FltValue(const CGridCellFltCtrl& cell, bool single) {
    return single ? double(*reinterpret_cast<const float*>(cell.GetData()))
                  : *reinterpret_cast<const double*>(cell.GetData());
}

// A float cell's text reads back as nearly its value, and settles after one more round: a
// value near a power of ten may change its form once, as "100000.0" becomes "1.0e+005" in a
// narrow single-precision cell, but never drifts.
void CheckFltCell(const CGridCellFltCtrl& cell, int precision, bool single, int maxDecimals) {
    const CString text = cell.GetText();
    if (text.IsEmpty()) {
        Check(cell.GetData() == 0);
        return;
    }
    Check(cell.GetData() != 0);
    const double value = FltValue(cell, single);
    CGridCellFltCtrl copy;
    copy.SetPrecision(precision, single, maxDecimals);
    copy.SetText(text);
    Check(copy.GetData() != 0);
    if (std::isfinite(value)) {
        const int decimals = maxDecimals >= 0 ? maxDecimals : precision;
        const double rounding = decimals >= 0 ? std::pow(10.0, -decimals) : 0.0;
        const double tolerance = std::fabs(value) * (single ? kSingleRelative : kDoubleRelative);
        Check(std::fabs(FltValue(copy, single) - value) <= rounding + tolerance);
    }
    CGridCellFltCtrl again;
    again.SetPrecision(precision, single, maxDecimals);
    again.SetText(copy.GetText());
    Check(CString(again.GetText()) == copy.GetText());
}

constexpr int kCurveId = 17;
// A curve cell shows its constant in 15 characters, which leave a signed exponent form 7 digits.
constexpr double kShownRelative = 1e-6;
constexpr COLORREF kChoiceColor = 0xFF0000;

// A curve cell's text is either the word of a choice, in blue, or its constant in the cell's
// form, which reads back as the constant and settles after one more round. A text changes the
// mode to the constant or not at all, and never touches the stored curve.
void CheckCurveCell(const CGridCellFltXYCrv& cell, int modeBefore, const std::string& given) {
    const int mode = cell.GetComboSelection();
    Check(mode == modeBefore || mode == CGridCellFltXYCrv::CHOICE_CONSTANT);
    const CString text = cell.GetText();

    CGridCellFltXYCrv probe;
    probe = cell;
    probe.SetComboSelection(CGridCellFltXYCrv::CHOICE_TRANSIENT);
    Check(*reinterpret_cast<const int*>(probe.GetData()) == kCurveId);
    probe.SetComboSelection(CGridCellFltXYCrv::CHOICE_CONSTANT);
    const double constant = *reinterpret_cast<const double*>(probe.GetData());

    if (cell.GetTextClr() == kChoiceColor) {
        Check(text == given.c_str() || text.IsEmpty());
        return;
    }
    Check(cell.GetTextClr() == 0);
    Check(!text.IsEmpty() && text == probe.GetText());
    CGridCellFltXYCrv copy;
    copy.SetText(text);
    if (std::isfinite(constant)) {
        const double reread = *reinterpret_cast<const double*>(copy.GetData());
        Check(std::fabs(reread - constant) <=
              std::fabs(constant) * kShownRelative + std::numeric_limits<double>::denorm_min());
    }
    CGridCellFltXYCrv again;
    again.SetText(copy.GetText());
    Check(CString(again.GetText()) == copy.GetText());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 3) {
        return 0;
    }
    const uint8_t choice = data[0];
    const int precision = int(data[1] % (kMaxDecimals + 2)) - 1; // -1 to kMaxDecimals
    const int maxDecimals = int(data[2] % (kMaxDecimals + 2)) - 1;
    const std::string text(reinterpret_cast<const char*>(data) + 3, size - 3);
    if (std::memchr(text.data(), '\0', text.size()) != nullptr) {
        return 0; // a cell's text ends at its first zero
    }
    UseRegion(kRegions[choice % std::size(kRegions)]);

    // The date cell starts with a date, so that a text that is not one leaves it standing.
    CGridCellTimeCtrl dateCell;
    dateCell.SetNoSeconds((choice & 0x80) != 0);
    const COleDateTime start(2001, 2, 3, 4, 5, 6);
    dateCell.SetData(reinterpret_cast<LPARAM>(&start));
    dateCell.SetText(text.c_str());
    if (text.empty()) {
        Check(dateCell.GetData() == 0);
    } else if (text[0] != '^') {
        Check(CString(dateCell.GetText()) == text.c_str());
    }
    CheckDateCell(dateCell);

    CGridCellIntCtrl intCell;
    intCell.SetText(text.c_str());
    CheckIntCell(intCell);

    const bool single = (choice & 0x40) != 0;
    CGridCellFltCtrl fltCell;
    fltCell.SetPrecision(precision, single, maxDecimals);
    fltCell.SetText(text.c_str());
    CheckFltCell(fltCell, precision, single, maxDecimals);

    // The curve cell starts in one of its modes, with a curve and a data set stored.
    CGridCellFltXYCrv curveCell;
    int curve = kCurveId;
    const CString dataSet = "set";
    const int modeBefore = (choice >> 4) % 3;
    curveCell.SetComboSelection(CGridCellFltXYCrv::CHOICE_TRANSIENT);
    curveCell.SetData(reinterpret_cast<LPARAM>(&curve));
    curveCell.SetComboSelection(CGridCellFltXYCrv::CHOICE_DATASET);
    curveCell.SetData(reinterpret_cast<LPARAM>(&dataSet));
    curveCell.SetComboSelection(modeBefore);
    curveCell.SetText(text.c_str());
    CheckCurveCell(curveCell, modeBefore, text);
    return 0;
}
