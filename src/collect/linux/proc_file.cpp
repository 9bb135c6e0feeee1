// Kept-open kernel files: one open, then pread from offset 0 on every sample.
#include "collect/linux/proc_file.h"

#include "collect/collect_log.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// Most kernel text files fit; /proc/stat on large machines grows the buffer once.
constexpr std::size_t kInitialBuffer = 4096;

int openReadOnly(const std::filesystem::path& path)
{
    return openKernelFile(AT_FDCWD, path.c_str());
}
} // namespace

// Kernel text files are regular files. A pipe nobody writes would block a read for ever and a
// device such as /dev/zero never ends, so anything else standing in their place (in a tree
// given with --root, say) is not opened; non-blocking, so that even opening a pipe cannot wait.
int openKernelFile(int folder, const char* path)
{
    int fd;
    do {
        fd = ::openat(folder, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0)
        return fd;
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        errno = EINVAL;
        return -1;
    }
    return fd;
}

ProcFile::ProcFile(std::filesystem::path path)
    : path_(std::move(path))
{}

ProcFile::~ProcFile()
{
    close();
}

ProcFile::ProcFile(ProcFile&& other) noexcept
    : path_(std::move(other.path_))
    , fd_(other.fd_)
    , failureReported_(other.failureReported_)
    , buffer_(std::move(other.buffer_))
{
    other.fd_ = -1;
}

ProcFile& ProcFile::operator=(ProcFile&& other) noexcept
{
    if (this != &other) {
        close();
        path_ = std::move(other.path_);
        fd_ = other.fd_;
        failureReported_ = other.failureReported_;
        buffer_ = std::move(other.buffer_);
        other.fd_ = -1;
    }
    return *this;
}

std::optional<std::string_view> ProcFile::read()
{
    if (!ensureOpen())
        return std::nullopt;
    auto size = readAll();
    if (!size) {
        close();
        if (!ensureOpen())
            return std::nullopt;
        size = readAll();
        if (!size) {
            close();
            return std::nullopt;
        }
    }
    return std::string_view(buffer_.data(), *size);
}

int ProcFile::descriptor()
{
    return ensureOpen() ? fd_ : -1;
}

std::optional<std::string> ProcFile::readOnce(const std::filesystem::path& path)
{
    const int fd = openReadOnly(path);
    if (fd < 0)
        return std::nullopt;
    // Attribute and per-process files are small: start small rather than with a page.
    std::string text(256, '\0');
    std::size_t total = 0;
    for (;;) {
        if (total == text.size()) {
            if (total >= ProcFile::kMaxBytes) {
                ::close(fd);
                return std::nullopt;
            }
            text.resize(text.size() * 2);
        }
        const ssize_t got = ::read(fd, text.data() + total, text.size() - total);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            ::close(fd);
            if (got < 0)
                return std::nullopt;
            text.resize(total);
            return text;
        }
        total += static_cast<std::size_t>(got);
    }
}

bool ProcFile::ensureOpen()
{
    if (fd_ >= 0)
        return true;
    fd_ = openReadOnly(path_);
    if (fd_ < 0) {
        // Missing files are normal (no swap, no sensors); say so once, not every tick.
        if (!failureReported_)
            qCDebug(lcCollect) << "cannot open" << path_.c_str() << "errno" << errno;
        failureReported_ = true;
        return false;
    }
    failureReported_ = false;
    return true;
}

void ProcFile::close()
{
    if (fd_ >= 0)
        ::close(fd_);
    fd_ = -1;
}

std::optional<std::size_t> ProcFile::readAll()
{
    if (buffer_.empty())
        buffer_.resize(kInitialBuffer);
    std::size_t total = 0;
    // Read until end of file: a kernel file may hand out its text in more than one piece.
    for (;;) {
        if (total == buffer_.size()) {
            if (total >= kMaxBytes)
                return std::nullopt;
            buffer_.resize(buffer_.size() * 2);
        }
        const ssize_t got = ::pread(fd_, buffer_.data() + total, buffer_.size() - total, static_cast<off_t>(total));
        if (got < 0) {
            if (errno == EINTR)
                continue;
            return std::nullopt;
        }
        if (got == 0)
            return total;
        total += static_cast<std::size_t>(got);
    }
}
