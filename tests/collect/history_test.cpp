// The sample history: capped at 512, appended into new lists, old lists left intact.
#include "collect/history.h"

#include <gtest/gtest.h>

TEST(History, KeepsTheNewest512AndNeverChangesAnEarlierList)
{
    History<int> history;
    EXPECT_FALSE(history.exists());
    for (int i = 1; i <= 512; ++i)
        history = history.appended(i);
    ASSERT_EQ(history.size(), 512u);
    EXPECT_EQ(history[0], 1);

    const History<int> before = history;
    history = history.appended(513);
    EXPECT_EQ(history.size(), 512u);
    EXPECT_EQ(history[0], 2);
    EXPECT_EQ(history.back(), 513);
    EXPECT_NE(history.identity(), before.identity());
    EXPECT_EQ(before.size(), 512u);
    EXPECT_EQ(before[0], 1);
    EXPECT_EQ(before.back(), 512);
}
