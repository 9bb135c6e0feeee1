// What each cycle hands the long-term history: the new figures of the modules it sampled.
#pragma once

#include "app/sampling_cycle.h"
#include "history/history_types.h"

#include <QList>

class LoadSystemInformation;

// The headline figures of every module the cycle sampled, in registry order. On the cycle's
// thread, right after the collection.
QList<Figure> sampledFigures(LoadSystemInformation& loadInfo, const CycleOutput& output);
