#pragma once

// A page of the gallery: one part of the library put on screen. Each page file registers itself
// with GALLERY_PAGE; the gallery builds the pages in the order of their ids, captures the
// windows they name as PNG files when headless, and shows them when a display is present.

#include "platform/base/WinTypes.h"

#include <string>
#include <vector>

class GalleryContext {
public:
    virtual ~GalleryContext() = default;
    // Records the top-level window as a picture of this page, saved as <output>/<name>.png.
    virtual void Capture(HWND window, const char* name) = 0;
    // The same, as a display shows it: the windows above it (open menus, windows it owns) too.
    virtual void CaptureScreen(HWND window, const char* name) = 0;
    // A line of the gallery's report: what the page holds, read back from the library.
    virtual void Print(const char* format, ...) __attribute__((format(printf, 2, 3))) = 0;
    // Where a page that writes files of its own (a chart's PNG, a data file) puts them.
    virtual std::string OutputPath(const char* fileName) const = 0;
};

struct GalleryPage {
    const char* id;    // sorts the pages: "10-platform-drawing", "20-grid-store", ...
    const char* title; // shown to the user
    void (*build)(GalleryContext& context);
};

const std::vector<GalleryPage>& GalleryPages();
bool RegisterGalleryPage(const GalleryPage& page);

#define GALLERY_PAGE(id, title, build)                                                             \
    static const bool galleryPageRegistered_##build = RegisterGalleryPage({id, title, build})
