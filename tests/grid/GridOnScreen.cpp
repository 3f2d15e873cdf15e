#include "GridOnScreen.h"

void GridOnScreen::Open(int rows, int cols, int clientWidth, int clientHeight) {
    ASSERT_TRUE(grid.SetRowCount(rows));
    ASSERT_TRUE(grid.SetColumnCount(cols));
    ASSERT_TRUE(grid.SetFixedRowCount(1));
    ASSERT_TRUE(grid.SetFixedColumnCount(1));
    ASSERT_TRUE(grid.Create(CRect(0, 0, clientWidth, clientHeight), &parent, 1));
    // The borders take their share: grow the window until the client area is as asked.
    CRect window;
    grid.GetWindowRect(&window);
    const CRect client = Client();
    grid.MoveWindow(0, 0, clientWidth + (window.Width() - client.Width()),
                    clientHeight + (window.Height() - client.Height()));
    for (int row = 0; row < rows; row++) {
        grid.SetRowHeight(row, kHeight, FALSE);
    }
    for (int col = 0; col < cols; col++) {
        grid.SetColumnWidth(col, kWidth);
    }
    grid.SendMessage(WM_SIZE, 0, MAKELPARAM(clientWidth, clientHeight));
    parent.ShowWindow(SW_SHOW);
    ui.Pump();
}

CRect GridOnScreen::Client() const {
    CRect client;
    grid.GetClientRect(&client);
    return client;
}

CPoint GridOnScreen::CellCentre(int row, int col) {
    CRect rect;
    EXPECT_TRUE(grid.GetCellRect(row, col, &rect)) << row << "," << col;
    return rect.CenterPoint();
}
