// Reading kernel files and file systems: fresh contents, reopening, large files, and nothing that blocks.
#include "collect/linux/linux_process_source.h"
#include "collect/linux/proc_file.h"
#include "collect/linux/statvfs_with_deadline.h"
#include "collect/linux/sys_root.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <fstream>
#include <future>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
std::filesystem::path tempPath(const QTemporaryDir& dir, const char* name)
{
    return std::filesystem::path(dir.path().toStdString()) / name;
}

// Rewrites the file in place, as the kernel's files change under an open descriptor.
void overwrite(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}
} // namespace

TEST(ProcFile, SeesEachNewContentThroughTheSameDescriptor)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const auto path = tempPath(dir, "counter");
    overwrite(path, "first version, rather long\n");

    ProcFile file(path);
    ASSERT_EQ(file.read(), std::optional<std::string_view>("first version, rather long\n"));
    const int descriptor = file.descriptor();

    overwrite(path, "second");
    EXPECT_EQ(file.read(), std::optional<std::string_view>("second"));
    EXPECT_EQ(file.descriptor(), descriptor);
}

TEST(ProcFile, ReadsFilesLargerThanItsInitialBuffer)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const auto path = tempPath(dir, "large");
    std::string text;
    for (int line = 0; text.size() < 20000; ++line)
        text += "intr " + std::to_string(line) + " 0 0 0 0 0 0 0 0\n";
    overwrite(path, text);

    ProcFile file(path);
    const auto read = file.read();
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, text);
}

TEST(ProcFile, IsEmptyForMissingFilesAndRecoversWhenTheyAppear)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const auto path = tempPath(dir, "later");

    ProcFile file(path);
    EXPECT_FALSE(file.read());
    EXPECT_EQ(file.descriptor(), -1);

    overwrite(path, "now here");
    EXPECT_EQ(file.read(), std::optional<std::string_view>("now here"));
    EXPECT_FALSE(ProcFile::readOnce(tempPath(dir, "never")));
    EXPECT_EQ(ProcFile::readOnce(path), std::optional<std::string>("now here"));
}

TEST(ProcFile, ReadsNothingOnceAProcessHasEnded)
{
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::pause();
        ::_exit(0);
    }
    ProcFile file(std::filesystem::path("/proc") / std::to_string(child) / "stat");
    const auto alive = file.read();
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ASSERT_TRUE(alive);
    EXPECT_TRUE(alive->starts_with(std::to_string(child) + " ("));
    EXPECT_FALSE(file.read());
}

TEST(ProcFile, RecoversWhenAFailingPathBecomesReadable)
{
    // Reading a directory fails after a successful open, like a file whose device went away.
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const auto path = tempPath(dir, "swapped");
    std::filesystem::create_directory(path);
    ProcFile file(path);
    EXPECT_FALSE(file.read());

    std::filesystem::remove(path);
    overwrite(path, "a file again");
    EXPECT_EQ(file.read(), std::optional<std::string_view>("a file again"));
}

TEST(ProcFile, KeepsItsDescriptorWhenMoved)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const auto path = tempPath(dir, "moved");
    overwrite(path, "x");
    ProcFile first(path);
    const int descriptor = first.descriptor();
    ProcFile second(std::move(first));
    EXPECT_EQ(second.descriptor(), descriptor);
    EXPECT_EQ(second.read(), std::optional<std::string_view>("x"));
}

TEST(ProcFile, WhatIsNoRegularFileIsNeverReadNeitherBlockingNorWithoutEnd)
{
    QTemporaryDir dir;
    const std::filesystem::path root = dir.path().toStdString();
    // A pipe nobody writes would block, /dev/zero would never end, a folder is no text.
    ASSERT_EQ(::mkfifo((root / "fifo").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", root / "zero");
    std::filesystem::create_directory(root / "folder");
    for (const char* name : {"fifo", "zero", "folder"}) {
        ProcFile file(root / name);
        EXPECT_FALSE(file.read().has_value()) << name;
        EXPECT_EQ(file.descriptor(), -1) << name;
        EXPECT_FALSE(ProcFile::readOnce(root / name).has_value()) << name;
    }
}

TEST(StatvfsWithDeadline, AShareThatHangsAnswersNothingAndHoldsNoOtherQuery)
{
    std::promise<void> release;
    const std::shared_future<void> released = release.get_future().share();
    std::atomic<int> hungCalls{0};
    StatvfsWithDeadline probe(std::chrono::milliseconds(100), [&, released](const char* path, struct statvfs* info) {
        if (std::string_view(path) == "/dead/share") {
            ++hungCalls;
            released.wait();
        }
        return ::statvfs("/", info);
    });

    EXPECT_FALSE(probe.query("/dead/share").has_value());
    // The same share is not asked again while the first call hangs; the others are answered.
    EXPECT_FALSE(probe.query("/dead/share").has_value());
    EXPECT_TRUE(probe.query("/").has_value());
    EXPECT_TRUE(probe.query("/").has_value());
    EXPECT_EQ(hungCalls.load(), 1);
    release.set_value();
}

TEST(SysRoot, PathsFromTheTreeNeverLeaveIt)
{
    const SysRoot root("/tmp/tree");
    EXPECT_EQ(root.join("/proc/stat"), std::filesystem::path("/tmp/tree/proc/stat"));
    // A mount point read from the tree's own table may climb as it likes: it stays inside.
    EXPECT_EQ(root.join("/../../../.."), std::filesystem::path("/tmp/tree/"));
    EXPECT_EQ(root.join("mnt/../../../etc"), std::filesystem::path("/tmp/tree/etc"));
}

TEST(ProcFile, AProcessScanPassesOverAPipeInPlaceOfAStatFile)
{
    QTemporaryDir dir;
    const std::filesystem::path root = dir.path().toStdString();
    std::filesystem::create_directories(root / "proc/100");
    std::filesystem::create_directories(root / "proc/101");
    ASSERT_EQ(::mkfifo((root / "proc/100/stat").c_str(), 0600), 0);
    std::ofstream(root / "proc/101/stat") << "101 (ok) S 1 1 1 0 -1 0 0 0 0 0 7 3 0 0 20 0 1 0 500 1000 9 0\n";

    LinuxProcessSource source{SysRoot(root)};
    const auto scan = source.scanProcesses();
    ASSERT_TRUE(scan.has_value());
    ASSERT_EQ(scan->size(), 1u);
    EXPECT_EQ(scan->front().pid, 101);
}
