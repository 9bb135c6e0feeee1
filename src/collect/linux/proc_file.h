// A kernel file kept open and re-read from the start on every read, into a reused buffer.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Opens a kernel file for reading, relative to the folder descriptor (AT_FDCWD for the working
// folder, or an absolute path): only a regular file, and never waiting; -1 otherwise.
int openKernelFile(int folder, const char* path);

class ProcFile {
public:
    // No kernel text file we read comes near this (a /proc/self/mountinfo of 30,000 mounts
    // is about 4 MiB); a file that grows beyond it reads as unreadable rather than without end.
    static constexpr std::size_t kMaxBytes = 16U * 1024U * 1024U;

    explicit ProcFile(std::filesystem::path path);
    ~ProcFile();
    ProcFile(ProcFile&& other) noexcept;
    ProcFile& operator=(ProcFile&& other) noexcept;
    ProcFile(const ProcFile&) = delete;
    ProcFile& operator=(const ProcFile&) = delete;

    // The whole file as it is now, or empty when it cannot be opened or read, is not a regular
    // file or is longer than kMaxBytes. The view is
    // valid until the next read. A file that vanished (its process ended, its device went
    // away) is reopened once before giving up.
    std::optional<std::string_view> read();

    // The open descriptor, opening the file first if needed; -1 when it cannot be opened.
    int descriptor();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    // Opens, reads and closes: for files read once or rarely.
    static std::optional<std::string> readOnce(const std::filesystem::path& path);

private:
    bool ensureOpen();
    void close();
    std::optional<std::size_t> readAll();

    std::filesystem::path path_;
    int fd_ = -1;
    bool failureReported_ = false;
    std::vector<char> buffer_;
};
