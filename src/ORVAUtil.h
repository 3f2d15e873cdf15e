#pragma once

// Every public header of ORVAUtil, for an application that wants the whole library at once.

// The window framework.
#include "platform/base/Exceptions.h"
#include "platform/base/Messages.h"
#include "platform/base/Object.h"
#include "platform/base/Rect.h"
#include "platform/base/String.h"
#include "platform/base/StringArray.h"
#include "platform/base/WinTypes.h"
#include "platform/gdi/Bitmap.h"
#include "platform/gdi/Brush.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/Font.h"
#include "platform/gdi/GdiObject.h"
#include "platform/gdi/GdiTypes.h"
#include "platform/gdi/ImageList.h"
#include "platform/gdi/Pen.h"
#include "platform/gdi/Rgn.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "platform/system/SystemParameters.h"
#include "platform/widgets/Button.h"
#include "platform/widgets/ComboBox.h"
#include "platform/widgets/Edit.h"
#include "platform/widgets/ScrollBar.h"
#include "platform/widgets/Static.h"
#include "platform/window/Dialog.h"
#include "platform/window/MessageBox.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowDC.h"
#include "platform/window/WindowStyles.h"
#include "platform/window/Wnd.h"

// The charting engine's operations.
#include "chart/ChartApi.h"

// Grid.
#include "grid/CellRange.h"
#include "grid/GridCell.h"
#include "grid/GridCellBase.h"
#include "grid/GridCtrl.h"
#include "grid/GridDefaultCell.h"
#include "grid/GridItem.h"
#include "grid/GridNotify.h"

// Typed cells.
#include "cells/GridCellButton.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridCellFltCtrl.h"
#include "cells/GridCellIntCtrl.h"
#include "cells/GridColorCell.h"
#include "cells/InPlaceButton.h"

// Controls.
#include "controls/DialogORVA.h"

// Plot.
#include "plot/Plot.h"
#include "plot/PlotApi.h"
#include "plot/PlotBar.h"
#include "plot/PlotCanvas.h"
#include "plot/PlotData.h"
#include "plot/PlotEvents.h"
#include "plot/PlotFileValues.h"
#include "plot/PlotLegend.h"
#include "plot/PlotList.h"
#include "plot/PlotRealtime.h"
#include "plot/PlotScatter.h"
#include "plot/PlotWindow.h"
#include "plot/PlotWindowTop.h"
#include "plot/PlotWindows.h"
#include "plot/RightMenu.h"

// Support.
#include "support/DataReader.h"
#include "support/FormatDouble.h"
#include "support/HelpDocument.h"
#include "support/MUcolor.h"
#include "support/MemDC.h"
#include "support/PathNames.h"
#include "support/ProcessLaunch.h"
#include "support/Pt2.h"
#include "support/StdStr.h"
#include "support/TempFiles.h"
