#pragma once

// Who answers message boxes. The UI driver installs an answerer so that tests and the headless
// gallery read each box and choose its button; every box shown is also kept in a log.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <functional>
#include <string>
#include <vector>

struct MessageBoxRecord {
    HWND owner;
    std::string text;
    std::string caption;
    UINT type;
    int answer; // the button chosen
};

using MessageBoxAnswerer = std::function<int(const MessageBoxRecord& box)>;

// Installs an answerer (an empty one leaves the boxes to the user); answers the previous one.
ORVA_API MessageBoxAnswerer SetMessageBoxAnswerer(MessageBoxAnswerer answerer);
// Every message box shown so far, oldest first.
ORVA_API const std::vector<MessageBoxRecord>& MessageBoxLog();
ORVA_API void ClearMessageBoxLog();
