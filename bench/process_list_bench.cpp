// Prints what one refresh of the CPU menu's process list costs: the scan with its shares, the list,
// and the application names, over a tree of 3,000 processes and over the live /proc.
#include "allocation_counter.h"

#include "collect/desktop_index.h"
#include "collect/linux/linux_process_source.h"
#include "collect/process_cpu_sampler.h"
#include "collect/process_list.h"
#include "collect/running_applications.h"

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

// A /proc of kProcesses stat files whose tick counts move on each write, each with its program
// link in the form a captured tree keeps it (the target as text).
void writeTree(const std::filesystem::path& root, int round)
{
    for (int i = 0; i < kProcesses; ++i) {
        const int pid = 1000 + i;
        const std::filesystem::path dir = root / "proc" / std::to_string(pid);
        std::filesystem::create_directories(dir);
        std::ofstream(dir / "stat") << pid << " (worker " << i << ") S 1 " << pid << " " << pid
                                    << " 0 -1 4194304 100 0 0 0 " << (i * 7 + round * (i % 13)) << " " << i
                                    << " 0 0 20 0 1 0 " << (4289574 + i) << " 36282368 " << (100 + i * 3)
                                    << " 18446744073709551615 0 0 0 0\n";
        if (round == 0)
            std::ofstream(dir / "exe") << "/usr/bin/" << programOf(i) << "\n";
    }
}

// Desktop entries for every kApplicationEvery-th program.
QStringList writeApplications(const QString& dataDir)
{
    const std::filesystem::path folder = std::filesystem::path(dataDir.toStdString()) / "applications";
    std::filesystem::create_directories(folder);
    for (int i = 0; i < 150; i += kApplicationEvery)
        std::ofstream(folder / (programOf(i) + ".desktop"))
            << "[Desktop Entry]\nType=Application\nName=Program " << i << "\nExec=" << programOf(i) << " %U\n";
    return {dataDir};
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

void measure(const char* label, ProcessSource& source, const QStringList& dataDirs)
{
    ProcessCpuSampler sampler;
    DesktopIndex index(dataDirs);
    // The reference scan and the first names: what opening the menu does once.
    sampler.sample(source, "%cpu");
    index.refresh();
    runningApplications(source, index);

    std::vector<double> scanTimes, nameTimes, totalTimes;
    std::size_t rows = 0;
    std::size_t named = 0;
    const std::uint64_t allocationsBefore = AllocationCounter::count();
    for (int round = 0; round < kRounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        index.refresh();
        const ProcessDict names = runningApplications(source, index);
        const auto scanStart = std::chrono::steady_clock::now();
        const auto scanned = sampler.sample(source, "%cpu");
        const QStringList list = buildProcessList(scanned.value_or(std::vector<ProcessRow>{}), names, 10, -1);
        scanTimes.push_back(millisSince(scanStart));
        nameTimes.push_back(std::chrono::duration<double, std::milli>(scanStart - start).count());
        totalTimes.push_back(millisSince(start));
        rows = scanned ? scanned->size() : 0;
        named = static_cast<std::size_t>(names.size());
    }
    const double allocations = static_cast<double>(AllocationCounter::count() - allocationsBefore) / kRounds;
    std::printf("%-24s %5zu processes (%zu named)\n", label, rows, named);
    std::printf("  per refresh: scan + list %.2f ms, names %.2f ms, together %.2f ms (medians); "
                "%.0f allocations (%.2f per process)\n",
                median(scanTimes), median(nameTimes), median(totalTimes), allocations,
                rows > 0 ? allocations / static_cast<double>(rows) : 0.0);
}
} // namespace

int main()
{
    QTemporaryDir dir;
    if (!dir.isValid())
        return 1;
    const std::filesystem::path root = dir.filePath(QStringLiteral("tree")).toStdString();
    writeTree(root, 0);
    const QStringList applications = writeApplications(dir.filePath(QStringLiteral("data")));
    LinuxProcessSource tree{SysRoot(root)};
    measure("3000-process tree", tree, applications);
    LinuxProcessSource live{SysRoot("/")};
    measure("live /proc", live, DesktopIndex::xdgDataDirs());
    return 0;
}
