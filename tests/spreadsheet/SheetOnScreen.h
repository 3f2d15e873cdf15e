#pragma once

// A culvert table on screen for the spreadsheet tests: a spreadsheet with one column of every
// kind, a child of a top-level window whose notifications are recorded. Columns are 80 pixels
// wide and rows 20 high, with one fixed row and column.

#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"
#include "spreadsheet/SpreadSheetORVA.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

// The clipboard's text, as a user puts it there and as the spreadsheet leaves it.

// The spreadsheet's owner, as an application: it may act inside each notification it hears.
class CSheetOwner : public CWnd {
public:
    std::function<void(const NMHDR& header)> onNotify;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

// Opens what an application's derived spreadsheet may use.
class CSheetProbe : public CSpreadSheetORVA {
public:
    using CSpreadSheetORVA::GetColType;
    using CSpreadSheetORVA::m_bRClickToParent;
};

class SheetOnScreen : public ::testing::Test {
protected:
    enum Column {
        kName = 1,  // untyped
        kBarrels,   // integer
        kDiameter,  // float, two decimals
        kMaterial,  // list-only combo
        kInspected, // date
        kSurveyed,  // check box
        kDetails,   // button
        kColour,    // colour
        kSymbol,    // the application's kind: a plain cell
        kFlow,      // a number or a curve
        kColumns
    };
    static constexpr int kColumnWidth = 80;
    static constexpr int kRowHeight = 20;
    static constexpr int kRows = 8;
    static constexpr const char* kMaterials[] = {"Concrete", "Steel", "HDPE"};
    static constexpr const char* kFlowChoices[] = {"<constant>", "<hydrograph>", "<gauge data>"};

    SheetOnScreen();
    ~SheetOnScreen() override;

    // The types of the table's columns, fresh records each time.
    static void SetTypes(CSpreadSheetORVA& sheet);
    // The cell class that the types of `SetTypes` make in a body cell of `col`.
    static CRuntimeClass* ClassOfColumn(int col);

    CRect CellRect(int row, int col);
    CPoint CellCentre(int row, int col) { return CellRect(row, col).CenterPoint(); }
    // Focuses the cell with a click (from another cell when it has the focus already), types
    // `text`, which opens the editor, and presses Return.
    void TypeInto(int row, int col, const char* text);
    HWND Sheet() const { return sheet.GetSafeHwnd(); }
    int Count(int code) const { return recorder->Count(UINT(code)); }
    // The one editor window open over the spreadsheet, or null.
    CWnd* OpenEditor() const { return sheet.GetWindow(GW_CHILD); }

    CSheetOwner parent;
    CSheetProbe sheet;
    UiDriver ui;
    std::unique_ptr<NotificationRecorder> recorder;
};
