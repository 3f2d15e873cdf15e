// Form controls: a resizable pipe-flow dialog whose numeric fields recompute each other as the
// user types (diameter, area, velocity, flow and the number of pipes), with a summary line bound
// to the flow field. Shown at its design size and larger, where the fields widen and the
// buttons keep to the bottom right corner.

#include "GalleryPage.h"

#include "controls/DialogORVA.h"
#include "controls/EditORVAFloat.h"
#include "controls/EditORVAInt.h"

#include "platform/base/Messages.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <cmath>
#include <numbers>

namespace {

constexpr UINT kPipeDialog = 500;
constexpr UINT kDiameterId = 501;
constexpr UINT kAreaId = 502;
constexpr UINT kVelocityId = 503;
constexpr UINT kFlowId = 504;
constexpr UINT kPipesId = 505;
constexpr UINT kSummaryId = 506;
constexpr UINT kSummaryLabelId = 507;
constexpr UINT kNotesId = 508;
constexpr UINT kGripId = 509;
constexpr const char* kNotes = "The fields recompute each other as they are typed.";
constexpr int kFirstLabelId = 510;
constexpr int kFieldCount = 5;
constexpr int kGrowX = 180;
constexpr int kGrowY = 90;

void RegisterPipeTemplate() {
    const char* labels[kFieldCount] = {"Diameter (m)", "Area (m2)", "Velocity (m/s)", "Flow (m3/s)",
                                       "Pipes"};
    DialogTemplate dialog{"Pipe flow", {230, 158}, {}};
    dialog.style |= WS_THICKFRAME;
    for (int row = 0; row < kFieldCount; ++row) {
        const LONG top = 10 + 18 * row;
        dialog.items.push_back({"Static",
                                labels[row],
                                UINT(kFirstLabelId + row),
                                WS_VISIBLE,
                                {8, top + 2, 72, top + 12}});
    }
    dialog.items.push_back(
        {"Static", "Total flow as typed (m3/s):", kSummaryLabelId, WS_VISIBLE, {8, 102, 110, 112}});
    dialog.items.push_back({"Static", "", kSummaryId, WS_VISIBLE, {112, 102, 222, 112}});
    dialog.items.push_back({"Edit",
                            kNotes,
                            kNotesId,
                            WS_VISIBLE | WS_BORDER | ES_MULTILINE | ES_READONLY,
                            {8, 116, 222, 132}});
    dialog.items.push_back(
        {"Button", "OK", IDOK, WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, {114, 136, 164, 150}});
    dialog.items.push_back(
        {"Button", "Cancel", IDCANCEL, WS_VISIBLE | WS_TABSTOP, {170, 136, 220, 150}});
    dialog.items.push_back(
        {"ScrollBar", "", kGripId, WS_VISIBLE | SBS_SIZEGRIP, {222, 150, 230, 158}});
    RegisterDialogTemplate(kPipeDialog, std::move(dialog));
}

class PipeDialog : public CDialogORVA {
public:
    PipeDialog() : CDialogORVA(kPipeDialog, nullptr) {}

    CEditORVAFloat diameter, area, velocity, flow;
    CEditORVAInt pipes;

protected:
    BOOL OnInitDialog() override {
        const BOOL result = CDialogORVA::OnInitDialog();
        CEditORVAFloat* fields[] = {&diameter, &area, &velocity, &flow, &pipes};
        const UINT ids[] = {kDiameterId, kAreaId, kVelocityId, kFlowId, kPipesId};
        for (int row = 0; row < kFieldCount; ++row) {
            RECT r{76, 8 + 18 * row, 222, 20 + 18 * row};
            MapDialogRect(&r);
            fields[row]->CreateEx(WS_EX_CLIENTEDGE, WS_CHILD | WS_VISIBLE | WS_TABSTOP, r, this,
                                  ids[row]);
            fields[row]->SetFont(GetFont(), FALSE);
        }
        diameter.SetMinAndMax(0.0, 10.0);
        area.SetMinAndMax(0.0, 80.0);
        area.SetMaxPrec(4);
        velocity.SetMinAndMax(0.0, 20.0);
        flow.SetMaxPrec(3);
        pipes.SetMinAndMax(1, 12);
        diameter.SetValue(0.6, -1);
        velocity.SetValue(1.8, -1);
        pipes.SetValue(2);
        Recompute(kDiameterId);
        // The summary line follows the flow field as it is typed.
        flow.SendMessage(WM_EDIT_BINDCONTROL, kSummaryId);
        return result;
    }

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const UINT id = LOWORD(wParam);
        // Only the field being typed into drives the others; their own changes come back here
        // too and stop at this test.
        if (HIWORD(wParam) == EN_CHANGE && ::GetFocus() == reinterpret_cast<HWND>(lParam))
            Recompute(id);
        return CDialogORVA::OnCommand(wParam, lParam);
    }

    void DialogResized(int deltaX, int deltaY) override {
        for (UINT id : {kDiameterId, kAreaId, kVelocityId, kFlowId, kPipesId})
            MoveSizeItem(int(id), 0, 0, deltaX, 0);
        MoveSizeItem(int(kSummaryId), 0, 0, deltaX, 0);
        MoveSizeItem(int(kNotesId), 0, 0, deltaX, deltaY);
        MoveSizeItem(IDOK, deltaX, deltaY, 0, 0);
        MoveSizeItem(IDCANCEL, deltaX, deltaY, 0, 0);
        MoveSizeItem(int(kGripId), deltaX, deltaY, 0, 0);
    }

private:
    void Recompute(UINT changed) {
        const double n = pipes.GetValue();
        double a = area.GetValue();
        switch (changed) {
        case kDiameterId: {
            const double d = diameter.GetValue();
            a = std::numbers::pi * d * d / 4.0;
            area.SetValue(a, -1);
            flow.SetValue(a * velocity.GetValue() * n, -1);
            break;
        }
        case kAreaId:
            diameter.SetValue(std::sqrt(4.0 * a / std::numbers::pi), -1);
            flow.SetValue(a * velocity.GetValue() * n, -1);
            break;
        case kVelocityId:
        case kPipesId:
            flow.SetValue(a * velocity.GetValue() * n, -1);
            break;
        case kFlowId:
            if (a > 0.0 && n > 0.0)
                velocity.SetValue(flow.GetValue() / (a * n), -1);
            break;
        default:
            break;
        }
    }
};

void BuildFormControlsPage(GalleryContext& context) {
    RegisterPipeTemplate();
    static PipeDialog dialog; // gallery windows live as long as the program
    dialog.Create(kPipeDialog);
    dialog.SetWindowPos(nullptr, 60, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    dialog.ShowWindow(SW_SHOW);

    // The user types a new diameter and leaves the field with Tab.
    UiDriver ui;
    ui.Click(dialog.diameter.GetSafeHwnd(), POINT{6, 6});
    dialog.diameter.SetSel(0, -1);
    ui.Type("0.75");
    ui.PressKey(VK_TAB);
    context.Print("Diameter %g m gives area %g m2 and flow %g m3/s at %g m/s in %d pipes",
                  dialog.diameter.GetValue(), dialog.area.GetValue(), dialog.flow.GetValue(),
                  dialog.velocity.GetValue(), dialog.pipes.GetValue());
    context.Capture(dialog.GetSafeHwnd(), "50-form-controls");

    CRect design;
    dialog.GetWindowRect(&design);
    dialog.SetWindowPos(nullptr, 0, 0, design.Width() + kGrowX, design.Height() + kGrowY,
                        SWP_NOMOVE | SWP_NOZORDER);
    CRect grown;
    dialog.GetWindowRect(&grown);
    context.Print("Resized from %d x %d to %d x %d", design.Width(), design.Height(), grown.Width(),
                  grown.Height());
    context.Capture(dialog.GetSafeHwnd(), "50-form-controls-wide");
}

} // namespace

GALLERY_PAGE("50-form-controls", "Form controls", BuildFormControlsPage);
