#pragma once

// PNG files of canvas images, made for speed: rows filtered against the row above, which leaves
// a chart's flat areas as runs of zeros, and deflated with run-length matching only. The colours
// are those Cairo's own writer gives: RGB for an opaque image, else RGBA without premultiplied
// alpha.

#include "platform/base/Export.h"

#include <string>

// `pixels` are premultiplied ARGB words, rows `stride` bytes apart. Empty on failure.
ORVA_API std::string EncodePng(const unsigned char* pixels, int width, int height, int stride);
