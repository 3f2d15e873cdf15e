#pragma once

// CGridCellTimeCtrl: the cell of a date column. Its value is a date and time of day, shown in
// the user's regional short date and time; a click on the drop arrow or a double click lays a
// CInPlaceTimeCtrl over it. GetData gives the address of the cell's own value, which the
// editor writes into; the text "^" stands for the present moment.

#include "grid/GridCell.h"
#include "platform/system/DateTime.h"

#include <memory>

// FormatDateTime's flags.
constexpr unsigned kFormatDate = 1;
constexpr unsigned kFormatTime = 2;
constexpr unsigned kFormatNoSeconds = 4;

// The regional value `name` of the settings store, or `fallback` where it holds none.
ORVA_API CString ReadInternationalSetting(const char* name, const char* fallback);
// The value's date in the regional short date with a four-digit year and, after one blank, its
// time; "" for a missing or invalid value.
ORVA_API CString FormatDateTime(const COleDateTime* time, unsigned flags);

class ORVA_API CGridCellTimeCtrl : public CGridCell {
    DECLARE_DYNCREATE(CGridCellTimeCtrl)
public:
    CGridCellTimeCtrl() = default;
    ~CGridCellTimeCtrl() override;
    // Copies through the virtual operations, so the value is copied, never shared.
    using CGridCell::operator=;

    void ShowDropArrow(bool show) { m_bShowDropArrow = show; }
    // The picker shows the time too; the cell's own text always does.
    void SetShowTime(bool show) { m_bShowTime = show; }
    bool ShowTime() const { return m_bShowTime; }
    void SetNoSeconds(bool noSeconds) { m_bNoSeconds = noSeconds; }
    bool NoSeconds() const { return m_bNoSeconds; }

    // "" drops the value and keeps the text; "^" takes the present; a text that reads as no
    // date stands in the cell with the old value behind it.
    void SetText(LPCTSTR text) override;
    // `data` is the address of a COleDateTime; null changes nothing.
    void SetData(LPARAM data) override;
    // The address of the cell's own COleDateTime, or 0 when the cell holds no date.
    LPARAM GetData() const override;

    BOOL Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground = TRUE) override;
    BOOL GetTextRect(LPRECT rect) override;
    // Opens the picker only from the drop arrow or a double click.
    BOOL Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) override;
    void EndEdit() override;
    // `point` is relative to the cell.
    BOOL OnClickDown(CPoint point, int row, int col) override;
    void OnDblClick(CPoint point, int row, int col) override;

private:
    bool m_bOpening = false;
    bool m_bShowDropArrow = true;
    std::unique_ptr<COleDateTime> m_pTime;
    bool m_bShowTime = true;
    bool m_bNoSeconds = false;
};
