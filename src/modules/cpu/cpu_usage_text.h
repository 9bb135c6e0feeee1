// The CPU figures as words, for the terminal and the snapshot.
#pragma once

#include "collect/cpu_sample.h"

#include <QString>

// "user 5%  system 2%" of one record; 0% each for a record with no ticks.
QString cpuUsageText(const CpuRecord& record);
