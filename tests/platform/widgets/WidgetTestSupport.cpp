#include "WidgetTestSupport.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/window/Input.h"

#include <cstring>

void WidgetTest::SetUp() {
    ASSERT_TRUE(parent.CreateEx(0, nullptr, "parent", WS_OVERLAPPED | WS_VISIBLE, 0, 0,
                                kParentWidth, kParentHeight, nullptr, nullptr));
    recorder = std::make_unique<NotificationRecorder>(parent.m_hWnd);
    PumpMessages();
}

void WidgetTest::TearDown() {
    PumpMessages();
    ReleaseCapture();
    SetFocus(nullptr);
    for (UINT key : {VK_LBUTTON, VK_RBUTTON, VK_SHIFT, VK_CONTROL, VK_MENU})
        SetKeyHeld(key, false);
    recorder.reset();
    // Other top-level windows a test left (pop-up lists) go with their owner.
    parent.DestroyWindow();
}

std::vector<UINT> WidgetTest::CommandsFrom(UINT id) const {
    std::vector<UINT> codes;
    for (const RecordedMessage& r : recorder->Records())
        if (r.message == WM_COMMAND && r.id == id)
            codes.push_back(r.code);
    return codes;
}

std::string WidgetTest::TextOf(const CWnd& wnd) {
    CString text;
    wnd.GetWindowText(text);
    return text.GetString();
}
