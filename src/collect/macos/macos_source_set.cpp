// The macOS sources; areas without a source here stay empty in the set.
#include "collect/macos/macos_cpu_source.h"
#include "collect/macos/macos_smc_source.h"
#include "collect/source_set.h"

SourceSet makeSourceSet(const std::filesystem::path&)
{
    SourceSet sources;
    sources.cpu = std::make_unique<MacosCpuSource>();
    sources.smc = std::make_unique<MacosSmcSource>();
    return sources;
}
