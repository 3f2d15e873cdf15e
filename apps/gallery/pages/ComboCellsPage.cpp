// Combo cells: a culvert table whose shape column takes only its options and whose material
// column takes any word. A scripted user opens a shape's list by its arrow (captured open, with
// its pop-up list), picks with the mouse, walks another list with the keys, types a material
// that is no option and pastes a word the shape column refuses. In a window every list opens
// and picks for real.

#include "GalleryPage.h"

#include "cells/GridCellCombo.h"
#include "grid/GridCtrl.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/system/SystemMetrics.h"
#include "platform/testing/UiDriver.h"
#include "platform/widgets/ComboBox.h"

#include <cstring>

namespace {

constexpr int kRows = 6;
constexpr int kCols = 4;
enum Column { kName, kShape, kMaterial, kLength };

struct ComboCellsPage {
    CWnd frame;
    CGridCtrl grid{kRows, kCols, 1, 1};
};

void FillTable(CGridCtrl& grid) {
    const char* headings[kCols] = {"Culvert", "Shape", "Material", "Length (m)"};
    const char* shapes[] = {"Box", "Pipe", "Arch", "Pipe-arch", "Elliptical"};
    const char* materials[] = {"Concrete", "Corrugated steel", "HDPE", "Masonry"};
    CStringArray shapeOptions;
    for (const char* shape : shapes) {
        shapeOptions.Add(shape);
    }
    CStringArray materialOptions;
    for (const char* material : materials) {
        materialOptions.Add(material);
    }
    for (int col = 0; col < kCols; col++) {
        grid.SetItemText(0, col, headings[col]);
    }
    for (int row = 1; row < kRows; row++) {
        grid.SetCellType(row, kShape, RUNTIME_CLASS(CGridCellCombo));
        grid.SetCellType(row, kMaterial, RUNTIME_CLASS(CGridCellCombo));
        auto* shape = static_cast<CGridCellCombo*>(grid.GetCell(row, kShape));
        shape->SetOptions(shapeOptions);
        auto* material = static_cast<CGridCellCombo*>(grid.GetCell(row, kMaterial));
        material->SetOptions(materialOptions);
        material->SetStyle(CBS_DROPDOWN);
        grid.SetItemTextFmt(row, kName, "C-%d", row);
        grid.SetItemData(row, kShape, row % 3);
        grid.SetItemData(row, kMaterial, row % 2);
        grid.SetItemTextFmt(row, kLength, "%d.0", 10 + 4 * row);
    }
}

void PutOnClipboard(const char* text) {
    if (!OpenClipboard(nullptr)) {
        return;
    }
    EmptyClipboard();
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
    std::memcpy(GlobalLock(block), text, std::strlen(text) + 1);
    GlobalUnlock(block);
    SetClipboardData(CF_TEXT, block);
    CloseClipboard();
}

CPoint Centre(CGridCtrl& grid, int row, int col) {
    CRect rect;
    grid.GetCellRect(row, col, &rect);
    return rect.CenterPoint();
}

CPoint OnArrow(CGridCtrl& grid, int row, int col) {
    CRect rect;
    grid.GetCellRect(row, col, &rect);
    return CPoint(rect.right - GetSystemMetrics(SM_CXVSCROLL) / 2, rect.top + 3);
}

void PlayTheUser(ComboCellsPage& page, GalleryContext& context) {
    CGridCtrl& grid = page.grid;
    UiDriver ui;
    const HWND window = grid.GetSafeHwnd();

    // Row 2's shape list, opened by its arrow and captured open.
    ui.Click(window, OnArrow(grid, 2, kShape));
    auto* editor = static_cast<CComboBox*>(grid.GetDlgItem(IDC_INPLACE_CONTROL));
    if (editor == nullptr) {
        context.Print("The shape list did not open");
        return;
    }
    context.Capture(page.frame.GetSafeHwnd(), "43-combo-cells-open");
    CRect list;
    editor->GetDroppedControlRect(&list);
    const HWND popUp = WindowFromPoint(list.TopLeft() + CPoint(2, 2));
    context.Capture(popUp, "43-combo-cells-list");
    const int rowHeight = editor->GetItemHeight(0);
    const CPoint archRow(10, 3 * rowHeight + rowHeight / 2); // "Pipe-arch"
    ui.MouseMove(popUp, archRow);
    ui.Click(popUp, archRow);

    // Row 3's shape by the keys, after a double click.
    ui.DoubleClick(window, Centre(grid, 3, kShape));
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_RETURN);

    // A material that is no option, typed.
    ui.Click(window, Centre(grid, 4, kMaterial));
    ui.Type("Timber\r");

    // A pasted word that is no shape is refused; the material column takes it.
    PutOnClipboard("Slab");
    ui.Click(window, Centre(grid, 5, kShape));
    ui.PressKey('V', MK_CONTROL);
    ui.Click(window, Centre(grid, 5, kMaterial));
    ui.PressKey('V', MK_CONTROL);
    ui.Click(window, Centre(grid, 1, kName));

    context.Print("Picked: row 2 %s (option %d), row 3 %s; typed: row 4 %s (option %d)",
                  grid.GetItemText(2, kShape).GetString(), int(grid.GetItemData(2, kShape)),
                  grid.GetItemText(3, kShape).GetString(),
                  grid.GetItemText(4, kMaterial).GetString(), int(grid.GetItemData(4, kMaterial)));
    context.Print("Pasted \"Slab\": shape %s, material %s", grid.GetItemText(5, kShape).GetString(),
                  grid.GetItemText(5, kMaterial).GetString());
}

void BuildComboCellsPage(GalleryContext& context) {
    // Windows of the gallery live as long as the program.
    static ComboCellsPage page;
    page.frame.CreateEx(0, nullptr, "Culverts - option cells", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 80,
                        80, 460, 240, nullptr, nullptr);
    CRect client;
    page.frame.GetClientRect(&client);
    CGridCtrl& grid = page.grid;
    grid.Create(client, &page.frame, 1);
    FillTable(grid);
    grid.AutoSizeColumns();
    grid.SetColumnWidth(kShape, 100); // room for the longest shape, which no row starts with
    grid.ExpandColumnToFit(kLength);
    grid.Refresh();

    PlayTheUser(page, context);
    context.Capture(page.frame.GetSafeHwnd(), "43-combo-cells");
}

} // namespace

GALLERY_PAGE("43-combo-cells", "Combo cells", BuildComboCellsPage);
