// The directory the Linux readers treat as "/", so that a captured tree can stand in for it.
#pragma once

#include <filesystem>
#include <string_view>

class SysRoot {
public:
    explicit SysRoot(std::filesystem::path root = "/");

    // root joined with a path relative to it, such as "proc/stat".
    [[nodiscard]] std::filesystem::path join(std::string_view relative) const;
    [[nodiscard]] const std::filesystem::path& root() const { return root_; }

private:
    std::filesystem::path root_;
};
