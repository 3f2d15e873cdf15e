// The umbrella header must compile on its own and bring every part an application uses.

#include "ORVAUtil.h"

#include <gtest/gtest.h>

TEST(UmbrellaHeader, BringsGridPlotAndSupportTogether) {
    CGridCtrl grid(3, 2, 1, 1);
    EXPECT_EQ(grid.GetRowCount(), 3);
    EXPECT_EQ(grid.GetFixedColumnCount(), 1);
    EXPECT_EQ(xgFormatDouble(1.5, -1, 15, 0), "1.5");
    EXPECT_TRUE(MUcolor(1, 2, 3, 4) == MUcolor(1, 2, 3, 9));
}
