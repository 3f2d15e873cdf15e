#pragma once

// The chart drawn elsewhere than in its window, at a size of the caller's: the pictures and
// documents that the clipboard, bitmap file, print and export operations are made of. Internal
// to the chart library.

#include <string>

class ChartEngine;

// Reads a requested size, two integers: false unless both lie in 1 to 16384.
bool ChartOutputSize(const int* size, int& width, int& height);
// The chart as an SVG picture; empty on failure.
std::string ChartSvgPicture(ChartEngine& engine, int width, int height);
bool WriteChartSvg(ChartEngine& engine, int width, int height, const char* path);
// One PDF page of the given size in pixels at 96 DPI.
bool WriteChartPdf(ChartEngine& engine, int width, int height, const char* path);
