// The figures an alert rule can watch: what each is called, in which unit, and of which module.
#pragma once

#include "collect/info_dict.h"
#include "prefs/module_id.h"

#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>
#include <span>

// Each is worked out from the newest samples of one module's history, never from a read of
// its own; the stored rules name them by their id.
enum class AlertFigure {
    CpuBusy,
    MemoryUsed,
    SwapUsed,
    NetworkDown,
    NetworkUp,
    DiskRead,
    DiskWrite,
    VolumeFullest,
    TempAverage,
    TempHighest,
    FanFastest,
};

inline constexpr std::size_t kAlertFigureCount = 11;

struct AlertFigureInfo {
    AlertFigure figure;
    const char* id; // as stored in a rule
    ModuleId module;
    const char* name; // localisation key: what the editor and the notification call it
    const char* unit; // not translated, as no unit is
    // The threshold a new rule of this figure starts from, and whether it fires above it.
    double threshold;
    bool above;
};

std::span<const AlertFigureInfo> alertFigures();
const AlertFigureInfo& alertFigureInfo(AlertFigure figure);
// The figure stored under id; none for an id this version does not know.
std::optional<AlertFigure> alertFigureById(QStringView id);
bool moduleHasAlertFigures(ModuleId module);

// What the histories do not hold: the machine's memory, for the share of it in use.
struct AlertFigureContext {
    std::int64_t memoryTotalPages = 0;
};

// The figure from the newest samples; none while the history is too short (rates need two
// samples) or the samples cannot give it (a counter that went back, no valid sensor).
std::optional<double> readAlertFigure(AlertFigure figure, const InfoDict& info, const AlertFigureContext& context);

// One reading per figure, indexed by the figure's number; only those watched are read.
using AlertReadings = std::array<std::optional<double>, kAlertFigureCount>;

constexpr std::size_t alertFigureIndex(AlertFigure figure)
{
    return static_cast<std::size_t>(figure);
}
