// Which rows of the mount table are volumes to show, and the facts their rows carry.
#pragma once

#include "collect/mount_source.h"

#include <string>
#include <string_view>
#include <vector>

// NFS, SMB/CIFS and SSHFS shares.
bool isNetworkFileSystem(std::string_view fsType);

// A file system with space of its own: on a block device, a network share or a storage pool.
bool isVolumeMount(const MountRecord& mount);

// The rows to show, in table order: volumes only; of a mount point mounted over, only the top
// row; of a file system mounted more than once (bind mounts), only its first mount point.
std::vector<MountRecord> selectVolumeMounts(const std::vector<MountRecord>& table);

// True when the options carry "ro" (the mount's or the file system's).
bool mountedReadOnly(std::string_view options);

// A share's source as a name: percent escapes decoded, then every "//" and ";AUTH=" removed
// ("//nas/Public%20Docs" gives "nas/Public Docs").
std::string networkShareName(std::string_view source);
