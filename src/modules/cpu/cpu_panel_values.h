// The figures the CPU panel shows for the whole machine, from the newest sample.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"

#include <QtGlobal>

#include <array>

// User, system, nice and idle as the panel shows them. The record's ticks per processor over
// a one-second interval read directly as percent; idle is what the others leave, never below 0.
std::array<qint64, 4> cpuPanelShares(const History<CpuSample>& history);

// Shares below 1% are shown faded, swatch and figure alike.
inline double cpuPanelOpacity(qint64 share)
{
    return share < 1 ? 0.5 : 1.0;
}
