// The history command's two forms of a module's aggregates, character for character.
#include "history/history_table.h"

#include <gtest/gtest.h>

namespace {

// 2023-11-20 00:00 and 00:01 UTC, counted in minutes.
constexpr std::int64_t kMinute = 28'340'640;

QList<SeriesHistory> sample()
{
    return {{"disk",
             "/dev/sda read",
             FigureUnit::BytesPerSecond,
             {{kMinute, 60, 1536.4, 0, 1048576}, {kMinute + 1, 58, 12.0, 0, 512}}},
            {"disk", "odd, \"name\"", FigureUnit::Percent, {{kMinute, 1, 12.345, 12.34, 12.35}}}};
}

TEST(HistoryTable, TextLinesUpFiguresWithTheirUnitsInTheGivenZone)
{
    EXPECT_EQ(historyTextTable(sample(), Resolution::Minute, QTimeZone("Asia/Tokyo")).toStdString(),
              "Series         Start             Samples        Mean        Min          Max\n"
              "/dev/sda read  2023-11-20 09:00       60   1.50 kB/s  0 bytes/s    1.00 MB/s\n"
              "/dev/sda read  2023-11-20 09:01       58  12 bytes/s  0 bytes/s  512 bytes/s\n"
              "odd, \"name\"    2023-11-20 09:00        1       12.3%      12.3%        12.3%\n");
}

TEST(HistoryTable, CsvHasAHeaderUtcTimesPlainNumbersAndQuotedNames)
{
    EXPECT_EQ(historyCsv(sample(), Resolution::Minute).toStdString(),
              "series,unit,start,samples,mean,min,max\n"
              "/dev/sda read,bytes/s,2023-11-20T00:00:00Z,60,1536,0,1048576\n"
              "/dev/sda read,bytes/s,2023-11-20T00:01:00Z,58,12,0,512\n"
              "\"odd, \"\"name\"\"\",percent,2023-11-20T00:00:00Z,1,12.35,12.34,12.35\n");
    // An hour's row starts on its hour.
    const QList<SeriesHistory> hour{{"cpu", "busy", FigureUnit::Percent, {{kMinute / 60 + 1, 3600, 5, 1, 9}}}};
    EXPECT_EQ(historyCsv(hour, Resolution::Hour).section(u'\n', 1, 1),
              QStringLiteral("busy,percent,2023-11-20T01:00:00Z,3600,5.00,1.00,9.00"));
}

} // namespace
