// Which hardware disk a block device rests on, through partitions and stacked devices.
#pragma once

#include "collect/block_device_source.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The disk with hardware of its own that holds name (a whole device or a partition): a partition
// gives its disk; a device without hardware (LVM on LUKS on a partition, an md mirror) is followed
// down through what it is built on, taking the first of several in name order. None for a name
// that rests on no such disk (a loop device over a file, a memory disk) or is not listed.
std::optional<std::string> underlyingDisk(const std::vector<BlockDevice>& devices, std::string_view name);
