#include "platform/system/DesktopAssociations.h"

#include <cstdlib>
#include <fnmatch.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace orva::system {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string HomeDirectory(const char* relative) {
    const std::string home = Environment("HOME");
    return home.empty() ? std::string() : home + relative;
}

std::vector<std::string> SplitPathList(const std::string& list) {
    std::vector<std::string> directories;
    std::stringstream stream(list);
    std::string directory;
    while (std::getline(stream, directory, ':'))
        if (!directory.empty())
            directories.push_back(directory);
    return directories;
}

std::string WithSlash(std::string directory) {
    if (!directory.empty() && directory.back() != '/')
        directory += '/';
    return directory;
}

// $XDG_DATA_HOME first, then $XDG_DATA_DIRS, each with the defaults the desktop gives them.
std::vector<std::string> DataDirectories() {
    std::vector<std::string> directories;
    std::string home = Environment("XDG_DATA_HOME");
    if (home.empty())
        home = HomeDirectory("/.local/share");
    if (!home.empty())
        directories.push_back(WithSlash(home));
    std::string system = Environment("XDG_DATA_DIRS");
    if (system.empty())
        system = "/usr/local/share:/usr/share";
    for (const std::string& directory : SplitPathList(system))
        directories.push_back(WithSlash(directory));
    return directories;
}

std::vector<std::string> ConfigDirectories() {
    std::vector<std::string> directories;
    std::string home = Environment("XDG_CONFIG_HOME");
    if (home.empty())
        home = HomeDirectory("/.config");
    if (!home.empty())
        directories.push_back(WithSlash(home));
    std::string system = Environment("XDG_CONFIG_DIRS");
    if (system.empty())
        system = "/etc/xdg";
    for (const std::string& directory : SplitPathList(system))
        directories.push_back(WithSlash(directory));
    return directories;
}

bool IsRegularFile(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

struct GlobMatch {
    int weight = -1;
    size_t patternLength = 0;
    std::string type;
};

void ConsiderGlob(const std::string& fileName, int weight, const std::string& type,
                  const std::string& pattern, bool caseSensitive, GlobMatch& best) {
    const int flags = caseSensitive ? 0 : FNM_CASEFOLD;
    if (fnmatch(pattern.c_str(), fileName.c_str(), flags) != 0)
        return;
    if (weight > best.weight || (weight == best.weight && pattern.size() > best.patternLength))
        best = {weight, pattern.size(), type};
}

// globs2 lines are "weight:type:pattern[:flags]"; the older globs lines "type:pattern".
void MatchGlobFile(const std::string& directory, const std::string& fileName, GlobMatch& best) {
    std::ifstream globs2(directory + "mime/globs2");
    std::string line;
    if (globs2) {
        while (std::getline(globs2, line)) {
            if (line.empty() || line[0] == '#')
                continue;
            const auto first = line.find(':');
            const auto second = line.find(':', first + 1);
            if (first == std::string::npos || second == std::string::npos)
                continue;
            const auto third = line.find(':', second + 1);
            const std::string pattern = line.substr(second + 1, third - second - 1);
            const std::string flags = third == std::string::npos ? "" : line.substr(third + 1);
            ConsiderGlob(fileName, std::atoi(line.substr(0, first).c_str()),
                         line.substr(first + 1, second - first - 1), pattern,
                         flags.find("cs") != std::string::npos, best);
        }
        return;
    }
    std::ifstream globs(directory + "mime/globs");
    while (std::getline(globs, line)) {
        const auto colon = line.find(':');
        if (line.empty() || line[0] == '#' || colon == std::string::npos)
            continue;
        ConsiderGlob(fileName, 50, line.substr(0, colon), line.substr(colon + 1), false, best);
    }
}

// The values of `key` in the group `group` of an ini-style list, split at ";".
std::vector<std::string> ListedApplications(const std::string& path, const std::string& group,
                                            const std::string& key) {
    std::vector<std::string> ids;
    std::ifstream file(path);
    std::string line;
    bool inGroup = false;
    while (std::getline(file, line)) {
        if (!line.empty() && line[0] == '[') {
            inGroup = line == "[" + group + "]";
            continue;
        }
        const auto equals = line.find('=');
        if (!inGroup || equals == std::string::npos || line.substr(0, equals) != key)
            continue;
        std::stringstream values(line.substr(equals + 1));
        std::string id;
        while (std::getline(values, id, ';'))
            if (!id.empty())
                ids.push_back(id);
    }
    return ids;
}

std::string UnescapeValue(const std::string& value) {
    std::string result;
    for (size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        switch (value[++i]) {
        case 's':
            result += ' ';
            break;
        case 'n':
            result += '\n';
            break;
        case 't':
            result += '\t';
            break;
        case 'r':
            result += '\r';
            break;
        default:
            result += value[i];
            break;
        }
    }
    return result;
}

std::optional<DesktopEntry> ReadDesktopEntry(const std::string& path) {
    std::ifstream file(path);
    if (!file)
        return std::nullopt;
    DesktopEntry entry;
    entry.path = path;
    bool inEntry = false;
    bool hidden = false;
    std::string line;
    while (std::getline(file, line)) {
        if (!line.empty() && line[0] == '[') {
            inEntry = line == "[Desktop Entry]";
            continue;
        }
        const auto equals = line.find('=');
        if (!inEntry || equals == std::string::npos)
            continue;
        std::string key = line.substr(0, equals);
        while (!key.empty() && key.back() == ' ')
            key.pop_back();
        auto valueStart = line.find_first_not_of(' ', equals + 1);
        const std::string value =
            UnescapeValue(valueStart == std::string::npos ? "" : line.substr(valueStart));
        if (key == "Exec")
            entry.exec = value;
        else if (key == "Name")
            entry.name = value;
        else if (key == "Icon")
            entry.icon = value;
        else if (key == "Hidden")
            hidden = value == "true";
    }
    if (hidden || entry.exec.empty())
        return std::nullopt;
    return entry;
}

std::optional<DesktopEntry> FindInstalledEntry(const std::string& id) {
    for (const std::string& directory : DataDirectories()) {
        const std::string path = directory + "applications/" + id;
        if (IsRegularFile(path))
            return ReadDesktopEntry(path);
    }
    return std::nullopt;
}

std::optional<DesktopEntry> FirstInstalled(const std::vector<std::string>& ids) {
    for (const std::string& id : ids)
        if (auto entry = FindInstalledEntry(id))
            return entry;
    return std::nullopt;
}

// Splits Exec into arguments: blanks separate, double quotes group, and inside them a
// backslash takes the next character literally.
std::vector<std::string> SplitExec(const std::string& exec) {
    std::vector<std::string> arguments;
    std::string argument;
    bool inArgument = false;
    bool quoted = false;
    for (size_t i = 0; i < exec.size(); ++i) {
        const char ch = exec[i];
        if (quoted) {
            if (ch == '"')
                quoted = false;
            else if (ch == '\\' && i + 1 < exec.size())
                argument += exec[++i];
            else
                argument += ch;
        } else if (ch == '"') {
            quoted = true;
            inArgument = true;
        } else if (ch == ' ' || ch == '\t') {
            if (inArgument)
                arguments.push_back(argument);
            argument.clear();
            inArgument = false;
        } else {
            argument += ch;
            inArgument = true;
        }
    }
    if (inArgument)
        arguments.push_back(argument);
    return arguments;
}

} // namespace

std::string MimeTypeOfName(const std::string& fileName) {
    const auto slash = fileName.find_last_of('/');
    const std::string name = slash == std::string::npos ? fileName : fileName.substr(slash + 1);
    GlobMatch best;
    for (const std::string& directory : DataDirectories())
        MatchGlobFile(directory, name, best);
    return best.type;
}

std::optional<DesktopEntry> DefaultApplicationFor(const std::string& mimeType) {
    if (mimeType.empty())
        return std::nullopt;
    std::vector<std::string> lists;
    for (const std::string& directory : ConfigDirectories())
        lists.push_back(directory + "mimeapps.list");
    for (const std::string& directory : DataDirectories())
        lists.push_back(directory + "applications/mimeapps.list");
    for (const std::string& list : lists)
        if (auto entry = FirstInstalled(ListedApplications(list, "Default Applications", mimeType)))
            return entry;
    for (const std::string& list : lists)
        if (auto entry = FirstInstalled(ListedApplications(list, "Added Associations", mimeType)))
            return entry;
    for (const std::string& directory : DataDirectories()) {
        const std::string list = directory + "applications/defaults.list";
        if (auto entry = FirstInstalled(ListedApplications(list, "Default Applications", mimeType)))
            return entry;
    }
    for (const std::string& directory : DataDirectories()) {
        const std::string cache = directory + "applications/mimeinfo.cache";
        if (auto entry = FirstInstalled(ListedApplications(cache, "MIME Cache", mimeType)))
            return entry;
    }
    return std::nullopt;
}

std::vector<std::string> CommandForFile(const DesktopEntry& entry, const std::string& file) {
    std::vector<std::string> command;
    for (const std::string& argument : SplitExec(entry.exec)) {
        if (argument == "%i") {
            if (!entry.icon.empty()) {
                command.push_back("--icon");
                command.push_back(entry.icon);
            }
            continue;
        }
        std::string expanded;
        bool removed = false;
        for (size_t i = 0; i < argument.size(); ++i) {
            if (argument[i] != '%' || i + 1 == argument.size()) {
                expanded += argument[i];
                continue;
            }
            switch (argument[++i]) {
            case 'f':
            case 'F':
            case 'u':
            case 'U':
                expanded += file;
                break;
            case 'c':
                expanded += entry.name;
                break;
            case 'k':
                expanded += entry.path;
                break;
            case '%':
                expanded += '%';
                break;
            default:
                removed = argument.size() == 2;
                break; // deprecated codes drop out
            }
        }
        if (!removed)
            command.push_back(expanded);
    }
    return command;
}

} // namespace orva::system
