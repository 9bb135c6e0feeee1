// Processor brand and clock texts for the CPU panel.
#pragma once

#include <QString>

#include <cstdint>

// Drops the trademark marks, "CPU" and "@", and collapses the blanks:
// "Intel(R) Core(TM) i7-4770HQ CPU @ 2.20GHz" becomes "Intel Core i7-4770HQ 2.20GHz".
QString cleanBrandName(const QString& brand);

// "<machine> <clock><unit>Hz": whole gigahertz above 1 GHz, else whole megahertz, padded to
// two digits, so 2.6 GHz shows as "02GHz"; the panel has always printed it that way.
QString formatRareName(const QString& machine, std::uint64_t hertz);
