#pragma once

// Draws a laid-out chart on a canvas.

#include "chart/ChartLayout.h"

class Canvas;

void DrawChart(Canvas& canvas, const ChartProperties& properties, const ChartFrame& frame);
