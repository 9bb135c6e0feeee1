// The CPU collectors end to end over the Linux sources.
#include "collect/load_system_information.h"

#include "support/fixture_paths.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace {
void copyInPlace(const std::filesystem::path& from, const std::filesystem::path& to)
{
    // Written through the existing inode, as the kernel's file stays the same file.
    std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary | std::ios::trunc);
    out << in.rdbuf();
}
}

TEST(LinuxCollector, SecondSampleGivesPerProcessorDifferencesAndTheirAverage)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::filesystem::path root = dir.path().toStdString();
    const std::filesystem::path fixtures = projectFixtures() / "linux";
    std::filesystem::create_directories(root / "proc");
    copyInPlace(fixtures / "small-machine/proc/stat", root / "proc/stat");

    LoadSystemInformation info(makeSourceSet(root));
    EXPECT_TRUE(info.loadCpuData().empty());

    copyInPlace(fixtures / "stat-second-sample", root / "proc/stat");
    const CpuSample sample = info.loadCpuData();
    ASSERT_EQ(sample.size(), 3u);
    // cpu0: user +3, system +4 (system +2, irq +1, softirq +1), nice 0, idle +3.
    EXPECT_EQ(sample[0], (CpuRecord{3, 4, 0, 3}));
    // cpu1: idle +7 but iowait -10: the folded idle went backwards and counts as 0; steal +1.
    EXPECT_EQ(sample[1], (CpuRecord{2, 3, 0, 0}));
    // Machine: 5/2 and 7/2 round half away from zero, 3/2 as well.
    EXPECT_EQ(sample[2], (CpuRecord{3, 4, 0, 2}));
}

TEST(LinuxCollector, OptionLinesFromTheCapturedTree)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared captured procfs tree is not present";
    const LoadSystemInformation info(makeSourceSet(sharedProcfsTree()));
    const QStringList lines = info.cpuGetOptionData();
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines[2], "497 threads, 7 processes");
    EXPECT_EQ(lines[3], "1min: 0.02, 5min: 0.04, 15min: 0.05");
    EXPECT_EQ(lines[4], "");  // the tree has no host name
}
