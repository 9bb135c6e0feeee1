// Where the test fixture trees live.
#pragma once

#include <filesystem>

// The project's own small fixtures (tests/fixtures).
std::filesystem::path projectFixtures();

// The shared captured /proc and /sys tree, or an empty path when it is not present.
std::filesystem::path sharedProcfsTree();
