// The General module: the application's own item, the top preferences tab and the settings
// every module shares (switches, order, fonts).
#include "alerts/alert_rule_store.h"
#include "export/listen_address.h"
#include "modules/general/general_item_text.h"
#include "modules/general/general_module_picture.h"
#include "modules/general/metrics_keys.h"
#include "modules/module_descriptor.h"
#include "prefs/module_switch.h"
#include "prefs/pref_keys.h"

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveGeneral(ModuleDefaults& d, SettingsStore& store, const QVariantMap& theme, ModuleSchemaList all)
{
    // The switches are worked out from each module's display elements, not stored of their own.
    for (const ModuleSchema* schema : all) {
        if (schema->id != ModuleId::General)
            d.set(schema->switchKey, PrefFunctions::isModuleSwitchedOn(store, *schema));
    }
    d.set(_FontName, theme.value(_FontName).toString());
    d.set(_FontStyle, theme.value(_FontStyle).toString());
    d.set(_AlternativeTheme, theme.value(_AlternativeTheme).toString());
}

ModuleSchema generalSchema()
{
    return {ModuleId::General,
            "General",
            DisplayMyMenuIcon,
            0,
            "GeneralModuleNotif",
            "",
            nullptr,
            {{TopItemSortArray, T::Array, ints({1, 2, 3, 4, 7, 5, 6, 8})},
             {DisplayMyMenuIcon, T::Bool, true},
             {TopHistgramPreview, T::Bool, false},
             {DisplayTopWindowAtStartup, T::Bool, true},
             {DenyUpdateNotif, T::Bool, false},
             {AutoLaunchAtLogin, T::Bool, false},
             {Cpu_ShowMyLabel, T::Bool, true},
             {Memory_ShowMyLabel, T::Bool, true},
             {Network_ShowMyLabel, T::Bool, true},
             {Disk_ShowMyLabel, T::Bool, true},
             {Vlms_ShowMyLabel, T::Bool, true},
             {Temp_ShowMyLabel, T::Bool, true},
             {Fan_ShowMyLabel, T::Bool, true},
             {kRebootRegularlyDays, T::Integer, QVariant()},
             {MetricsServeEnabled, T::Bool, false},
             {MetricsListenAddress, T::String, QString::fromLatin1(kDefaultListenAddress)},
             {AlertRules, T::Array, alertRulesToList(AlertRuleStore::offeredRules())}},
            colors({}),
            // The General item draws its pictures at half size, all but the first icon.
            {{"N01", PictureSize::Half},
             {"O01", PictureSize::Icon18},
             {"O02", PictureSize::Half},
             {"O11", PictureSize::Half},
             {"O12", PictureSize::Half},
             {"O13", PictureSize::Half}},
            {DisplayMyMenuIcon},
            &deriveGeneral};
}

QString generalBarText(const SnapshotContext& context, const SettingsStore& store)
{
    return generalItemText(context.settings, store);
}

} // namespace

const ModuleDescriptor& generalModule()
{
    static const ModuleDescriptor descriptor{
        generalSchema(), nullptr, false,           StorageUse::None,
        nullptr,         nullptr, &generalBarText, &makePicture<GeneralModulePicture>};
    return descriptor;
}
