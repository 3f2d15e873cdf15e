#pragma once

// The items of a plot's context menu that pmSetUpBasicMenus chooses from, and the mask bits
// that choose them. Each knows its title (with '&' before the access key), its state for a plot
// and what it does to it. The legend items change the legend and no more: whoever wants it
// redrawn redraws.

#include "plot/RightMenu.h"

// Mask bits of pmSetUpBasicMenus.
constexpr int PM_MENU_PLOTDATA = 0x1;
constexpr int PM_MENU_DISPLAYOPTIONS = 0x2;
constexpr int PM_MENU_AXISTITLES = 0x4;
constexpr int PM_MENU_LEGEND = 0x8;
constexpr int PM_MENU_SAVEDEFAULTS = 0x10;
constexpr int PM_MENU_FRAME = 0x20;
constexpr int PM_MENU_MAXIMIZE = 0x40;
constexpr int PM_MENU_SHOWVALUES = 0x100;
constexpr int PM_MENU_EXPORT = 0x200;

class ORVA_API EMenuPlotData : public ERightMenuItem {
public:
    zvk::CStdStr<char> GetTitle() override { return "Plot Data..."; }
    void PerformAction(EPlot* plot) override;
};

class ORVA_API EMenuDisplayOptions : public ERightMenuItem {
public:
    zvk::CStdStr<char> GetTitle() override { return "&Display Options..."; }
    void PerformAction(EPlot* plot) override;
};

class ORVA_API EMenuAxisTitles : public ERightMenuItem {
public:
    zvk::CStdStr<char> GetTitle() override { return "&Axis Titles..."; }
    void PerformAction(EPlot* plot) override;
};

class ORVA_API EMenuSaveDefaults : public ERightMenuItem {
public:
    zvk::CStdStr<char> GetTitle() override { return "&Set As Display Defaults"; }
    void PerformAction(EPlot* plot) override;
};

// The legend's places: NONE, a separator, Top, Bottom, Left, Right.
class ORVA_API EMenuLegendLocSubMenu : public ERightMenuItem {
public:
    EMenuLegendLocSubMenu();
    zvk::CStdStr<char> GetTitle() override { return "&Legend"; }
};

class ORVA_API EMenuLegendLocNone : public ERightMenuItem {
public:
    unsigned GetState(EPlot* plot) override; // checked while the legend is hidden
    zvk::CStdStr<char> GetTitle() override { return "NONE"; }
    void PerformAction(EPlot* plot) override;
};

// A legend place: checked while the legend is shown there.
class ORVA_API EMenuLegendLoc : public ERightMenuItem {
public:
    explicit EMenuLegendLoc(int location) : m_location(location) {}
    unsigned GetState(EPlot* plot) override;
    void PerformAction(EPlot* plot) override;

private:
    int m_location; // 0 top, 1 bottom, 2 left, 3 right
};

class ORVA_API EMenuLegendLocTop : public EMenuLegendLoc {
public:
    EMenuLegendLocTop() : EMenuLegendLoc(0) {}
    zvk::CStdStr<char> GetTitle() override { return "Top"; }
};

class ORVA_API EMenuLegendLocBtm : public EMenuLegendLoc {
public:
    EMenuLegendLocBtm() : EMenuLegendLoc(1) {}
    zvk::CStdStr<char> GetTitle() override { return "Bottom"; }
};

class ORVA_API EMenuLegendLocLeft : public EMenuLegendLoc {
public:
    EMenuLegendLocLeft() : EMenuLegendLoc(2) {}
    zvk::CStdStr<char> GetTitle() override { return "Left"; }
};

class ORVA_API EMenuLegendLocRight : public EMenuLegendLoc {
public:
    EMenuLegendLocRight() : EMenuLegendLoc(3) {}
    zvk::CStdStr<char> GetTitle() override { return "Right"; }
};

// Shows all the data again after a zoom: grey while the plot is not zoomed.
class ORVA_API EMenuFrame : public ERightMenuItem {
public:
    unsigned GetState(EPlot* plot) override;
    zvk::CStdStr<char> GetTitle() override { return "&Frame Plot"; }
    void PerformAction(EPlot* plot) override;
};

class ORVA_API EMenuMax : public ERightMenuItem {
public:
    zvk::CStdStr<char> GetTitle() override { return "&Maximize Plot"; }
    void PerformAction(EPlot* plot) override;
};

class ORVA_API EMenuShowValues : public ERightMenuItem {
public:
    zvk::CStdStr<char> GetTitle() override { return "&View Values..."; }
    void PerformAction(EPlot* plot) override;
};

class ORVA_API EMenuExport : public ERightMenuItem {
public:
    zvk::CStdStr<char> GetTitle() override { return "&Export/Print..."; }
    void PerformAction(EPlot* plot) override;
};
