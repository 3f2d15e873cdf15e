// The column type records: the order of their constructor arguments, and the copies they keep
// of what they are given.

#include "spreadsheet/ColType.h"

#include <gtest/gtest.h>

namespace {

TEST(ColTypeTest, ArgumentsLandInTheirFieldsWhereTheOrdersDiffer) {
    const EColTypeFLT number(4, 3, true, 5);
    EXPECT_EQ(number.column, 4);
    EXPECT_EQ(number.precision, 3);
    EXPECT_TRUE(number.singlePrecision);
    EXPECT_EQ(number.maxDecimals, 5);

    const EColTypeTOG toggle(2, "on", true);
    EXPECT_TRUE(toggle.checked);
    EXPECT_EQ(toggle.text, "on");

    const EColTypeSYM symbol(1, 0xFF00FFu, 7, 4);
    EXPECT_EQ(symbol.color, 0xFF00FFu);
    EXPECT_EQ(symbol.symbol, 7);
    EXPECT_EQ(symbol.size, 4);

    const EColTypeCBX free(2, nullptr, false, true);
    EXPECT_EQ(free.options.GetSize(), 0);
    EXPECT_FALSE(free.listOnly);
    EXPECT_TRUE(free.showDropArrow);
}

TEST(ColTypeTest, RecordsKeepCopiesOfTheirTextsAndOptions) {
    CStringArray options{"Box", "Pipe"};
    char caption[] = "Edit";
    const EColTypeCBX combo(1, &options);
    const EColTypeFXY curve(2, &options, caption);
    const EColTypeBTN button(3, caption);
    options.SetAt(0, "Arch");
    options.Add("Slab");
    caption[0] = 'X';
    EXPECT_EQ(combo.options.GetSize(), 2);
    EXPECT_EQ(combo.options[0], "Box");
    EXPECT_EQ(curve.options[0], "Box");
    EXPECT_EQ(curve.text, "Edit");
    EXPECT_EQ(button.text, "Edit");
    EXPECT_EQ(EColTypeBTN(1, nullptr).text, "");

    // Copies of the copyable records are whole and independent.
    EColTypeTIM time(5, "1/2/2024", false, true, false);
    EColTypeTIM copy(time);
    time.text = "^";
    EXPECT_EQ(copy.column, 5);
    EXPECT_EQ(copy.text, "1/2/2024");
    EXPECT_FALSE(copy.showDropArrow);
    EXPECT_FALSE(copy.noSeconds);
    EColTypeTOG assigned;
    assigned = EColTypeTOG(6, "yes", true);
    EXPECT_EQ(assigned.column, 6);
    EXPECT_TRUE(assigned.checked);
    EXPECT_EQ(assigned.text, "yes");
}

} // namespace
