// The text view's lines: each shown module's figure as words, redrawn after every cycle.
#include "app/front_ends/terminal_monitor.h"

#include "app/app_delegate.h"
#include "app/volume_tracker.h"
#include "modules/module_descriptor.h"
#include "modules/module_registry.h"
#include "prefs/pref_keys.h"

#include <algorithm>

TerminalMonitor::TerminalMonitor(AppDelegate& delegate, StatusBar& bar, QObject* parent)
    : QObject(parent)
    , delegate_(delegate)
    , bar_(bar)
{
    connect(&delegate_, &AppDelegate::cycleFinished, this, &TerminalMonitor::cycleFinished);
}

std::vector<ModuleId> TerminalMonitor::wantedModules() const
{
    const auto speaks = [this](ModuleId id) {
        const ModuleDescriptor& descriptor = moduleDescriptor(id);
        return descriptor.barText != nullptr && delegate_.chkGeneBool(descriptor.schema.switchKey);
    };
    std::vector<ModuleId> wanted;
    for (const QVariant& code : delegate_.generalDefaults().listValue(PrefKey::TopItemSortArray)) {
        const auto id = moduleForSortCode(code.toLongLong());
        if (id && speaks(*id) && std::find(wanted.cbegin(), wanted.cend(), *id) == wanted.cend())
            wanted.push_back(*id);
    }
    // The application's own item closes the bar, as in a menu bar.
    if (speaks(ModuleId::General))
        wanted.push_back(ModuleId::General);
    return wanted;
}

void TerminalMonitor::rebuildItems(const std::vector<ModuleId>& wanted)
{
    for (auto& item : items_)
        item.reset();
    // Each new item goes above the others, so the last line is made first.
    for (auto it = wanted.crbegin(); it != wanted.crend(); ++it)
        items_[moduleIndex(*it)] = bar_.createItem(QLatin1String(moduleSchema(*it).moduleKey));
    shown_ = wanted;
}

void TerminalMonitor::cycleFinished()
{
    const std::vector<ModuleId> wanted = wantedModules();
    if (wanted != shown_)
        rebuildItems(wanted);
    const VolumeTracker& storage = delegate_.volumeTracker();
    for (const ModuleId id : shown_) {
        const std::size_t slot = moduleIndex(id);
        const ModuleSchema& schema = moduleSchema(id);
        const SnapshotContext context{delegate_.infoDict(),     slot,
                                      schema.moduleKey,         delegate_.defaults(id),
                                      delegate_.collector(),    storage.diskBaseDict(),
                                      storage.volumeBaseDict(), delegate_.sensorDatDict()};
        items_[slot]->setText(moduleDescriptor(id).barText(context, delegate_.userDefaults()));
    }
}
