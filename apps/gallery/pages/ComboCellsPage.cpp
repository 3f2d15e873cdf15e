// Combo cells: a culvert table whose shape column takes only its options and whose material
// column takes any word. A scripted user opens a shape's list by its arrow (captured open, with
// its pop-up list), picks with the mouse, walks another list with the keys, types a material
// that is no option and pastes a word the shape column refuses. In a window every list opens
// and picks for real.

#include "GalleryPage.h"
#include "GridPageKit.h"

#include "cells/GridCellCombo.h"
#include "grid/GridCtrl.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/testing/ClipboardText.h"
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
    AddStrings(shapeOptions, shapes);
    CStringArray materialOptions;
    AddStrings(materialOptions, materials);
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

void PlayTheUser(ComboCellsPage& page, GalleryContext& context) {
    CGridCtrl& grid = page.grid;
    UiDriver ui;
    const HWND window = grid.GetSafeHwnd();

    // Row 2's shape list, opened by its arrow and captured open.
    ui.Click(window, StripPoint(grid, 2, kShape, StripEnd::kTop));
    CComboBox* editor = InPlaceCombo(grid);
    if (editor == nullptr) {
        context.Print("The shape list did not open");
        return;
    }
    context.Capture(page.frame.GetSafeHwnd(), "43-combo-cells-open");
    context.Capture(DroppedList(*editor), "43-combo-cells-list");
    PickListItem(ui, *editor, 3); // "Pipe-arch"

    // Row 3's shape by the keys, after a double click.
    ui.DoubleClick(window, CellCentre(grid, 3, kShape));
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_RETURN);

    // A material that is no option, typed.
    ui.Click(window, CellCentre(grid, 4, kMaterial));
    ui.Type("Timber\r");

    // A pasted word that is no shape is refused; the material column takes it.
    PutTextOnClipboard("Slab");
    ui.Click(window, CellCentre(grid, 5, kShape));
    ui.PressKey('V', MK_CONTROL);
    ui.Click(window, CellCentre(grid, 5, kMaterial));
    ui.PressKey('V', MK_CONTROL);
    ui.Click(window, CellCentre(grid, 1, kName));

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
    CGridCtrl& grid = page.grid;
    CreateFramedGrid(page.frame, grid, "Culverts - option cells", CRect(80, 80, 540, 320));
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
