#pragma once

// Windows that write down what they hear, for the window manager's tests.

#include "platform/window/Wnd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

// A log of events shared by the windows of one test, in the order they happened.
using EventLog = std::vector<std::string>;

// A plain frame or child window that logs the messages a test cares about.
class LoggingWnd : public CWnd {
public:
    LoggingWnd(EventLog& log, std::string name) : m_log(log), m_name(std::move(name)) {}

    bool CreateTop(int width = 200, int height = 150, DWORD style = WS_OVERLAPPED | WS_VISIBLE,
                   DWORD exStyle = 0) {
        return CreateEx(exStyle, nullptr, m_name.c_str(), style, 0, 0, width, height, nullptr,
                        nullptr);
    }
    bool CreateChild(CWnd* parent, const RECT& rect, UINT id = 1,
                     DWORD style = WS_CHILD | WS_VISIBLE, DWORD exStyle = 0) {
        return CreateEx(exStyle, nullptr, m_name.c_str(), style, rect, parent, id);
    }

    int createAnswer = 0;
    bool deleteOnNcDestroy = false;
    bool* deleted = nullptr;
    COLORREF paintColour = CLR_NONE; // fills the update rectangle when set
    int paints = 0;
    RECT lastPaint{};
    BOOL lastErase = FALSE;

    ~LoggingWnd() override {
        if (deleted)
            *deleted = true;
    }

protected:
    void Log(const std::string& what) { m_log.push_back(m_name + ":" + what); }

    int OnCreate(LPCREATESTRUCT cs) override {
        Log("create");
        CWnd::OnCreate(cs);
        return createAnswer;
    }
    void OnDestroy() override {
        Log("destroy");
        CWnd::OnDestroy();
    }
    void OnNcDestroy() override {
        Log("ncdestroy");
        CWnd::OnNcDestroy();
    }
    void PostNcDestroy() override {
        Log("postncdestroy");
        if (deleteOnNcDestroy)
            delete this;
    }
    void OnSize(UINT type, int cx, int cy) override {
        Log("size " + std::to_string(cx) + "x" + std::to_string(cy));
        CWnd::OnSize(type, cx, cy);
    }
    void OnSetFocus(CWnd* old) override {
        Log("setfocus from " + NameOf(old));
        CWnd::OnSetFocus(old);
    }
    void OnKillFocus(CWnd* next) override {
        Log("killfocus to " + NameOf(next));
        CWnd::OnKillFocus(next);
    }
    void OnCaptureChanged(CWnd* wnd) override {
        Log("capturechanged to " + NameOf(wnd));
        CWnd::OnCaptureChanged(wnd);
    }
    void OnTimer(UINT_PTR id) override {
        Log("timer " + std::to_string(id) + " at " + std::to_string(GetCurrentMessage()->time));
    }
    void OnPaint() override;
    void OnKeyDown(UINT ch, UINT, UINT) override { Log("keydown " + std::to_string(ch)); }
    void OnKeyUp(UINT ch, UINT, UINT) override { Log("keyup " + std::to_string(ch)); }
    void OnChar(UINT ch, UINT, UINT) override { Log(std::string("char ") + char(ch)); }
    void OnLButtonDown(UINT flags, CPoint p) override { LogMouse("ldown", flags, p); }
    void OnLButtonUp(UINT flags, CPoint p) override { LogMouse("lup", flags, p); }
    void OnLButtonDblClk(UINT flags, CPoint p) override { LogMouse("ldbl", flags, p); }
    void OnVScroll(UINT code, UINT pos, CScrollBar*) override {
        std::string entry = "vscroll " + std::to_string(code) + " " + std::to_string(pos);
        if (code == SB_THUMBTRACK) {
            SCROLLINFO si{};
            GetScrollInfo(SB_VERT, &si, SIF_TRACKPOS);
            entry += " track " + std::to_string(si.nTrackPos);
        }
        Log(entry);
    }
    void OnHScroll(UINT code, UINT pos, CScrollBar*) override {
        Log("hscroll " + std::to_string(code) + " " + std::to_string(pos));
    }
    void OnContextMenu(CWnd* wnd, CPoint screen) override {
        ScreenToClient(&screen);
        Log("context from " + NameOf(wnd) + " at " + std::to_string(screen.x) + "," +
            std::to_string(screen.y));
    }
    BOOL OnMouseWheel(UINT, short delta, CPoint) override {
        Log("wheel " + std::to_string(delta));
        return TRUE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message >= WM_USER && message < WM_APP) {
            Log("user " + std::to_string(message - WM_USER));
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    void LogMouse(const char* what, UINT flags, CPoint p) {
        std::string keys;
        if (flags & MK_CONTROL)
            keys += " ctrl";
        if (flags & MK_SHIFT)
            keys += " shift";
        Log(std::string(what) + " " + std::to_string(p.x) + "," + std::to_string(p.y) + keys);
    }
    static std::string NameOf(CWnd* wnd) {
        if (!wnd)
            return "none";
        CString text;
        wnd->GetWindowText(text);
        return text.GetString();
    }

    EventLog& m_log;
    std::string m_name;
};

// Keeps only the entries that start with one of the prefixes given.
EventLog Only(const EventLog& log, std::initializer_list<const char*> containing);

// Destroys every top-level window left by a test, so tests do not see each other's windows.
class WindowTest : public ::testing::Test {
protected:
    void TearDown() override;
    EventLog log;
};
