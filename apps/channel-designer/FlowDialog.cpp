// The flow calculator's layout, and its fields recomputing each other.

#include "FlowDialog.h"

#include "platform/base/Messages.h"
#include "platform/window/DialogTemplate.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <algorithm>

namespace {

struct Field {
    UINT id;
    const char* label;
    int top; // dialog units
};
constexpr Field kFields[] = {
    {FlowDialog::kBedWidthId, "Bed width (m)", 46},
    {FlowDialog::kSideSlopeId, "Side slope (H:1V)", 62},
    {FlowDialog::kRoughnessId, "Manning's n", 78},
    {FlowDialog::kSlopeId, "Bed slope (m/m)", 94},
    {FlowDialog::kBarrelsId, "Barrels", 110},
    {FlowDialog::kDischargeId, "Discharge, all barrels (m3/s)", 150},
    {FlowDialog::kDepthId, "Depth (m)", 166},
    {FlowDialog::kVelocityId, "Velocity (m/s)", 182},
    {FlowDialog::kDesignId, "Design discharge of the reach (m3/s)", 224},
};
constexpr int kWidth = 250;
constexpr int kHeight = 268;
constexpr int kFieldLeft = 150;

void RegisterTemplate() {
    if (FindDialogTemplate(FlowDialog::kTemplateId))
        return;
    DialogTemplate dialog{"Flow calculator", {kWidth, kHeight}, {}};
    dialog.style |= WS_THICKFRAME;
    auto& items = dialog.items;
    items.push_back({"Static", "Section:", FlowDialog::kFirstLabelId, WS_VISIBLE, {8, 10, 60, 20}});
    items.push_back({"ComboBox",
                     "",
                     FlowDialog::kSectionId,
                     WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST,
                     {64, 8, kWidth - 8, 120}});
    items.push_back({"Button",
                     "Channel",
                     FlowDialog::kChannelGroupId,
                     WS_VISIBLE | BS_GROUPBOX,
                     {4, 30, kWidth - 4, 128}});
    items.push_back({"Button",
                     "Uniform flow",
                     FlowDialog::kFlowGroupId,
                     WS_VISIBLE | BS_GROUPBOX,
                     {4, 134, kWidth - 4, 214}});
    UINT labelId = FlowDialog::kFirstLabelId + 1;
    for (const Field& field : kFields)
        items.push_back({"Static",
                         field.label,
                         labelId++,
                         WS_VISIBLE,
                         {field.id == FlowDialog::kDesignId ? 8 : 12, field.top + 2, kFieldLeft - 4,
                          field.top + 12}});
    items.push_back({"Static", "", FlowDialog::kFroudeId, WS_VISIBLE, {12, 200, kWidth - 10, 210}});
    items.push_back({"Button",
                     "OK",
                     IDOK,
                     WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON,
                     {kWidth - 170, kHeight - 20, kWidth - 118, kHeight - 6}});
    items.push_back({"Button",
                     "Cancel",
                     IDCANCEL,
                     WS_VISIBLE | WS_TABSTOP,
                     {kWidth - 114, kHeight - 20, kWidth - 62, kHeight - 6}});
    items.push_back({"Button",
                     "&Help",
                     IDHELP,
                     WS_VISIBLE | WS_TABSTOP,
                     {kWidth - 58, kHeight - 20, kWidth - 8, kHeight - 6}});
    items.push_back({"ScrollBar",
                     "",
                     FlowDialog::kGripId,
                     WS_VISIBLE | SBS_SIZEGRIP,
                     {kWidth - 8, kHeight - 8, kWidth, kHeight}});
    RegisterDialogTemplate(FlowDialog::kTemplateId, std::move(dialog));
}

} // namespace

FlowDialog::FlowDialog(const Reach& reach, size_t section, CWnd* parent)
    : CDialogORVA((RegisterTemplate(), kTemplateId), parent), m_reach(reach),
      m_section(section < reach.sections.size() ? section : 0), m_design(reach.discharge) {}

BOOL FlowDialog::OnInitDialog() {
    const BOOL result = CDialogORVA::OnInitDialog();
    CEditORVAFloat* edits[] = {&bedWidth,  &sideSlope, &roughness, &slope, &barrels,
                               &discharge, &depth,     &velocity,  &design};
    for (size_t i = 0; i < std::size(edits); ++i) {
        RECT r{kFieldLeft, kFields[i].top, kWidth - 12, kFields[i].top + 12};
        if (kFields[i].id == kDesignId)
            r.right = kWidth - 8;
        MapDialogRect(&r);
        edits[i]->CreateEx(WS_EX_CLIENTEDGE, WS_CHILD | WS_VISIBLE | WS_TABSTOP, r, this,
                           kFields[i].id);
        edits[i]->SetFont(GetFont(), FALSE);
        edits[i]->SetMinAndMax(0.0, 1.0e6);
    }
    barrels.SetMinAndMax(1, 20);
    roughness.SetMaxPrec(4);
    slope.SetMaxPrec(6);
    for (CEditORVAFloat* e : {&discharge, &depth, &velocity, &design})
        e->SetMaxPrec(3);

    const HWND sections = ::GetDlgItem(m_hWnd, kSectionId);
    for (size_t i = 0; i < m_reach.sections.size(); ++i) {
        CString item;
        item.Format("%zu: chainage %.1f m, %s", i + 1, m_reach.sections[i].chainage,
                    Linings()[size_t(m_reach.sections[i].lining)].name);
        ::SendMessage(sections, CB_ADDSTRING, 0, LPARAM(item.GetString()));
    }
    ::SendMessage(sections, CB_SETCURSEL, m_section, 0);
    design.SetValue(m_reach.discharge, -1);
    LoadSection(m_section);
    // The reach's design discharge follows the discharge field as it is typed.
    discharge.SendMessage(WM_EDIT_BINDCONTROL, kDesignId);
    return result;
}

void FlowDialog::LoadSection(size_t section) {
    m_section = section;
    const CrossSection& s = m_reach.sections[section];
    bedWidth.SetValue(s.bedWidth, -1);
    sideSlope.SetValue(s.sideSlope, -1);
    roughness.SetValue(s.Roughness(), -1);
    slope.SetValue(m_reach.BedSlope(section), -1);
    barrels.SetValue(s.barrels);
    discharge.SetValue(m_reach.DischargeAt(section), -1);
    Recompute(kDischargeId);
}

hydraulics::Trapezoid FlowDialog::Channel() const {
    return {bedWidth.GetValue(), sideSlope.GetValue()};
}

void FlowDialog::Recompute(UINT changed) {
    // One barrel carries its share of the discharge.
    const hydraulics::Trapezoid channel = Channel();
    const double n = roughness.GetValue();
    const double s = slope.GetValue();
    const int shares = std::max(1, barrels.GetValue());
    std::optional<double> h;
    switch (changed) {
    case kDepthId:
        h = depth.GetValue();
        break;
    case kVelocityId:
        h = hydraulics::DepthForVelocity(channel, velocity.GetValue(), n, s);
        break;
    default: // the discharge or the channel changed
        h = hydraulics::NormalDepth(channel, discharge.GetValue() / shares, n, s);
        break;
    }
    CString froude = "No uniform flow: the bed must fall and the channel needs width.";
    if (h && *h > 0) {
        if (changed != kDepthId)
            depth.SetValue(*h, -1);
        if (changed != kVelocityId)
            velocity.SetValue(hydraulics::Velocity(channel, *h, n, s), -1);
        if (changed != kDischargeId)
            discharge.SetValue(shares * hydraulics::Discharge(channel, *h, n, s), -1);
        const double fr = hydraulics::FroudeNumber(channel, *h, n, s);
        froude.Format("Froude number %.2f: %s flow, top width %.2f m.", fr,
                      fr < 1 ? "subcritical" : "supercritical", hydraulics::TopWidth(channel, *h));
    }
    SetDlgItemText(kFroudeId, froude);
}

BOOL FlowDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if (id == kSectionId && HIWORD(wParam) == CBN_SELCHANGE) {
        const LRESULT chosen = ::SendMessage(HWND(lParam), CB_GETCURSEL, 0, 0);
        if (chosen >= 0 && size_t(chosen) < m_reach.sections.size())
            LoadSection(size_t(chosen));
        return TRUE;
    }
    // Only the field being typed into drives the others; their own changes come back here too
    // and stop at this test.
    if (HIWORD(wParam) == EN_CHANGE && id != kDesignId &&
        ::GetFocus() == reinterpret_cast<HWND>(lParam))
        Recompute(id);
    return CDialogORVA::OnCommand(wParam, lParam);
}

void FlowDialog::OnOK() {
    // The focus leaving commits a field that is still being typed in.
    ::SetFocus(nullptr);
    m_design = design.GetValue();
    CDialogORVA::OnOK();
}

void FlowDialog::DialogResized(int deltaX, int deltaY) {
    for (const Field& field : kFields)
        MoveSizeItem(int(field.id), 0, 0, deltaX, 0);
    for (UINT id : {UINT(kSectionId), UINT(kChannelGroupId), UINT(kFlowGroupId), UINT(kFroudeId)})
        MoveSizeItem(int(id), 0, 0, deltaX, 0);
    for (int id : {IDOK, IDCANCEL, IDHELP, int(kGripId)})
        MoveSizeItem(id, deltaX, deltaY, 0, 0);
}
