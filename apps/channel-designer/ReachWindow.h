#pragma once

// The document window of a reach: its spreadsheet of sections fills the window. It owns the
// reach's document, reads each change the user makes in the sheet back into the reach, opens
// the dialogs that the sheet's buttons ask for, and closes the reach's plots as it goes.

#include "ReachDocument.h"
#include "SectionSheet.h"

#include "platform/window/MdiFrame.h"

#include <memory>

class ReachWindow : public CMDIChildWnd {
public:
    explicit ReachWindow(std::unique_ptr<ReachDocument> document);

    ReachDocument& Document() { return *m_document; }
    SectionSheet& Sheet() { return m_sheet; }
    // The section of the sheet's focus row; the first when no row has the focus.
    size_t FocusSection() const;
    // The flow calculator on a section; the reach takes its design discharge on OK.
    void RunFlowCalculator(size_t section);

protected:
    int OnCreate(LPCREATESTRUCT createStruct) override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnSetFocus(CWnd* oldWnd) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnDestroy() override;

private:
    // Takes what the sheet holds into the reach, once the cell's edit has settled.
    void ReadSheet();
    // Opens the hydrograph of the inflow in `row`; a constant inflow becomes one on OK.
    void EditHydrograph(int row);

    std::unique_ptr<ReachDocument> m_document;
    SectionSheet m_sheet;
};
