// Runs a day of one-second sampling cycles back to back on a changing tree and prints the
// process's memory and open descriptors at the start, along the way and at the end.
#include "changing_tree.h"
#include "every_module_due.h"

#include "app/sampling_cycle.h"
#include "collect/load_system_information.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

namespace {

struct Footprint {
    long residentKb = 0;
    long privateKb = 0;
    long descriptors = 0;
};

// The sum of the "<field>: N kB" lines of one of this process's own status files.
long kilobytes(const char* file, std::initializer_list<std::string_view> fields)
{
    std::ifstream in(file);
    long total = 0;
    for (std::string line; std::getline(in, line);)
        for (const std::string_view field : fields)
            if (line.starts_with(field) && line.size() > field.size() && line[field.size()] == ':')
                total += std::stol(line.substr(field.size() + 1));
    return total;
}

Footprint footprint()
{
    Footprint f;
    f.residentKb = kilobytes("/proc/self/status", {"VmRSS"});
    f.privateKb = kilobytes("/proc/self/smaps_rollup", {"Private_Clean", "Private_Dirty"});
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
        ++f.descriptors;
    return f;
}

void report(const char* label, std::uint64_t cycle, const Footprint& f)
{
    std::printf("%-6s cycle %6llu  resident %7ld kB  private %7ld kB  descriptors %4ld\n", label,
                static_cast<unsigned long long>(cycle), f.residentKb, f.privateKb, f.descriptors);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const std::uint64_t cycles = argc > 1 ? std::max(1ULL, std::stoull(argv[1])) : 86'400;
    QTemporaryDir dir;
    if (!dir.isValid())
        return 1;
    ChangingTree tree(TARVEL_TEST_FIXTURES, std::filesystem::path(dir.path().toStdString()) / "tree");
    LoadSystemInformation loadInfo(makeSourceSet(tree.root()));
    CycleInput input = everyModuleDue();
    const auto rebuildVolumes = [&] {
        input.volumeBase =
            std::make_shared<const VolumeBaseDict>(loadInfo.retVolumeBase(loadInfo.retVolumeUtilDetail()));
    };
    rebuildVolumes();

    // The histories fill up within the first 512 cycles; the start is measured once they have.
    constexpr std::uint64_t kWarmUp = 600;
    const auto start = std::chrono::steady_clock::now();
    for (std::uint64_t cycle = 1; cycle <= cycles; ++cycle) {
        tree.step(cycle);
        // The volume tracker rebuilds the volumes when the mount table changes; the tree's
        // removable disk comes and goes every 450 cycles.
        if (cycle % 450 == 0)
            rebuildVolumes();
        // The process menu open for one cycle in ten.
        if (cycle % 10 == 0)
            (void)loadInfo.retProcessDict();
        CycleOutput out = SamplingCycle::runBody(loadInfo, input);
        input.info = std::move(out.info);
        if (cycle == std::min(kWarmUp, cycles))
            report("start", cycle, footprint());
        else if (cycle % (cycles / 10 + 1) == 0)
            report("", cycle, footprint());
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    report("end", cycles, footprint());
    std::printf("%llu cycles in %.1f s: %.0f cycles/s\n", static_cast<unsigned long long>(cycles), seconds,
                static_cast<double>(cycles) / seconds);
    return 0;
}
