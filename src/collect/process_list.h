// The busiest-process list of the CPU and memory menus: two columns of text from sorted rows.
#pragma once

#include "collect/process_cpu_sampler.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <cstdint>
#include <vector>

// Display names of running applications under "_<pid>", as strings.
using ProcessDict = QVariantMap;

// [names, values], each line ended by a line feed. Takes rows in order until displayLimit
// lines are written or a value of 0 or less is met (rows are sorted, so the rest are idle).
// A name comes from procDict, else the command with blanks collapsed, else "(pid:_<pid>)".
// addValueMode -1 writes the value with one decimal and "%"; any other mode is the unit
// number for calcMemorySize, the value being KiB.
QStringList buildProcessList(const std::vector<ProcessRow>& rows, const ProcessDict& procDict, int displayLimit,
                             std::int32_t addValueMode);
