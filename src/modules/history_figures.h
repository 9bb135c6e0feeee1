// The headline figures of a module's newest sample, as its graph shows them, for the long-term history.
#pragma once

#include "collect/info_dict.h"
#include "history/history_types.h"
#include "prefs/module_id.h"

#include <QList>
#include <QString>

class LoadSystemInformation;

// The module's key in the history: "cpu", "memory", ...; empty for modules it does not keep.
QString historyModuleKey(ModuleId id);

// The figures of the module's newest sample: CPU busy %, memory used/app/cached and swap used,
// network up/down and disk read/write per device in bytes per second, volume used % per mount
// point, the temperature average and each sensor, the fans' average. Empty when the module has
// no sample (or, for rates, only one). Swap usage is the one the cycle collected beside the
// Memory sample (kSwapHistorySlot): the cycle must be asked for it while the history is kept.
QList<Figure> headlineFigures(ModuleId id, const InfoDict& info, LoadSystemInformation& loadInfo);
