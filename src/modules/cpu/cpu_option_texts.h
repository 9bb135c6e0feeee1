// The CPU menu's five detail lines, made from the collector's raw figures.
#pragma once

#include "collect/cpu_option_figures.h"

#include <QString>
#include <QStringList>

// Time since boot, awake time, threads and processes, load averages, host name; "---" for
// counts or averages that could not be read.
QStringList cpuGetOptionData(const CpuOptionFigures& figures);

// "H:MM:SS", or with a day count in front once a day has passed. An unknown duration is
// passed as -1, which reads as the last second of a day.
QString buildUpTime(double seconds);
