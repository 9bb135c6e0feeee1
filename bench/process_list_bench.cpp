// Prints what one refresh of the CPU menu's process list costs: the scan with its shares, the list,
// and the application names, over a tree of 3,000 processes and over the live /proc.
#include "allocation_counter.h"

#include "collect/linux/linux_process_source.h"
#include "collect/load_system_information.h"

#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace {
constexpr int kProcesses = 3000;
constexpr int kRounds = 100;
// One program in this many belongs to an installed application.
constexpr int kApplicationEvery = 25;

std::string programOf(int i)
{
    return "prog" + std::to_string(i % 150);
}

// A /proc of kProcesses stat files, each with its program link in the form a captured tree
// keeps it (the target as text).
void writeTree(const std::filesystem::path& root)
{
    for (int i = 0; i < kProcesses; ++i) {
        const int pid = 1000 + i;
        const std::filesystem::path dir = root / "proc" / std::to_string(pid);
        std::filesystem::create_directories(dir);
        std::ofstream(dir / "stat") << pid << " (worker " << i << ") S 1 " << pid << " " << pid
                                    << " 0 -1 4194304 100 0 0 0 " << (i * 7) << " " << i << " 0 0 20 0 1 0 "
                                    << (4289574 + i) << " 36282368 " << (100 + i * 3)
                                    << " 18446744073709551615 0 0 0 0\n";
        std::ofstream(dir / "exe") << "/usr/bin/" << programOf(i) << "\n";
    }
}

// Desktop entries for every kApplicationEvery-th program.
void writeApplications(const std::filesystem::path& dataDir)
{
    const std::filesystem::path folder = dataDir / "applications";
    std::filesystem::create_directories(folder);
    for (int i = 0; i < 150; i += kApplicationEvery)
        std::ofstream(folder / (programOf(i) + ".desktop"))
            << "[Desktop Entry]\nType=Application\nName=Program " << i << "\nExec=" << programOf(i) << " %U\n";
}

double median(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

double millisSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// Each round is a refresh of an open CPU menu: the list with its shares, then the names.
void measure(const char* label, const std::filesystem::path& root)
{
    SourceSet sources;
    sources.processes = std::make_unique<LinuxProcessSource>(SysRoot(root));
    const std::size_t processes = sources.processes->scanProcesses().value_or(std::vector<ProcessRecord>()).size();
    LoadSystemInformation info(std::move(sources));
    // What opening the menu does once: the reference scan and the first names.
    info.psGetProccessAsKv(QStringLiteral("%cpu"), {}, 10, -1);
    ProcessDict names = info.retProcessDict();

    std::vector<double> listTimes, nameTimes, totalTimes;
    const std::uint64_t allocationsBefore = AllocationCounter::count();
    for (int round = 0; round < kRounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        const auto list = info.psGetProccessAsKv(QStringLiteral("%cpu"), names, 10, -1);
        const auto namesStart = std::chrono::steady_clock::now();
        names = info.retProcessDict();
        listTimes.push_back(std::chrono::duration<double, std::milli>(namesStart - start).count());
        nameTimes.push_back(millisSince(namesStart));
        totalTimes.push_back(millisSince(start));
    }
    const double allocations = static_cast<double>(AllocationCounter::count() - allocationsBefore) / kRounds;
    std::printf("%-24s %5zu processes (%lld named)\n", label, processes, static_cast<long long>(names.size()));
    std::printf("  per refresh: scan + list %.2f ms, names %.2f ms, together %.2f ms (medians); "
                "%.0f allocations (%.2f per process)\n",
                median(listTimes), median(nameTimes), median(totalTimes), allocations,
                processes > 0 ? allocations / static_cast<double>(processes) : 0.0);
}
} // namespace

int main()
{
    QTemporaryDir dir;
    if (!dir.isValid())
        return 1;
    const std::filesystem::path base = dir.path().toStdString();
    writeTree(base / "tree");
    writeApplications(base / "data");
    // The collector's desktop index reads the folders these name.
    const QByteArray home = qgetenv("XDG_DATA_HOME");
    const QByteArray dirs = qgetenv("XDG_DATA_DIRS");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString((base / "data").string()));
    qputenv("XDG_DATA_DIRS", QByteArray::fromStdString((base / "none").string()));
    measure("3000-process tree", base / "tree");
    qputenv("XDG_DATA_HOME", home);
    qputenv("XDG_DATA_DIRS", dirs);
    measure("live /proc", "/");
    return 0;
}
