// Integer and float cells: what typing into them leaves behind, and how their values reach the
// application through GetData.

#include "CellGrid.h"

#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellIntCtrl.h"
#include "grid/GridNotify.h"

#include <vector>

namespace {

constexpr int kIntColumn = 1;
constexpr int kFloatColumn = 2;
constexpr int kRow = 2;

class NumericCellTest : public CellGrid {
protected:
    void SetUp() override {
        UseColumnType(kIntColumn, RUNTIME_CLASS(CGridCellIntCtrl));
        UseColumnType(kFloatColumn, RUNTIME_CLASS(CGridCellFltCtrl));
    }
    // Sets a cell as the application would, then forgets the marks that left.
    void Prepare(int col, const char* text) {
        grid.SetItemText(kRow, col, text);
        grid.SetModified(FALSE);
        recorder->Clear();
    }
};

TEST_F(NumericCellTest, TypedIntegersAreCutClampedOrRefusedWithTheEditCountingAsAChange) {
    struct Case {
        const char* typed;
        const char* shown;
    };
    const Case cases[] = {{"12.9", "12"},
                          {"1e5", "1"},
                          {"+7", "7"},
                          {"7abc", "7"},
                          {"3000000000", "2147483647"},
                          {"-3000000000", "-2147483648"}};
    for (const Case& c : cases) {
        Prepare(kIntColumn, "5");
        TypeInto(kRow, kIntColumn, c.typed);
        EXPECT_EQ(grid.GetItemText(kRow, kIntColumn), c.shown) << c.typed;
    }

    // Unreadable text leaves the old value, yet the editor's text differed: the change is told
    // and marked.
    Prepare(kIntColumn, "5");
    TypeInto(kRow, kIntColumn, "abc");
    EXPECT_EQ(grid.GetItemText(kRow, kIntColumn), "5");
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 1);
    EXPECT_TRUE(grid.GetModified(kRow, kIntColumn));
}

TEST_F(NumericCellTest, TypedFloatsComeOutInTheCellsFormatAndUnreadableTextEmptiesTheCell) {
    struct Case {
        const char* typed;
        const char* shown;
    };
    const Case cases[] = {
        {"1.50", "1.5"}, {"1e3", "1000.0"}, {"2.5kg", "2.5"}, {"0.1", "0.1"}, {"abc", ""}};
    for (const Case& c : cases) {
        Prepare(kFloatColumn, "9.0");
        TypeInto(kRow, kFloatColumn, c.typed);
        EXPECT_EQ(grid.GetItemText(kRow, kFloatColumn), c.shown) << c.typed;
        EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 1) << c.typed;
    }
}

TEST_F(NumericCellTest, TheApplicationReadsTheNormalisedValueWhileItIsAskedAboutTheEdit) {
    std::vector<double> heard;
    parent.onNotify = [&](const NMHDR& header) {
        if (header.code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
            const LPARAM value = grid.GetCell(kRow, kFloatColumn)->GetData();
            heard.push_back(value != 0 ? *reinterpret_cast<const double*>(value) : -1.0);
        }
    };
    Prepare(kFloatColumn, "1.0");
    TypeInto(kRow, kFloatColumn, "2.5kg");
    TypeInto(kRow, kFloatColumn, "none");
    EXPECT_EQ(heard, (std::vector<double>{2.5, -1.0}));
}

TEST_F(NumericCellTest, TheApplicationTellsAnEmptyCellFromZeroAndReadsOneSharedValue) {
    auto* first = static_cast<CGridCellIntCtrl*>(grid.GetCell(1, kIntColumn));
    auto* second = static_cast<CGridCellIntCtrl*>(grid.GetCell(kRow, kIntColumn));
    first->SetText("   ");
    EXPECT_STREQ(first->GetText(), "");
    EXPECT_EQ(first->GetData(), 0);
    first->SetText("  42");
    EXPECT_STREQ(first->GetText(), "42");

    const int zero = 0;
    second->SetData(reinterpret_cast<LPARAM>(&zero));
    const LPARAM zeroAddress = second->GetData();
    ASSERT_NE(zeroAddress, 0);
    EXPECT_EQ(*reinterpret_cast<const int*>(zeroAddress), 0);
    // The next read of any integer cell overwrites the value behind the same address.
    EXPECT_EQ(first->GetData(), zeroAddress);
    EXPECT_EQ(*reinterpret_cast<const int*>(zeroAddress), 42);
    second->SetData(0);
    EXPECT_STREQ(second->GetText(), "");

    auto* number = static_cast<CGridCellFltCtrl*>(grid.GetCell(kRow, kFloatColumn));
    number->SetText("");
    EXPECT_EQ(number->GetData(), 0);
    number->SetText("   "); // blanks are the end of input, not a failed read: the value is 0
    EXPECT_STREQ(number->GetText(), "0.0");
    const double value = 0.1;
    number->SetData(reinterpret_cast<LPARAM>(&value));
    EXPECT_STREQ(number->GetText(), "0.1");
    ASSERT_NE(number->GetData(), 0);
    EXPECT_EQ(*reinterpret_cast<const double*>(number->GetData()), value);
}

TEST_F(NumericCellTest, AColumnChangedToANumericTypeKeepsItsNumbersWhateverTheOldCellsHeld) {
    constexpr int kPlainColumn = 4;
    constexpr LPARAM kApplicationValue = 5; // a plain cell's data is a value, not an address
    grid.SetItemText(kRow, kPlainColumn, "2.75");
    grid.SetItemData(kRow, kPlainColumn, kApplicationValue);
    grid.SetItemText(kRow, kIntColumn, "12");
    auto* single = static_cast<CGridCellFltCtrl*>(grid.GetCell(kRow, kFloatColumn));
    single->SetPrecision(-1, true, -1);
    single->SetText("0.5");

    ASSERT_TRUE(grid.SetCellType(kRow, kPlainColumn, RUNTIME_CLASS(CGridCellFltCtrl)));
    EXPECT_EQ(grid.GetItemText(kRow, kPlainColumn), "2.75");
    ASSERT_TRUE(grid.SetCellType(kRow, kIntColumn, RUNTIME_CLASS(CGridCellFltCtrl)));
    EXPECT_EQ(grid.GetItemText(kRow, kIntColumn), "12.0");
    ASSERT_TRUE(grid.SetCellType(kRow, kPlainColumn, RUNTIME_CLASS(CGridCellIntCtrl)));
    EXPECT_EQ(grid.GetItemText(kRow, kPlainColumn), "2");

    // A float cell copied into a float cell takes its precision: the single value travels as
    // a float.
    CGridCellFltCtrl copy;
    copy = *single;
    EXPECT_STREQ(copy.GetText(), "0.5");
    ASSERT_NE(copy.GetData(), 0);
    EXPECT_EQ(*reinterpret_cast<const float*>(copy.GetData()), 0.5f);
}

TEST_F(NumericCellTest, PrecisionShapesTheNextTextOnly) {
    auto* number = static_cast<CGridCellFltCtrl*>(grid.GetCell(kRow, kFloatColumn));
    const double pi = 3.14159;
    const double three = 3.0;
    struct Case {
        int precision;
        int maxDecimals;
        const char* piShown;
        const char* threeShown;
    };
    const Case cases[] = {
        {-1, -1, "3.14159", "3.0"}, {2, -1, "3.14", "3.00"}, {5, 2, "3.14", "3.0"}};
    for (const Case& c : cases) {
        number->SetPrecision(c.precision, false, c.maxDecimals);
        number->SetData(reinterpret_cast<LPARAM>(&pi));
        EXPECT_STREQ(number->GetText(), c.piShown) << c.precision << "," << c.maxDecimals;
        number->SetData(reinterpret_cast<LPARAM>(&three));
        EXPECT_STREQ(number->GetText(), c.threeShown) << c.precision << "," << c.maxDecimals;
    }

    number->SetPrecision(-1, false, -1);
    number->SetText("1.25");
    number->SetPrecision(4, false, -1);
    EXPECT_STREQ(number->GetText(), "1.25");
    number->SetText(number->GetText());
    EXPECT_STREQ(number->GetText(), "1.2500");
}

TEST_F(NumericCellTest, ASinglePrecisionCellReadsAndWritesFloats) {
    auto* number = static_cast<CGridCellFltCtrl*>(grid.GetCell(kRow, kFloatColumn));
    number->SetPrecision(-1, true, -1);
    const float tenth = 0.1f;
    number->SetData(reinterpret_cast<LPARAM>(&tenth));
    EXPECT_STREQ(number->GetText(), "0.1"); // no digits of the widening to double
    ASSERT_NE(number->GetData(), 0);
    EXPECT_EQ(*reinterpret_cast<const float*>(number->GetData()), tenth);

    const float large = 100000.0f; // beyond fixed notation in eight positions
    number->SetData(reinterpret_cast<LPARAM>(&large));
    EXPECT_NE(CString(number->GetText()).Find('e'), -1) << number->GetText();

    // A copy takes the format settings with the value.
    CGridCellFltCtrl copy;
    copy = *number;
    copy.SetData(reinterpret_cast<LPARAM>(&tenth));
    EXPECT_STREQ(copy.GetText(), "0.1");
    EXPECT_EQ(*reinterpret_cast<const float*>(copy.GetData()), tenth);
}

} // namespace
