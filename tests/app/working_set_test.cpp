// Which pages of a loaded object may be given back, and giving them back in a running process.
#include "app/working_set.h"

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

using WorkingSet::Range;
using WorkingSet::Segment;

constexpr std::size_t kPage = 4096;

TEST(WorkingSet, OnlyWholePagesOfSegmentsNeverWrittenAreGivenBack)
{
    // A usual library: headers and symbols, code, constants, then the relocated data and the
    // variables in one writable segment whose first page the constants' last page shares.
    const std::vector<Segment> library{
        {0x10000, 0x3000, false},            // headers and symbols
        {0x13000, 0x8000, false},            // code
        {0x1b000, 0x2800, false},            // constants, ending inside 0x1d000
        {0x1d800, 0x1800, true},             // relocated data and variables
    };
    EXPECT_EQ(WorkingSet::unchangingPages(library, false, kPage),
              (std::vector<Range>{{0x10000, 0x13000}, {0x13000, 0x1b000}, {0x1b000, 0x1d000}}));

    // Pages only partly inside a segment belong to its neighbours as well: they stay.
    EXPECT_EQ(WorkingSet::unchangingPages({{0x10100, 0x2000, false}}, false, kPage),
              (std::vector<Range>{{0x11000, 0x12000}}));
    EXPECT_TRUE(WorkingSet::unchangingPages({{0x10100, 0x1000, false}}, false, kPage).empty());

    // The loader writes the relocated read-only data once: it counts as written wherever it lies.
    const std::vector<Segment> withRelro{{0x10000, 0x4000, false}, {0x12000, 0x1000, true}};
    EXPECT_EQ(WorkingSet::unchangingPages(withRelro, false, kPage), (std::vector<Range>{{0x10000, 0x12000}}));

    // Code relocated in place is no longer the file's: nothing of such an object is given back.
    EXPECT_TRUE(WorkingSet::unchangingPages(library, true, kPage).empty());
}

// The file-backed memory this process has mapped, in KiB.
long residentFileKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QRegularExpression line(QStringLiteral("^RssFile:\\s+(\\d+) kB"), QRegularExpression::MultilineOption);
    const auto match = line.match(QString::fromLatin1(status.readAll()));
    return match.hasMatch() ? match.captured(1).toLong() : -1;
}

TEST(WorkingSet, TrimmingGivesBackFilePagesAndTheProcessRunsOn)
{
    const long before = residentFileKb();
    if (before < 0)
        GTEST_SKIP() << "no /proc/self/status here";
    const std::size_t advised = WorkingSet::trim();
    ASSERT_GT(advised, 0u);
    const long after = residentFileKb();
    EXPECT_LT(after, before) << "advised " << advised / 1024 << " KiB";

    // The code and constants come back from their files as they are used again.
    const QRegularExpression words(QStringLiteral("(\\w+) (\\w+)"));
    EXPECT_EQ(words.match(QStringLiteral("given back")).captured(2), QStringLiteral("back"));
    EXPECT_GT(WorkingSet::trim(), 0u);
    EXPECT_EQ(QString::number(1.5e3, 'f', 1), QStringLiteral("1500.0"));
}

} // namespace
