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

    // Far past the cap every index still finds its sample, whatever the chunk it sits in.
    for (int i = 514; i <= 1300; ++i)
        history = history.appended(i);
    ASSERT_EQ(history.size(), 512u);
    for (std::size_t i = 0; i < history.size(); ++i)
        ASSERT_EQ(history[i], 1300 - 511 + static_cast<int>(i)) << "index " << i;
    EXPECT_EQ(before[511], 512);
}
