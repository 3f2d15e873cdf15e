#pragma once

// A folder of its own for one test, removed with everything in it at the end.

#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

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

    // A named pipe that a child process writes into, for a test that must see what the child
    // did without waiting for its end.
    std::string MakePipe(const std::string& relative) const {
        const std::string path = *this / relative;
        mkfifo(path.c_str(), 0600);
        return path;
    }

    // Everything written into the pipe until its writer closes it, waiting five seconds at
    // most.
    std::string ReadPipe(const std::string& relative) const {
        const int descriptor = open((*this / relative).c_str(), O_RDONLY | O_NONBLOCK);
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        std::string text;
        while (std::chrono::steady_clock::now() < deadline) {
            pollfd watch{descriptor, POLLIN, 0};
            if (poll(&watch, 1, 100) < 0)
                break;
            char chunk[256];
            const ssize_t got = read(descriptor, chunk, sizeof chunk);
            if (got > 0)
                text.append(chunk, size_t(got));
            else if (!text.empty())
                break;
        }
        close(descriptor);
        return text;
    }

private:
    std::string m_path;
};
