#include "SheetOnScreen.h"

#include "cells/GridCellButton.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridCellCombo.h"
#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellFltXYCrv.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/GridCellTimeCtrl.h"
#include "cells/GridColorCell.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <cstring>

BOOL CSheetOwner::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (onNotify) {
        onNotify(*reinterpret_cast<const NMHDR*>(lParam));
    }
    return CWnd::OnNotify(wParam, lParam, result);
}

SheetOnScreen::SheetOnScreen() {
    parent.CreateEx(0, AfxRegisterWndClass(0), "culverts", WS_OVERLAPPEDWINDOW,
                    CRect(0, 0, 980, 300), nullptr, 0);
    // The heading row exists before the types, so that only the body rows are born typed.
    sheet.SetColumnCount(kColumns);
    sheet.SetFixedRowCount(1);
    sheet.SetFixedColumnCount(1);
    SetTypes(sheet);
    sheet.SetRowCount(kRows);
    sheet.Create(CRect(0, 0, 940, 240), &parent, 1);
    for (int row = 0; row < kRows; row++) {
        sheet.SetRowHeight(row, kRowHeight, FALSE);
    }
    for (int col = 0; col < kColumns; col++) {
        sheet.SetColumnWidth(col, kColumnWidth);
    }
    recorder = std::make_unique<NotificationRecorder>(parent.GetSafeHwnd());
    parent.ShowWindow(SW_SHOW);
    ui.Pump();
}

SheetOnScreen::~SheetOnScreen() {
    recorder.reset();
    parent.DestroyWindow();
}

void SheetOnScreen::SetTypes(CSpreadSheetORVA& sheet) {
    CStringArray materials;
    for (const char* material : kMaterials) {
        materials.Add(material);
    }
    sheet.SetColumnType(new EColTypeINT(kBarrels));
    sheet.SetColumnType(new EColTypeFLT(kDiameter, 2));
    sheet.SetColumnType(new EColTypeCBX(kMaterial, &materials));
    sheet.SetColumnType(new EColTypeTIM(kInspected, "", true, false, true));
    sheet.SetColumnType(new EColTypeTOG(kSurveyed, "surveyed"));
    sheet.SetColumnType(new EColTypeBTN(kDetails, "Details"));
    sheet.SetColumnType(new EColTypeCOLR(kColour));
    sheet.SetColumnType(new EColTypeSYM(kSymbol, RGB(0, 0, 255), 3, 2));
    CStringArray flowChoices;
    for (const char* choice : kFlowChoices) {
        flowChoices.Add(choice);
    }
    sheet.SetColumnType(new EColTypeFXY(kFlow, &flowChoices, "1.5"));
}

CRuntimeClass* SheetOnScreen::ClassOfColumn(int col) {
    switch (col) {
    case kBarrels:
        return RUNTIME_CLASS(CGridCellIntCtrl);
    case kDiameter:
        return RUNTIME_CLASS(CGridCellFltCtrl);
    case kMaterial:
        return RUNTIME_CLASS(CGridCellCombo);
    case kInspected:
        return RUNTIME_CLASS(CGridCellTimeCtrl);
    case kSurveyed:
        return RUNTIME_CLASS(CGridCellCheckbox);
    case kDetails:
        return RUNTIME_CLASS(CGridCellButton);
    case kColour:
        return RUNTIME_CLASS(CGridColorCell);
    case kFlow:
        return RUNTIME_CLASS(CGridCellFltXYCrv);
    default:
        return RUNTIME_CLASS(CGridCell);
    }
}

CRect SheetOnScreen::CellRect(int row, int col) {
    CRect rect;
    EXPECT_TRUE(sheet.GetCellRect(row, col, &rect)) << row << "," << col;
    return rect;
}

void SheetOnScreen::TypeInto(int row, int col, const char* text) {
    if (sheet.GetFocusCell() == CCellID(row, col)) {
        ui.Click(Sheet(), CellCentre(row == 1 ? row + 1 : row - 1, kName));
    }
    ui.Click(Sheet(), CellCentre(row, col));
    ui.Type(text);
    ui.PressKey(VK_RETURN);
}
