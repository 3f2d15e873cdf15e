#pragma once

// Stand-ins for the system's print spoolers, for tests of printing.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

// A folder of stand-in spoolers, the only one on PATH while it lives: each writes its name and
// arguments to <folder>/spooled, and exits with the code it was made with.
class FakeSpoolers {
public:
    FakeSpoolers() : m_path(std::getenv("PATH")) {
        const char* temporary = std::getenv("TMPDIR");
        m_folder = std::string(temporary ? temporary : "/tmp") + "/chart-test-spoolers";
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
        setenv("PATH", m_folder.c_str(), 1);
    }
    ~FakeSpoolers() {
        setenv("PATH", m_path.c_str(), 1);
        std::filesystem::remove_all(m_folder);
    }
    void Add(const char* name, int exitCode) {
        const std::string path = m_folder + "/" + name;
        std::ofstream(path) << "#!/bin/sh\necho " << name << " \"$@\" >> '" << m_folder
                            << "/spooled'\nexit " << exitCode << "\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    std::string Spooled() const {
        std::ifstream in(m_folder + "/spooled");
        return std::string((std::istreambuf_iterator<char>(in)), {});
    }

private:
    std::string m_folder;
    std::string m_path;
};
