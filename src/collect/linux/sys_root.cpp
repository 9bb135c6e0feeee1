// Joins relative kernel paths onto the chosen root.
#include "collect/linux/sys_root.h"

SysRoot::SysRoot(std::filesystem::path root)
    : root_(std::move(root))
{
    if (root_.empty())
        root_ = "/";
}

std::filesystem::path SysRoot::join(std::string_view relative) const
{
    // Resolved as if from "/" first: ".." cannot climb above it, so a path from the tree (a mount
    // point of "/../..", say) stays in the tree; and a leading slash would make operator/
    // discard the root, silently reading the live system.
    const std::filesystem::path inside = (std::filesystem::path("/") / relative).lexically_normal();
    return root_ / inside.relative_path();
}
