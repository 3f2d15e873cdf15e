// The column type records: their defaults, the order of their constructor arguments, and the
// copies they keep of what they are given.

#include "spreadsheet/ColType.h"

#include <gtest/gtest.h>

namespace {

TEST(ColTypeTest, DefaultRecordsCarryTheirKindAndTheDocumentedValues) {
    const EColType none;
    EXPECT_EQ(none.column, -1);
    EXPECT_EQ(none.kind, EColType::KIND_NONE);
    const EColType removal(3, EColType::KIND_NONE);
    EXPECT_EQ(removal.column, 3);
    EXPECT_EQ(removal.kind, EColType::KIND_NONE);

    const EColTypeTIM time;
    EXPECT_EQ(time.kind, EColTypeTIM::KIND);
    EXPECT_EQ(time.text, "^");
    EXPECT_TRUE(time.showDropArrow && time.showTime && time.noSeconds);

    const EColTypeFLT number;
    EXPECT_EQ(number.column, -1);
    EXPECT_EQ(number.precision, -1);
    EXPECT_EQ(number.maxDecimals, -1);
    EXPECT_FALSE(number.singlePrecision);

    const EColTypeCBX combo;
    EXPECT_EQ(combo.options.GetSize(), 0);
    EXPECT_TRUE(combo.listOnly && combo.showDropArrow);

    EXPECT_EQ(EColTypeSYM().size, 1);
    EXPECT_EQ(EColTypeLIN().width, 1);
    EXPECT_EQ(EColTypePNT().size, 1);
    EXPECT_EQ(EColTypePAT().pattern, 0);
    EXPECT_EQ(EColTypeFONT().font, 0);
    EXPECT_EQ(EColTypeTOG().checked, false);
    EXPECT_EQ(EColTypeBTN().text, "");
    EXPECT_EQ(EColTypeFXY().text, "");

    const int kinds[] = {EColTypeBTN().kind,  EColTypeTOG().kind,  EColTypeCBX().kind,
                         EColTypeTIM().kind,  EColTypeCOL().kind,  EColTypeINT().kind,
                         EColTypeFLT().kind,  EColTypeCOLR().kind, EColTypePAT().kind,
                         EColTypeSYM().kind,  EColTypeLIN().kind,  EColTypePNT().kind,
                         EColTypeFONT().kind, EColTypeFXY().kind};
    for (int code = 0; code < int(std::size(kinds)); code++) {
        EXPECT_EQ(kinds[code], code); // the application sees these codes
    }
}

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
