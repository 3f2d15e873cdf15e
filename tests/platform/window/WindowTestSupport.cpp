#include "WindowTestSupport.h"

#include "platform/window/Input.h"
#include "platform/window/WindowDC.h"

void LoggingWnd::OnPaint() {
    CPaintDC dc(this);
    ++paints;
    lastPaint = dc.m_ps.rcPaint;
    lastErase = dc.m_ps.fErase;
    Log("paint");
    if (paintColour != CLR_NONE)
        dc.FillSolidRect(&dc.m_ps.rcPaint, paintColour);
}

EventLog Only(const EventLog& log, std::initializer_list<const char*> containing) {
    EventLog out;
    for (const std::string& entry : log)
        for (const char* part : containing)
            if (entry.find(part) != std::string::npos) {
                out.push_back(entry);
                break;
            }
    return out;
}

void WindowTest::TearDown() {
    PumpMessages();
    ReleaseCapture();
    SetFocus(nullptr);
    for (UINT key : {VK_LBUTTON, VK_RBUTTON, VK_SHIFT, VK_CONTROL, VK_MENU})
        SetKeyHeld(key, false);
}
