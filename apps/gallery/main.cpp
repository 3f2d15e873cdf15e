// The gallery: builds every registered page in order. Headless (the default), it writes each
// window a page captures to <out>/<name>.png and prints the page's report; with --window it
// then keeps the pages' windows on the display until the user closes them.

#include "GalleryDisplay.h"
#include "GalleryPage.h"

#include "platform/host/Host.h"
#include "platform/testing/MessageBoxResponder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/WindowApi.h"
#include "platform/window/Wnd.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>

namespace {

struct Options {
    std::string outputFolder = "gallery-out";
    bool window = false;
    std::optional<double> shotsAfter; // seconds on the display before reading it back
    std::string only;                 // a page id prefix, to build a single page
};

class HeadlessGalleryContext : public GalleryContext {
public:
    explicit HeadlessGalleryContext(std::filesystem::path folder) : m_folder(std::move(folder)) {}

    void Capture(HWND window, const char* name) override { Save(window, name, false); }
    void CaptureScreen(HWND window, const char* name) override { Save(window, name, true); }

    void Save(HWND window, const char* name, bool withWindowsAbove) {
        if (!IsWindow(window) || !name) {
            Print("capture of \"%s\" skipped: no window", name ? name : "");
            return;
        }
        if (!IsWindowVisible(window))
            ShowWindow(window, SW_SHOWNA);
        const std::string path = OutputPath((std::string(name) + ".png").c_str());
        const bool saved = withWindowsAbove ? m_driver.SaveScreenPng(window, path.c_str())
                                            : m_driver.SavePng(window, path.c_str());
        if (saved)
            std::printf("%s\n", path.c_str());
        else
            Print("capture of \"%s\" failed", name);
        ++m_captures;
    }

    void Print(const char* format, ...) override {
        va_list args;
        va_start(args, format);
        std::vprintf(format, args);
        va_end(args);
        std::printf("\n");
    }

    std::string OutputPath(const char* fileName) const override {
        return (m_folder / (fileName ? fileName : "")).string();
    }

    int Captures() const { return m_captures; }

private:
    std::filesystem::path m_folder;
    UiDriver m_driver;
    int m_captures = 0;
};

bool ParseOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--out" && i + 1 < argc)
            options.outputFolder = argv[++i];
        else if (arg.rfind("--out=", 0) == 0)
            options.outputFolder = arg.substr(6);
        else if (arg == "--page" && i + 1 < argc)
            options.only = argv[++i];
        else if (arg == "--window")
            options.window = true;
        else if (arg == "--shots-after" && i + 1 < argc)
            options.shotsAfter = std::atof(argv[++i]);
        else {
            std::fprintf(stderr, "usage: gallery [--out folder] [--page id] "
                                 "[--window [--shots-after seconds]]\n");
            return false;
        }
    }
    return true;
}

// Builds the pages in order. Message boxes take their default button and are reported, so a
// page never stops; on a display, the boxes the user causes afterwards are real ones.
void BuildPages(HeadlessGalleryContext& context, const Options& options) {
    MessageBoxResponder boxes;
    for (const GalleryPage& page : GalleryPages()) {
        if (!options.only.empty() && std::string(page.id).rfind(options.only, 0) != 0)
            continue;
        context.Print("== %s: %s", page.id, page.title);
        const int before = boxes.Count();
        page.build(context);
        PumpMessages();
        for (int i = before; i < boxes.Count(); ++i)
            context.Print("message box \"%s\" answered %d", boxes.Boxes()[size_t(i)].text.c_str(),
                          boxes.Boxes()[size_t(i)].answer);
    }
}

// Ends the windows the pages kept, while the objects that own them (often statics) still live.
void CloseAllWindows() {
    while (HWND top = GetTopWindow(nullptr))
        if (!DestroyWindow(top))
            break;
    PumpMessages();
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    if (!ParseOptions(argc, argv, options))
        return 2;
    if (options.window && !OpenGalleryDisplay()) {
        std::fprintf(stderr, "gallery: no display found; writing pictures only\n");
        options.window = false;
    }

    std::error_code error;
    std::filesystem::create_directories(options.outputFolder, error);
    if (error) {
        std::fprintf(stderr, "gallery: cannot create %s: %s\n", options.outputFolder.c_str(),
                     error.message().c_str());
        return 1;
    }

    HeadlessGalleryContext context(options.outputFolder);
    BuildPages(context, options);
    context.Print("%d pictures in %s", context.Captures(), options.outputFolder.c_str());
    const int exitCode =
        options.window ? RunGalleryOnDisplay({options.shotsAfter, options.outputFolder}) : 0;
    CloseAllWindows();
    return exitCode;
}
