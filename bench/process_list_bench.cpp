// Prints the cost of one process scan and list build, over 500 fake processes and the live /proc.
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
constexpr int kProcesses = 500;
constexpr int kRounds = 200;

// A /proc of kProcesses stat files whose tick counts move on each write.
void writeTree(const std::filesystem::path& root, int round)
{
    for (int i = 0; i < kProcesses; ++i) {
        const int pid = 1000 + i;
        const std::filesystem::path dir = root / "proc" / std::to_string(pid);
        std::filesystem::create_directories(dir);
        std::ofstream(dir / "stat") << pid << " (worker " << i << ") S 1 " << pid << " " << pid
                                    << " 0 -1 4194304 100 0 0 0 " << (i * 7 + round * (i % 13)) << " " << i
                                    << " 0 0 20 0 1 0 4289574 36282368 " << (100 + i * 3)
                                    << " 18446744073709551615 0 0 0 0\n";
    }
}

double medianMicros(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

void measure(const char* label, ProcessSource& source)
{
    ProcessCpuSampler sampler;
    sampler.sample(source, "%cpu"); // the reference scan
    std::vector<double> listTimes;
    std::size_t rows = 0;
    for (int round = 0; round < kRounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        const auto scanned = sampler.sample(source, "%cpu");
        const QStringList list = buildProcessList(scanned.value_or(std::vector<ProcessRow>{}), {}, 10, -1);
        listTimes.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
        rows = scanned ? scanned->size() : 0;
    }
    DesktopIndex index;
    index.refresh();
    std::vector<double> nameTimes;
    for (int round = 0; round < kRounds / 4; ++round) {
        const auto start = std::chrono::steady_clock::now();
        index.refresh();
        const ProcessDict names = runningApplications(source, index);
        nameTimes.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
    }
    std::printf("%-22s %5zu processes  scan + list %8.0f us  application names %8.0f us (medians)\n", label, rows,
                medianMicros(listTimes), medianMicros(nameTimes));
}
} // namespace

int main()
{
    QTemporaryDir dir;
    if (!dir.isValid())
        return 1;
    const std::filesystem::path root = dir.path().toStdString();
    writeTree(root, 0);
    LinuxProcessSource fake{SysRoot(root)};
    measure("500 fake processes", fake);
    LinuxProcessSource live{SysRoot("/")};
    measure("live /proc", live);
    return 0;
}
