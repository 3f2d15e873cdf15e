// The main window's menu bar and commands, and the opening of reaches.

#include "MainFrame.h"

#include "FlowDialog.h"
#include "OpenReachDialog.h"
#include "ReachFile.h"
#include "ReachPlots.h"

#include "controls/DialogORVA.h"
#include "platform/window/MenuResources.h"
#include "platform/window/MessageBox.h"
#include "platform/window/WindowApi.h"
#include "plot/PlotApi.h"
#include "plot/PlotEvents.h"
#include "plot/PlotMenuResource.h"
#include "support/HelpDocument.h"

#include <algorithm>

namespace {

// Topics of the help document that the Help menu opens.
constexpr int kIntroductionTopic = 0;
constexpr int kAnalysisTopic = 18;  // "5. Analysis"
constexpr int kProfileHeight = 210; // pixels of the reach window above its plots

void RegisterMenu() {
    RegisterMenuResource(MainFrame::kMenuId,
                         {{"&File",
                           {{"&Open Reach...", MainFrame::kOpen},
                            {"Open Example: &Mill Creek", MainFrame::kOpenExample1},
                            {"Open Example: &East Drain", MainFrame::kOpenExample2},
                            {},
                            {"&Close Window", MainFrame::kClose},
                            {"E&xit", MainFrame::kExit}}},
                          {"&Reach",
                           {{"&Flow Calculator...", MainFrame::kFlowCalculator},
                            {},
                            {"&Long Profile", MainFrame::kLongProfile},
                            {"&Rating Curves", MainFrame::kRatingCurves}}},
                          {"&Window",
                           {{"&Cascade", MainFrame::kCascade},
                            {"&Tile", MainFrame::kTile},
                            {"&Next Window\tCtrl+F6", MainFrame::kNextWindow}}},
                          {"&Help",
                           {{"&Contents", MainFrame::kHelpContents},
                            {"&Analysis", MainFrame::kHelpAnalysis},
                            {"&Flow Calculator", MainFrame::kHelpFlowCalculator},
                            {},
                            {"&About Channel Designer...", MainFrame::kAbout}}}});
}

} // namespace

MainFrame::MainFrame(std::string applicationFolder) : m_folder(std::move(applicationFolder)) {}

bool MainFrame::CreateFrame(const CRect& place) {
    RegisterMenu();
    RegisterMenuResource(kPlotMenuId, pmPlotMenuTemplate());
    if (!Create(nullptr, kTitle, WS_OVERLAPPEDWINDOW | WS_VISIBLE, place, nullptr,
                MAKEINTRESOURCE(kMenuId)))
        return false;
    AfxSetMainWnd(this);
    pmPlotDefaults(0); // a plot window that closes deletes its plot
    return true;
}

std::string MainFrame::ExamplePath(int example) const {
    return m_folder + (example == 1 ? "data/mill-creek.reach" : "data/east-drain.reach");
}

CRect MainFrame::DocumentArea() const {
    CRect area;
    ::GetClientRect(m_hWndMDIClient, &area);
    return area;
}

ReachWindow* MainFrame::OpenReach(const std::string& path) {
    auto document = std::make_unique<ReachDocument>();
    std::string error;
    if (!ReadReachFile(path, document->reach, error)) {
        AfxMessageBox(("The reach could not be opened.\n\n" + error).c_str(),
                      MB_OK | MB_ICONEXCLAMATION);
        return nullptr;
    }
    document->path = path;
    const std::string title = document->reach.name;
    auto* window = new ReachWindow(std::move(document)); // deletes itself with its window
    const CRect area = DocumentArea();
    const int shift = 24 * int(Reaches().size());
    const CRect place(shift, shift, area.right,
                      std::min<LONG>(area.bottom, kProfileHeight + shift));
    if (!window->Create(nullptr, title.c_str(), WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, place,
                        this))
        return nullptr;
    m_reachWindows.push_back(window->GetSafeHwnd());
    window->Document().Changed(); // the recovery copy
    ShowLongProfile(*window);
    ShowRatingCurves(*window);
    window->MDIActivate();
    return window;
}

std::vector<ReachWindow*> MainFrame::Reaches() const {
    std::vector<ReachWindow*> reaches;
    for (HWND hwnd : m_reachWindows)
        if (::IsWindow(hwnd))
            if (auto* window = dynamic_cast<ReachWindow*>(CWnd::FromHandlePermanent(hwnd)))
                reaches.push_back(window);
    return reaches;
}

ReachWindow* MainFrame::ActiveReach() const {
    const std::vector<ReachWindow*> reaches = Reaches();
    const CMDIChildWnd* active = MDIGetActive();
    for (ReachWindow* reach : reaches) {
        if (reach == active)
            return reach;
        for (EPlot* plot : {reach->Document().ProfilePlot(), reach->Document().RatingPlot()})
            if (plot && active && ::GetParent(plot->GetHwnd()) == active->GetSafeHwnd())
                return reach;
    }
    return reaches.empty() ? nullptr : reaches.back();
}

void MainFrame::ShowLongProfile(ReachWindow& window) {
    ReachDocument& document = window.Document();
    if (EPlot* plot = document.ProfilePlot()) {
        ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, WPARAM(::GetParent(plot->GetHwnd())), 0);
        return;
    }
    const CRect area = DocumentArea();
    auto* plot = new LongProfilePlot(document, CRect(0, kProfileHeight, area.right / 2,
                                                     area.bottom)); // deleted with its window
    document.profilePlotId = plot->GetId();
    plot->Refresh();
}

void MainFrame::ShowRatingCurves(ReachWindow& window) {
    ReachDocument& document = window.Document();
    if (EPlot* plot = document.RatingPlot()) {
        ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, WPARAM(::GetParent(plot->GetHwnd())), 0);
        return;
    }
    const CRect area = DocumentArea();
    auto* plot = new RatingCurvePlot(document, CRect(area.right / 2, kProfileHeight, area.right,
                                                     area.bottom)); // deleted with its window
    document.ratingPlotId = plot->GetId();
    plot->Refresh();
}

void MainFrame::RunFlowCalculator() {
    ReachWindow* reach = ActiveReach();
    if (!reach) {
        AfxMessageBox("Open a reach first: the flow calculator works on one of its sections.");
        return;
    }
    reach->RunFlowCalculator(reach->FocusSection());
}

BOOL MainFrame::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_PLOT_SETMENUPLOT) {
        m_menuPlot = reinterpret_cast<EPlot*>(lParam);
        return TRUE;
    }
    return CMDIFrameWnd::OnWndMsg(message, wParam, lParam, result);
}

BOOL MainFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (pmRunPlotMenuCommand(m_menuPlot, LOWORD(wParam)))
        return TRUE;
    ReachWindow* reach = nullptr;
    switch (LOWORD(wParam)) {
    case kOpen: {
        OpenReachDialog dialog(m_folder + "data", this);
        if (dialog.DoModal() == IDOK && !dialog.Path().empty())
            OpenReach(dialog.Path());
        return TRUE;
    }
    case kOpenExample1:
    case kOpenExample2:
        OpenReach(ExamplePath(LOWORD(wParam) == kOpenExample1 ? 1 : 2));
        return TRUE;
    case kClose:
        if (CMDIChildWnd* active = MDIGetActive())
            active->SendMessage(WM_CLOSE);
        return TRUE;
    case kExit:
        SendMessage(WM_CLOSE);
        return TRUE;
    case kFlowCalculator:
        RunFlowCalculator();
        return TRUE;
    case kLongProfile:
        if ((reach = ActiveReach()))
            ShowLongProfile(*reach);
        return TRUE;
    case kRatingCurves:
        if ((reach = ActiveReach()))
            ShowRatingCurves(*reach);
        return TRUE;
    case kCascade:
        MDICascade();
        return TRUE;
    case kTile:
        MDITile();
        return TRUE;
    case kNextWindow:
        MDINext();
        return TRUE;
    case kHelpContents:
        CDialogORVA::DoHelp(kIntroductionTopic);
        return TRUE;
    case kHelpAnalysis:
        CDialogORVA::DoHelp(kAnalysisTopic);
        return TRUE;
    case kHelpFlowCalculator:
        CDialogORVA::DoHelp(HelpDocument::TopicForDialog(FlowDialog::kTemplateId));
        return TRUE;
    case kAbout:
        AfxMessageBox("Channel Designer\n\nUniform flow in open channels and at culverts, by "
                      "Manning's equation.\nBuilt on ORVAUtil.",
                      MB_OK | MB_ICONINFORMATION);
        return TRUE;
    default:
        return CMDIFrameWnd::OnCommand(wParam, lParam);
    }
}
