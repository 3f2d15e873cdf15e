#pragma once

// The application's main window: a multiple-document frame with the menu bar. It opens reach
// files into reach windows with their two plots beside them, and carries out the menu's
// commands on the reach the user is in.

#include "ReachWindow.h"

#include "platform/window/MdiFrame.h"

#include <string>
#include <vector>

class MainFrame : public CMDIFrameWnd {
public:
    enum Command : UINT {
        kOpen = 4001,
        kOpenExample1,
        kOpenExample2,
        kClose,
        kExit,
        kFlowCalculator = 4010,
        kLongProfile,
        kRatingCurves,
        kCascade = 4020,
        kTile,
        kNextWindow,
        kHelpContents = 4030,
        kHelpAnalysis,
        kHelpFlowCalculator,
        kAbout,
    };
    static constexpr UINT kMenuId = 4000;
    static constexpr const char* kTitle = "Channel Designer";

    // `applicationFolder` holds the help document and the example reaches; it ends in "/".
    explicit MainFrame(std::string applicationFolder);

    // Makes the frame the application's main window, with its menu bar.
    bool CreateFrame(const CRect& place);
    // Opens a reach in a window of its own, with its plots; null after telling the user why not.
    ReachWindow* OpenReach(const std::string& path);
    // The reach of the active window (its sheet or one of its plots); else the last opened.
    ReachWindow* ActiveReach() const;
    std::vector<ReachWindow*> Reaches() const;
    std::string ExamplePath(int example) const;
    // Runs the flow calculator on the active reach; the reach takes the design discharge on OK.
    void RunFlowCalculator();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    // Learns the plot whose menu is up (WM_PLOT_SETMENUPLOT), which its commands go to.
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    void ShowLongProfile(ReachWindow& window);
    void ShowRatingCurves(ReachWindow& window);
    CRect DocumentArea() const;

    std::string m_folder;
    std::vector<HWND> m_reachWindows; // by handle: a window may have gone since
    EPlot* m_menuPlot = nullptr;      // while its menu is up; the plot clears it after
};
