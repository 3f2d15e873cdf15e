// The chart's own dialogs.

#include "chart/ChartApi.h"

int ChartCustomizeDialog(HWND) {
    return 0;
}
int ChartExportDialog(HWND) {
    return 0;
}
int ChartMaximize(HWND) {
    return 0;
}
