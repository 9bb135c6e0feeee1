// Byte counts and transfer rates as short texts.
#pragma once

// Each quantity keeps its own base, thresholds and precision, so two displays of one value
// may legitimately differ.

#include <QString>

namespace TvlClasses {

// Memory in powers of 1024. unitNumber is the Memory_Unit setting: 2 fixes MB, 3 fixes GB,
// anything else picks MB, GB or TB by strict thresholds (exactly 1024 MB stays "1024.0MB").
// A negative count gives "---".
QString calcMemorySize(qint64 bytes, int unitNumber);

// Disk transfer rate in decimal units, from KB/s upwards (500 B/s shows as "0.5KB/s");
// zero or less gives "0.0B/s".
QString calcDiscAccessPerSec(qint64 bytesPerSec);

// Volume or disk capacity in decimal units, computed from whole kilobytes; TB carries two
// decimals, the smaller units one. Zero or less gives "0Byte".
QString calcDiskSize(qint64 bytes);

// Network rate in steps of 1024, as bits ("bps") when byteToBit is set, else "B/s".
// digits > 0 limits the number to that many characters (see retArrangedNumber);
// digits <= 0 prints one decimal. Zero, negative or NaN gives "0B/s" or "0.0B/s".
QString calcBytesPerSec(double rate, bool byteToBit, int digits);

// A share (0 to 1) as whole percent, "%.f%%" as C prints it: exact halves round to even.
QString calcPercent(double share);

} // namespace TvlClasses
