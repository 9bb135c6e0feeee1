// Mount table rules: real file systems only, the top mount of a path, one mount per device.
#include "collect/volume_filter.h"

#include "collect/hex_escapes.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

namespace {
constexpr std::array<std::string_view, 7> kNetworkTypes = {"nfs",   "nfs4",       "cifs", "smb3",
                                                           "smbfs", "fuse.sshfs", "sshfs"};
// Memory, kernel and container file systems; squashfs is a packaged image (snaps, live media)
// even though it sits on a loop device.
constexpr std::array<std::string_view, 14> kSkippedTypes = {"proc",     "sysfs",  "cgroup",  "cgroup2", "tmpfs",
                                                            "devtmpfs", "devpts", "ramfs",   "overlay", "squashfs",
                                                            "autofs",   "nsfs",   "debugfs", "tracefs"};

bool contains(const auto& list, std::string_view value)
{
    return std::find(list.begin(), list.end(), value) != list.end();
}

void replaceAll(std::string& text, std::string_view what)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at))
        text.erase(at, what.size());
}

} // namespace

bool isNetworkFileSystem(std::string_view fsType)
{
    return contains(kNetworkTypes, fsType);
}

bool isVolumeMount(const MountRecord& mount)
{
    if (isNetworkFileSystem(mount.fsType))
        return true;
    if (contains(kSkippedTypes, mount.fsType))
        return false;
    // ZFS datasets name their pool, not a device.
    return mount.source.starts_with("/dev/") || mount.fsType == "zfs";
}

std::vector<MountRecord> selectVolumeMounts(const std::vector<MountRecord>& table)
{
    // A path mounted over shows only its top mount, whatever that is.
    std::map<std::string_view, std::size_t> topRow;
    for (std::size_t row = 0; row < table.size(); ++row)
        topRow[table[row].mountPoint] = row;

    std::vector<MountRecord> volumes;
    std::set<std::pair<std::uint32_t, std::uint32_t>> devices;
    for (std::size_t row = 0; row < table.size(); ++row) {
        const MountRecord& mount = table[row];
        if (topRow[mount.mountPoint] != row || !isVolumeMount(mount))
            continue;
        // A second mount of one file system (a bind mount, another subvolume) measures the same
        // space again; the first one met stands for it.
        const std::pair device{mount.major, mount.minor};
        if (device != std::pair<std::uint32_t, std::uint32_t>{0, 0} && !devices.insert(device).second)
            continue;
        volumes.push_back(mount);
    }
    return volumes;
}

bool mountedReadOnly(std::string_view options)
{
    while (!options.empty()) {
        const std::size_t comma = options.find(',');
        if (options.substr(0, comma) == "ro")
            return true;
        if (comma == std::string_view::npos)
            break;
        options.remove_prefix(comma + 1);
    }
    return false;
}

std::string networkShareName(std::string_view source)
{
    std::string name = decodeHexEscapes(source, "%");
    replaceAll(name, "//");
    replaceAll(name, ";AUTH=");
    return name;
}
