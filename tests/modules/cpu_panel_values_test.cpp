// The CPU panel's shares: ticks read as percent, idle what is left and never negative.
#include "modules/cpu/cpu_panel_values.h"

#include <gtest/gtest.h>

TEST(CpuPanelShares, IdleIsWhatTheOthersLeaveAndNeverNegative)
{
    EXPECT_EQ(cpuPanelShares(History<CpuSample>()), (std::array<qint64, 4>{0, 0, 0, 0}));

    // The machine record's own idle count is not used.
    const auto busy = History<CpuSample>().appended({{1, 1, 1, 1}, {30, 50, 25, 7}});
    EXPECT_EQ(cpuPanelShares(busy), (std::array<qint64, 4>{30, 50, 25, 0}));
    const auto light = History<CpuSample>().appended({{0, 0, 0, 0}, {3, 2, 0, 95}});
    EXPECT_EQ(cpuPanelShares(light), (std::array<qint64, 4>{3, 2, 0, 95}));

    EXPECT_EQ(cpuPanelOpacity(0), 0.5);
    EXPECT_EQ(cpuPanelOpacity(1), 1.0);
}
