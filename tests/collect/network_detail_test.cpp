// The traffic figures from a history of cumulative samples.
#include "collect/network_detail.h"

#include <gtest/gtest.h>

namespace {

History<NetworkSample> historyOf(std::initializer_list<std::array<std::int64_t, 2>> counters, double interval = 2.0)
{
    History<NetworkSample> history;
    for (const auto& [up, down] : counters)
        history = history.appended(NetworkSample{up, down, interval, {}});
    return history;
}

std::optional<NetworkDetail> detailOf(const History<NetworkSample>& history)
{
    return TvlClasses::getNetworkDetail(history, &NetworkSample::toUp, &NetworkSample::toDw);
}

} // namespace

TEST(NetworkDetail, MaximumAverageNowAndLast)
{
    // Up grows by 100, 300, 50; down by 10, 0, 40. Eight seconds in all: the oldest sample counts.
    const auto detail = detailOf(historyOf({{1000, 500}, {1100, 510}, {1400, 510}, {1450, 550}}));
    ASSERT_TRUE(detail);
    EXPECT_EQ(*detail, (NetworkDetail{300, 40, 450 / 8, 50 / 8, 50, 40, 1450, 550}));
}

TEST(NetworkDetail, SingleSamplesResetsAndEmptyHistories)
{
    EXPECT_FALSE(detailOf({}));
    EXPECT_EQ(*detailOf(historyOf({{1000, 500}})), (NetworkDetail{0, 0, 0, 0, 0, 0, 1000, 500}));
    EXPECT_EQ(*detailOf(historyOf({{1000, 500}}, 0.0)), (NetworkDetail{0, 0, 0, 0, 0, 0, 1000, 500}));

    // Counters reset to 0 and then grew again: the negative steps raise no maximum, and the
    // negative "now" and average are passed on. A newer counter of 0 offers no candidate.
    const auto reset = detailOf(historyOf({{900, 900}, {1000, 950}, {0, 0}, {30, 20}}, 1.0));
    ASSERT_TRUE(reset);
    EXPECT_EQ(reset->maxUp, 100);
    EXPECT_EQ(reset->maxDw, 50);
    EXPECT_EQ(reset->nowUp, 30);
    EXPECT_EQ(reset->avgUp, (30 - 900) / 4);
    EXPECT_EQ(reset->avgDw, (20 - 900) / 4);
}
