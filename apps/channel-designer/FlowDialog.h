#pragma once

// The flow calculator: uniform flow at one section of a reach. The section's channel fills the
// upper fields (its barrels share the flow equally); discharge, depth and velocity recompute each
// other as the user types any one of them, and the discharge field is bound to the reach's design
// discharge, which OK applies. The dialog can be made larger, and its Help button opens the help at
// "Run Analysis".

#include "Reach.h"

#include "controls/DialogORVA.h"
#include "controls/EditORVAFloat.h"
#include "controls/EditORVAInt.h"

class FlowDialog : public CDialogORVA {
public:
    static constexpr UINT kTemplateId = 151; // the help document's "Run Analysis"
    enum : UINT {
        kSectionId = 1501,
        kBedWidthId,
        kSideSlopeId,
        kRoughnessId,
        kSlopeId,
        kBarrelsId,
        kDischargeId,
        kDepthId,
        kVelocityId,
        kFroudeId,
        kDesignId,
        kGripId,
        kChannelGroupId,
        kFlowGroupId,
        kFirstLabelId = 1530,
    };

    FlowDialog(const Reach& reach, size_t section, CWnd* parent);

    // The reach's design discharge as the dialog closed with OK.
    double DesignDischarge() const { return m_design; }

    CEditORVAFloat bedWidth, sideSlope, roughness, slope;
    CEditORVAInt barrels;
    CEditORVAFloat discharge, depth, velocity, design;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override;
    void DialogResized(int deltaX, int deltaY) override;

private:
    void LoadSection(size_t section);
    void Recompute(UINT changed);
    hydraulics::Trapezoid Channel() const;

    const Reach& m_reach;
    size_t m_section;
    double m_design;
};
