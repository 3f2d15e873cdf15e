#pragma once

// A top-level window that hosts the controls of one test, with the UI driver and a recorder of
// what the controls tell their parent.

#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/Wnd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

class WidgetTest : public ::testing::Test {
protected:
    static constexpr int kParentWidth = 400;
    static constexpr int kParentHeight = 300;

    void SetUp() override;
    void TearDown() override;

    // The notification codes that control `id` sent by WM_COMMAND, in order.
    std::vector<UINT> CommandsFrom(UINT id) const;
    // Puts text on the clipboard, or reads it.
    static std::string TextOf(const CWnd& wnd);

    CWnd parent;
    std::unique_ptr<NotificationRecorder> recorder;
    UiDriver ui;
};
