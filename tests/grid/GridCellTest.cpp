#include "GridTestSupport.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

LOGFONT FontNamed(const char* face, int height) {
    LOGFONT font{};
    font.lfHeight = height;
    std::strncpy(font.lfFaceName, face, sizeof(font.lfFaceName) - 1);
    return font;
}

} // namespace

TEST(GridCell, TextCellStaysWithinItsAllocationBudget) {
    // With the row's pointer and the allocator's header this keeps an empty text cell
    // within 128 bytes.
    EXPECT_LE(sizeof(CGridCell), 104u);
}

TEST(GridCell, UnsetFormatMarginAndFontComeFromTheDefaultCellButColoursDoNot) {
    CGridCtrl grid(3, 3, 1, 1);
    CGridCellBase* cell = grid.GetCell(2, 2);
    CGridDefaultCell* normal = grid.GetDefaultCell(FALSE, FALSE);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->GetFormat(), normal->GetFormat());
    EXPECT_EQ(cell->GetMargin(), normal->GetMargin());
    EXPECT_EQ(cell->GetFont(), normal->GetFont());
    EXPECT_EQ(cell->GetTextClr(), CLR_DEFAULT);
    EXPECT_EQ(cell->GetBackClr(), CLR_DEFAULT);

    // The margin is read through; the format was copied when the cell was made.
    grid.SetDefCellMargin(7);
    EXPECT_EQ(cell->GetMargin(), 7u);
    normal->SetFormat(DT_RIGHT);
    EXPECT_NE(cell->GetFormat(), DWORD(DT_RIGHT));

    // A cell takes from the default cell of its own kind of position.
    EXPECT_EQ(grid.GetCell(0, 1)->GetDefaultCell(), grid.GetDefaultCell(TRUE, FALSE));
    EXPECT_EQ(grid.GetCell(1, 0)->GetDefaultCell(), grid.GetDefaultCell(FALSE, TRUE));
    EXPECT_EQ(grid.GetCell(0, 0)->GetDefaultCell(), grid.GetDefaultCell(TRUE, TRUE));
    const LOGFONT header = FontNamed("Arial", -20);
    grid.GetDefaultCell(TRUE, FALSE)->SetFont(&header);
    EXPECT_STREQ(grid.GetCell(0, 1)->GetFont()->lfFaceName, "Arial");
    EXPECT_NE(grid.GetCell(1, 1)->GetFont()->lfHeight, -20);
}

TEST(GridCell, CellWithoutGridHasNoFallback) {
    CGridCell cell;
    EXPECT_EQ(cell.GetFormat(), 0xFFFFFFFFu);
    EXPECT_EQ(cell.GetMargin(), 0xFFFFFFFFu);
    EXPECT_EQ(cell.GetFont(), nullptr);
    EXPECT_EQ(cell.GetFontObject(), nullptr);
    ASSERT_NE(cell.GetText(), nullptr);
    EXPECT_STREQ(cell.GetText(), "");
    cell.SetText(nullptr);
    ASSERT_NE(cell.GetText(), nullptr);
}

TEST(GridCell, NullFontRestoresTheDefaultOnACellButNotOnADefaultCell) {
    CGridCtrl grid(2, 2);
    CGridCellBase* cell = grid.GetCell(1, 1);
    const LOGFONT own = FontNamed("Courier New", -15);
    cell->SetFont(&own);
    EXPECT_FALSE(cell->IsDefaultFont());
    EXPECT_STREQ(cell->GetFont()->lfFaceName, "Courier New");
    cell->SetFont(nullptr);
    EXPECT_TRUE(cell->IsDefaultFont());
    EXPECT_EQ(cell->GetFont(), grid.GetDefaultCell(FALSE, FALSE)->GetFont());

    CGridDefaultCell* normal = grid.GetDefaultCell(FALSE, FALSE);
    const LOGFONT before = *normal->GetFont();
    normal->SetFont(nullptr);
    ASSERT_NE(normal->GetFont(), nullptr);
    EXPECT_EQ(std::memcmp(normal->GetFont(), &before, sizeof(LOGFONT)), 0);
}

TEST(GridCell, DefaultCellHasNoStateAndIsAlwaysReadOnly) {
    CGridDefaultCell cell;
    cell.SetState(GV_STATE_SELECTED);
    cell.SetData(42);
    EXPECT_EQ(cell.GetState(), GV_STATE_READONLY);
    EXPECT_EQ(cell.GetData(), 0);
    EXPECT_EQ(cell.GetFormat(),
              DWORD(DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS));
    EXPECT_GT(cell.GetWidth(), 0);
    EXPECT_GT(cell.GetHeight(), 0);
    EXPECT_NE(cell.GetFontObject(), nullptr);
}

TEST(GridCell, CopyBetweenClassesTakesEffectiveValuesAndMergeData) {
    CGridCtrl source(4, 4);
    CGridCellBase* from = source.GetCell(2, 2);
    from->SetText("12.5");
    from->SetData(LPARAM(&source)); // data slots carry addresses
    from->SetImage(3);
    from->SetState(GV_STATE_READONLY | GV_STATE_MODIFIED);
    from->SetTextClr(RGB(1, 2, 3));
    from->SetBackClr(RGB(4, 5, 6));
    from->SetMergeCellID(CCellID(1, 1));
    from->Show(false);
    source.SetDefCellMargin(9);

    CNumberCell to;
    static_cast<CGridCellBase&>(to) = *from;
    EXPECT_STREQ(to.GetText(), "12.5");
    EXPECT_EQ(to.GetData(), LPARAM(&source));
    EXPECT_EQ(to.GetImage(), 3);
    EXPECT_EQ(to.GetState(), GV_STATE_READONLY | GV_STATE_MODIFIED);
    EXPECT_EQ(to.GetTextClr(), RGB(1, 2, 3));
    EXPECT_EQ(to.GetBackClr(), RGB(4, 5, 6));
    EXPECT_TRUE(to.IsDefaultFont());
    EXPECT_TRUE(to.IsMergeWithOthers());
    EXPECT_EQ(to.GetMergeCellID(), CCellID(1, 1));
    EXPECT_FALSE(to.IsShow());
    // The copy holds the effective margin as its own, and still the source's grid.
    EXPECT_EQ(to.GetGrid(), &source);
    source.SetDefCellMargin(2);
    EXPECT_EQ(to.GetMargin(), 9u);
}

TEST(GridCell, UnMergeShowsTheCellAndKeepsItsAttributes) {
    CGridCell cell;
    cell.SetText("kept");
    cell.SetState(GV_STATE_SELECTED);
    cell.SetMergeRange(CCellRange(1, 1, 2, 3));
    EXPECT_TRUE(cell.IsMerged());
    cell.SetMergeRange(CCellRange(1, 1, 1, 1));
    EXPECT_FALSE(cell.IsMerged()) << "a one-cell block is not merged";
    cell.SetMergeCellID(CCellID(0, 0));
    cell.Show(false);
    cell.UnMerge();
    EXPECT_TRUE(cell.IsShow());
    EXPECT_FALSE(cell.IsMergeWithOthers());
    EXPECT_EQ(cell.GetMergeRange(), CCellRange());
    EXPECT_STREQ(cell.GetText(), "kept");
    EXPECT_EQ(cell.GetState(), GV_STATE_SELECTED);
    // Only a real row marks a cell as covered.
    cell.SetMergeCellID(CCellID(-1, 4));
    EXPECT_FALSE(cell.IsMergeWithOthers());
}

TEST(GridCell, ResetForgetsTheGridAndWithItTheFallback) {
    CGridCtrl grid(2, 2);
    CGridCellBase* cell = grid.GetCell(1, 1);
    cell->SetText("x");
    cell->Reset();
    EXPECT_EQ(cell->GetGrid(), nullptr);
    EXPECT_EQ(cell->GetMargin(), 0xFFFFFFFFu);
    EXPECT_STREQ(cell->GetText(), "");
    cell->SetGrid(&grid);
    EXPECT_EQ(cell->GetMargin(), grid.GetDefaultCell(FALSE, FALSE)->GetMargin());
}
