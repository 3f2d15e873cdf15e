#pragma once

// The gallery on a real display: the windows the pages left open are shown, cascaded, and take
// the user's input until the last of them is closed.

#include <optional>
#include <string>

struct DisplayRun {
    // When set, the windows' pictures as the display shows them are saved after this many
    // seconds of real time (to <folder>/shown-<n>.png) and the gallery quits: a check that
    // needs nobody at the display.
    std::optional<double> shotsAfterSeconds;
    std::string shotFolder;
};

// Installs the display host; false (with the headless host kept) when there is no display.
bool OpenGalleryDisplay();
// Runs the message loop until no window of the gallery is visible; answers the exit code.
int RunGalleryOnDisplay(const DisplayRun& run);
