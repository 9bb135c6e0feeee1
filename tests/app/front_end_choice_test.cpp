// Tests which front end is chosen for each combination of display, tray host and --bar.
#include "app/front_ends/front_end_choice.h"

#include <gtest/gtest.h>

TEST(FrontEndChoice, DisplayThenRequestThenTray)
{
    for (const bool bar : {false, true})
        for (const bool tray : {false, true})
            EXPECT_EQ(chooseFrontEnd(bar, false, tray), FrontEndKind::Terminal) << bar << tray;
    EXPECT_EQ(chooseFrontEnd(true, true, true), FrontEndKind::BarWindow);
    EXPECT_EQ(chooseFrontEnd(false, true, false), FrontEndKind::BarWindow);
    EXPECT_EQ(chooseFrontEnd(false, true, true), FrontEndKind::Tray);
}
