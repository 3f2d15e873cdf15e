#include "grid/CellRange.h"

#include <gtest/gtest.h>

TEST(CellRange, DefaultRangeIsInvalidAndHoldsOnlyTheNoCell) {
    const CCellRange range;
    EXPECT_FALSE(range.IsValid());
    EXPECT_TRUE(range.InRange(-1, -1));
    EXPECT_TRUE(range.InRange(CCellID()));
    EXPECT_FALSE(range.InRange(0, 0));
    EXPECT_FALSE(range.InRange(-1, 0));
}

TEST(CellRange, ValidityNeedsNonNegativeOrderedBounds) {
    EXPECT_TRUE(CCellRange(0, 0, 0, 0).IsValid());
    EXPECT_TRUE(CCellRange(1, 2, 3, 4).IsValid());
    EXPECT_FALSE(CCellRange(3, 0, 2, 4).IsValid()) << "rows inverted";
    EXPECT_FALSE(CCellRange(0, 4, 2, 3).IsValid()) << "columns inverted";
    EXPECT_FALSE(CCellRange(-1, 0, 2, 2).IsValid());
    EXPECT_FALSE(CCellRange(0, 0, 2, -1).IsValid());
}

TEST(CellRange, InRangeIsInclusiveOnAllFourSides) {
    const CCellRange range(1, 2, 3, 5);
    EXPECT_TRUE(range.InRange(1, 2));
    EXPECT_TRUE(range.InRange(3, 5));
    EXPECT_TRUE(range.InRange(CCellID(2, 4)));
    EXPECT_FALSE(range.InRange(0, 2));
    EXPECT_FALSE(range.InRange(4, 5));
    EXPECT_FALSE(range.InRange(1, 1));
    EXPECT_FALSE(range.InRange(3, 6));
    // An inverted range holds nothing, not even its own corners.
    EXPECT_FALSE(CCellRange(3, 0, 2, 4).InRange(3, 0));
}

TEST(CellRange, AssignmentCopiesAndSelfAssignmentKeeps) {
    CCellRange range(1, 2, 3, 4);
    CCellRange& self = range;
    range = self;
    EXPECT_EQ(range, CCellRange(1, 2, 3, 4));
    CCellRange other;
    other = range;
    EXPECT_EQ(other, range);
    EXPECT_NE(other, CCellRange(1, 2, 3, 5));
}

TEST(CellId, DefaultIsNoCellAndComparesBothFields) {
    EXPECT_EQ(CCellID(), CCellID(-1, -1));
    EXPECT_NE(CCellID(1, 2), CCellID(1, 3));
    EXPECT_NE(CCellID(1, 2), CCellID(0, 2));
    EXPECT_EQ(CCellID(4, 5), CCellID(4, 5));
}
