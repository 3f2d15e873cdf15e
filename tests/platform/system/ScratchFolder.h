#pragma once

// A folder of its own for one test, removed with everything in it at the end.

#include <filesystem>
#include <fstream>
#include <string>

class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "orva-test-XXXXXX");
        m_path = mkdtemp(pattern.data());
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    // The folder's path with a trailing "/", followed by `relative`.
    std::string operator/(const std::string& relative) const { return m_path + "/" + relative; }
    const std::string& Path() const { return m_path; }

    std::string Write(const std::string& relative, const std::string& content) const {
        const std::string path = *this / relative;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

private:
    std::string m_path;
};
