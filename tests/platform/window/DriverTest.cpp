#include "WindowTestSupport.h"

#include "platform/base/Exceptions.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/testing/MessageBoxResponder.h"
#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/MessageBox.h"

#include <cstdio>
#include <cstring>
#include <filesystem>

using ::testing::ElementsAre;

namespace {
using DriverTest = WindowTest;

TEST_F(DriverTest, MessageBoxesTakeQueuedAnswersThenTheirDefaultButton) {
    MessageBoxResponder boxes;
    boxes.Answer(IDNO);
    EXPECT_EQ(AfxMessageBox("Delete the plot?", MB_YESNO), IDNO);
    EXPECT_EQ(AfxMessageBox("Really?", MB_YESNO | MB_DEFBUTTON2), IDNO);
    EXPECT_EQ(MessageBox(nullptr, "Saved", "Plot", MB_OKCANCEL), IDOK);
    ASSERT_EQ(boxes.Count(), 3);
    EXPECT_EQ(boxes.Boxes()[0].text, "Delete the plot?");
    EXPECT_EQ(boxes.Boxes()[2].caption, "Plot");
    EXPECT_EQ(boxes.LastText(), "Saved");
}

TEST_F(DriverTest, AnExceptionReportsItsOwnMessage) {
    MessageBoxResponder boxes;
    try {
        AfxThrowInvalidArgException();
    } catch (CException* e) {
        EXPECT_EQ(e->ReportError(), IDOK);
        e->Delete();
    }
    ASSERT_EQ(boxes.Count(), 1);
    EXPECT_FALSE(boxes.LastText().empty());
}

TEST_F(DriverTest, TheRecorderSeesNotificationsAndCommandsAndMayAnswerThem) {
    LoggingWnd frame(log, "frame"), child(log, "child");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(child.CreateChild(&frame, CRect(0, 0, 10, 10), 42));
    NotificationRecorder recorder(frame.m_hWnd);
    recorder.SetGridRecordTest([](const NMHDR& h) { return h.code == 7; });
    recorder.Answer(7, -1);
    recorder.Watch(WM_USER + 9);

    NM_GRIDVIEW record{{child.m_hWnd, 42, 7}, 3, 4};
    EXPECT_EQ(frame.SendMessage(WM_NOTIFY, 42, LPARAM(&record)), -1);
    NMHDR plain{child.m_hWnd, 42, 8};
    EXPECT_EQ(frame.SendMessage(WM_NOTIFY, 42, LPARAM(&plain)), 0);
    frame.PostMessage(WM_COMMAND, MAKEWPARAM(42, 5), LPARAM(child.m_hWnd));
    frame.PostMessage(WM_USER + 9, 1, 2);
    PumpMessages();

    ASSERT_EQ(recorder.Records().size(), 4u);
    const auto grid = recorder.Notifications(7);
    ASSERT_EQ(grid.size(), 1u);
    EXPECT_EQ(grid[0].row, 3);
    EXPECT_EQ(grid[0].column, 4);
    EXPECT_EQ(grid[0].result, -1);
    EXPECT_EQ(recorder.Notifications(8)[0].row, -1);
    ASSERT_EQ(recorder.Commands(5).size(), 1u);
    EXPECT_EQ(recorder.Commands(5)[0].id, 42u);
    EXPECT_EQ(recorder.Records()[3].message, WM_USER + 9);
    EXPECT_THAT(log, ::testing::Contains("frame:user 9")); // watched messages still arrive
}

TEST_F(DriverTest, AWindowSavesAsAPicture) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop(64, 48, WS_OVERLAPPED | WS_VISIBLE | WS_CAPTION));
    frame.paintColour = RGB(10, 20, 30);
    UiDriver ui;
    const auto path = std::filesystem::temp_directory_path() / "orva-window-test.png";
    ASSERT_TRUE(ui.SavePng(frame.m_hWnd, path.c_str()));
    EXPECT_GT(std::filesystem::file_size(path), 0u);
    std::filesystem::remove(path);
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(5, 5)), RGB(10, 20, 30));
}

TEST_F(DriverTest, TheClipboardHoldsTextUntilEmptied) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EXPECT_FALSE(OpenClipboard(nullptr));
    EXPECT_TRUE(EmptyClipboard());
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 6);
    std::memcpy(GlobalLock(block), "1\t2\r\n", 6);
    GlobalUnlock(block);
    EXPECT_EQ(SetClipboardData(CF_TEXT, block), block);
    EXPECT_TRUE(CloseClipboard());
    EXPECT_EQ(GetClipboardData(CF_TEXT), nullptr); // closed

    EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_BITMAP));
    ASSERT_TRUE(OpenClipboard(nullptr));
    HANDLE data = GetClipboardData(CF_TEXT);
    ASSERT_NE(data, nullptr);
    EXPECT_STREQ(static_cast<const char*>(GlobalLock(static_cast<HGLOBAL>(data))), "1\t2\r\n");
    GlobalUnlock(static_cast<HGLOBAL>(data));
    EmptyClipboard();
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_EQ(GlobalSize(block), 0u); // the clipboard freed what it owned
    CloseClipboard();
    EXPECT_EQ(RegisterClipboardFormat("ORVA grid"), RegisterClipboardFormat("ORVA grid"));
}
} // namespace
