// Source of the mount table, with a cheap way to learn that it changed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct MountRecord {
    std::string mountPoint;
    std::string source; // the mounted-from name: a device path, a server path, "tmpfs", ...
    std::string fsType;
    std::string options; // per-mount and file-system options together
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::string root; // the directory of the file system that is mounted there
};

// The size of a mounted file system.
struct FileSystemSpace {
    std::uint64_t totalBytes = 0;     // what is used plus what is available, as df shares them
    std::uint64_t availableBytes = 0; // what an ordinary user may still write
};

class MountSource {
public:
    virtual ~MountSource() = default;
    // The table in mount order; escaped characters in paths are already decoded.
    virtual std::optional<std::vector<MountRecord>> mounts() = 0;
    // True once for each change of the table since the previous call. Never blocks.
    virtual bool changed() = 0;
    // A descriptor that an event loop can wait on for changes of the table (it turns
    // exceptional, POLLPRI); -1 when there is none. Waiting on it takes the change that
    // changed() would report, so use one or the other.
    virtual int changeDescriptor() { return -1; }
    // The file system mounted at mountPoint; empty when it cannot be queried.
    virtual std::optional<FileSystemSpace> space(const std::string& mountPoint) = 0;
};
