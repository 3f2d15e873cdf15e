#pragma once

// CGridCellFltXYCrv: a quantity given in one of three ways: as a constant number, as a
// transient curve or as a data set. The cell shows and edits the number (or the word of the
// choice) on the left, and keeps a strip at its right edge: a "..." button in the upper half,
// which asks the application to edit the curve, and a drop arrow in the lower half, which opens
// the list of choices. The cell holds no curve, only the application's number for one.

#include "grid/GridCell.h"
#include "platform/base/StringArray.h"

class ORVA_API CGridCellFltXYCrv : public CGridCell {
    DECLARE_DYNCREATE(CGridCellFltXYCrv)
public:
    // The indices of the choices in the option list; the words themselves may be replaced.
    enum { CHOICE_CONSTANT = 0, CHOICE_TRANSIENT = 1, CHOICE_DATASET = 2 };

    CGridCellFltXYCrv();
    CGridCellFltXYCrv& operator=(const CGridCellFltXYCrv& source);
    using CGridCell::operator=;
    // From another curve cell the choice, the three values and the options come along; from
    // any other cell only the text, as the source's data is no address of ours.
    CGridCellBase& operator=(const CGridCellBase& source) override;

    // Decides what a text means: a pick from the list, a number (which makes the cell a
    // constant), or nothing, in which case the stored constant shows again.
    void SetText(LPCTSTR text) override;
    // `data` is the address of a double, an int or a CString, by the current choice; 0 only
    // clears the text.
    void SetData(LPARAM data) override;
    // The address of the constant or the curve number, by the current choice; 0 otherwise.
    LPARAM GetData() const override;

    BOOL Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground = TRUE) override;
    BOOL GetTextRect(LPRECT rect) override;
    CSize GetCellExtent(CDC* dc) override;
    // The text editor, narrowed so that the strip stays visible.
    BOOL Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) override;
    // `point` is relative to the cell: the upper half of the strip presses the button, the lower
    // half opens the list; elsewhere the click takes the grid's ordinary path.
    BOOL OnClickDown(CPoint point, int row, int col) override;

    virtual int GetComboSelection() const { return m_nSelection; }
    // An index outside the options changes nothing.
    virtual void SetComboSelection(int index);
    virtual void SetComboText(const char* text);

    void SetOptions(CStringArray& options);
    void GetOptions(CStringArray& options) const;
    // The halves of the strip at the right edge of `rect`: the button and the drop arrow.
    CRect GetTopRect(CRect rect) const;
    CRect GetBotRect(CRect rect) const;

protected:
    // The first option equal to `text`, case sensitive; -1 if none.
    int IndexFromComboText(const char* text) const;

    // Rewritten at each press: a disabled cell opens neither the button nor the list.
    bool m_bEnabled = true;
    int m_nCurveId = -1;
    double m_dConstant = 0.0;
    CString m_strDataSet;
    CStringArray m_Options;
    int m_nSelection = CHOICE_CONSTANT;
    // From the opening of the list until the next SetText, which is then taken for a pick.
    bool m_bPickPending = false;
};
