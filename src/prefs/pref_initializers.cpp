// First-run values of every module.
#include "prefs/pref_functions.h"

#include "prefs/pref_schema.h"

namespace PrefFunctions {

void initializeModulePreference(const ModuleSchema& schema, SettingsStore& store)
{
    for (const PrefField& field : schema.fields) {
        if (field.factory.isValid())
            store.setObject(QString::fromLatin1(field.key), field.factory);
    }
    store.synchronize();
}

QVariantList defaultModuleSortArray()
{
    return {1, 2, 3, 4, 7, 5, 6, 8};
}

} // namespace PrefFunctions
