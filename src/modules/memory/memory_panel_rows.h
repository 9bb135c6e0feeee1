// The texts of the Memory menu's panel, from a sample and the swap facts.
#pragma once

#include "collect/history.h"
#include "collect/memory_sample.h"
#include "collect/memory_source.h"
#include "modules/memory/memory_breakdown.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

struct MemoryPanelRow {
    MemoryPart part;
    bool swatch; // the part is a share of the picture in the chosen view
    QString size;
};

// Wired, active, inactive, free, application, cached, compressed and other, in this order, in
// the Memory_Unit setting; a figure the system does not have reads "---".
std::vector<MemoryPanelRow> memoryPanelRows(const MemorySample& sample, std::int64_t totalPages, std::size_t pageSize,
                                            bool traditional, int unit);

// Pages swapped in (MemoryPageIns) or out (MemoryPageOuts) per second between the two newest
// samples, seconds apart: "12 pages/s"; "---" when the counters are unknown or there is only
// one sample. A counter that went backwards counts as none.
QString memoryPageRateText(const History<MemorySample>& history, MemoryFigure counter, double seconds);

// "1.20GB of 8.00GB"; "---" without swap.
QString swapUsedText(const SwapUsage& usage, int unit);

// One line per swap area: "/swapfile (file): 512.0MB of 2.00GB".
QStringList swapAreaTexts(const std::vector<SwapArea>& areas, int unit);
