#pragma once

// The desktop's file associations: a file's MIME type from the shared MIME database's glob
// lists, and the .desktop entry that the user's and the system's lists name for that type.
// Internal to the platform library.

#include <optional>
#include <string>
#include <vector>

namespace orva::system {

struct DesktopEntry {
    std::string path; // of the .desktop file
    std::string name;
    std::string icon;
    std::string exec; // the Exec value, unescaped
};

// The type of a file by its name, or empty when no pattern matches.
std::string MimeTypeOfName(const std::string& fileName);

// The preferred application for a MIME type: the first of the user's and then the system's
// defaults (mimeapps.list, defaults.list), then the added associations, then the cache of
// installed applications (mimeinfo.cache), whose .desktop file exists and is not hidden.
std::optional<DesktopEntry> DefaultApplicationFor(const std::string& mimeType);

// The command line of an entry for one file: Exec split by the desktop rules, with %f %F %u
// %U standing for the file, %i for the icon, %c for the name, %k for the entry, %% for "%".
// Empty if Exec names no program.
std::vector<std::string> CommandForFile(const DesktopEntry& entry, const std::string& file);

} // namespace orva::system
