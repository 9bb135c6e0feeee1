// Source of the mount table, with a cheap way to learn that it changed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct MountRecord {
    std::string mountPoint;
    std::string source;      // the mounted-from name: a device path, a server path, "tmpfs", ...
    std::string fsType;
    std::string options;     // per-mount and file-system options together
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::string root;        // the directory of the file system that is mounted there
};

class MountSource {
public:
    virtual ~MountSource() = default;
    // The table in mount order; escaped characters in paths are already decoded.
    virtual std::optional<std::vector<MountRecord>> mounts() = 0;
    // True once for each change of the table since the previous call. Never blocks.
    virtual bool changed() = 0;
};
