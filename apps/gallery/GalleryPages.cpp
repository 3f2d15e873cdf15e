#include "GalleryPage.h"

#include <algorithm>
#include <cstring>

namespace {
std::vector<GalleryPage>& Registry() {
    static std::vector<GalleryPage> pages;
    return pages;
}
} // namespace

bool RegisterGalleryPage(const GalleryPage& page) {
    auto& pages = Registry();
    pages.push_back(page);
    std::sort(pages.begin(), pages.end(),
              [](const GalleryPage& a, const GalleryPage& b) { return std::strcmp(a.id, b.id) < 0; });
    return true;
}

const std::vector<GalleryPage>& GalleryPages() { return Registry(); }
