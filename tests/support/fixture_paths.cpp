// Fixture locations baked in at configure time.
#include "fixture_paths.h"

std::filesystem::path projectFixtures()
{
    return TARVEL_TEST_FIXTURES;
}

std::filesystem::path sharedProcfsTree()
{
    const std::filesystem::path tree = std::filesystem::path(TARVEL_SHARED_FIXTURES) / "linux-procfs";
    std::error_code ec;
    return std::filesystem::is_directory(tree / "proc", ec) ? tree : std::filesystem::path();
}
