#include "support/PathNames.h"

#include <cstdio>
#include <sys/stat.h>

namespace zvk_filesystem {

std::string Filename(const std::string& path) {
    std::string copy = path;
    replace(copy, '/', '\\');
    const auto separator = copy.rfind('\\');
    return separator == std::string::npos ? copy : copy.substr(separator + 1);
}

std::string Path(const std::string& path, int mode) {
    std::string copy = path;
    const char* separators;
    switch (mode) {
    case 0:
        separators = "/\\";
        break;
    case 1:
        separators = "\\";
        replace(copy, '/', '\\');
        break;
    case 2:
        separators = "/";
        replace(copy, '\\', '/');
        break;
    default:
        return {};
    }
    const auto separator = copy.find_last_of(separators);
    return separator == std::string::npos ? std::string() : copy.substr(0, separator + 1);
}

std::string PathAndBase(const std::string& path) {
    return path.substr(0, path.rfind('.'));
}

std::string Basename(const std::string& path) {
    const std::string name = Filename(path);
    return name.substr(0, name.rfind('.'));
}

std::string Extension(const std::string& path) {
    const std::string name = Filename(path);
    const auto dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

bool FileExists(const std::string& path) {
    FILE* file = std::fopen(path.c_str(), "r");
    if (file == nullptr)
        return false;
    struct stat info {};
    const bool isDirectory = fstat(fileno(file), &info) == 0 && S_ISDIR(info.st_mode);
    std::fclose(file);
    return !isDirectory;
}

std::string& replace(std::string& text, char from, char to) {
    if (from != to)
        for (char& ch : text)
            if (ch == from)
                ch = to;
    return text;
}

} // namespace zvk_filesystem
