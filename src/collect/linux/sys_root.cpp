// Joins relative kernel paths onto the chosen root.
#include "collect/linux/sys_root.h"

SysRoot::SysRoot(std::filesystem::path root) : root_(std::move(root))
{
    if (root_.empty())
        root_ = "/";
}

std::filesystem::path SysRoot::join(std::string_view relative) const
{
    // A leading slash would make operator/ discard the root, silently reading the live system.
    while (!relative.empty() && relative.front() == '/')
        relative.remove_prefix(1);
    return root_ / relative;
}
