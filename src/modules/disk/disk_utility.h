// The desktop's disk program, which the Disk and Volume menus offer to open.
#pragma once

#include <QString>

#include <optional>

namespace DiskUtility {

// The first installed program of the known disk programs; none when there is none.
std::optional<QString> find();

// Starts it detached from this process; false when it is not installed or did not start.
bool launch();

} // namespace DiskUtility
