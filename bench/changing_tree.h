// A /proc and /sys tree that a soak run changes every cycle, as a long-running machine's does.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

// Built from the small-machine fixture in a folder of its own. Each step moves the counters
// (starting near 2^64, so that they wrap within the first hour), and on their own periods an
// interface goes down and up, a second interface and a removable disk with its mount come and
// go, and processes start and end.
class ChangingTree {
public:
    ChangingTree(const std::filesystem::path& fixtures, const std::filesystem::path& root);

    // The tree of cycle number `cycle`.
    void step(std::uint64_t cycle);

    [[nodiscard]] const std::filesystem::path& root() const { return root_; }

private:
    void writeCounters(std::uint64_t cycle);
    void writeInterfaces(std::uint64_t cycle, bool withSecond);
    void writeStorage(std::uint64_t cycle, bool withRemovable);
    void writeProcesses(std::uint64_t cycle);
    // Written through the existing inode where there is one, as the kernel's files stay put.
    void write(const std::string& relative, const std::string& text) const;

    std::filesystem::path root_;
};
