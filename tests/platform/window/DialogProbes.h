#pragma once

// Stand-ins for the standard controls, under class names of their own, so that the dialog
// manager's tests do not depend on how the real controls look or behave: a button that is a
// push button, default push button, check box or radio button by its BS_ style, and an edit
// that takes typed characters. Each answers WM_GETDLGCODE as its real counterpart does.

#include "platform/window/DialogApi.h"

constexpr char kProbeButton[] = "DialogProbeButton";
constexpr char kProbeEdit[] = "DialogProbeEdit";

// Registers both classes (once).
void RegisterDialogProbes();
