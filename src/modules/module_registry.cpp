// The registry of modules, built from the one list, and the look-ups over it.
#include "modules/module_registry.h"

#include <QString>

#define TARVEL_MODULE(name) const ModuleDescriptor& name();
#include "modules/module_list.h"
#undef TARVEL_MODULE

namespace {

ModuleRegistry buildRegistry()
{
    ModuleRegistry registry{};
    std::size_t next = 0;
#define TARVEL_MODULE(name) registry.at(next++) = &name();
#include "modules/module_list.h"
#undef TARVEL_MODULE
    // A module's place in the list is its identity: its history slot and its tab.
    for (std::size_t i = 0; i < registry.size(); ++i)
        Q_ASSERT(registry[i] != nullptr && moduleIndex(registry[i]->schema.id) == i);
    return registry;
}

std::array<const ModuleSchema*, kModuleCount> buildSchemas()
{
    std::array<const ModuleSchema*, kModuleCount> schemas{};
    for (std::size_t i = 0; i < schemas.size(); ++i)
        schemas[i] = &moduleRegistry()[i]->schema;
    return schemas;
}

} // namespace

const ModuleRegistry& moduleRegistry()
{
    static const ModuleRegistry registry = buildRegistry();
    return registry;
}

const ModuleDescriptor& moduleDescriptor(ModuleId id)
{
    return *moduleRegistry()[moduleIndex(id)];
}

const ModuleSchema& moduleSchema(ModuleId id)
{
    return moduleDescriptor(id).schema;
}

ModuleSchemaList allModuleSchemas()
{
    static const std::array<const ModuleSchema*, kModuleCount> schemas = buildSchemas();
    return schemas;
}

std::optional<ModuleId> moduleForSortCode(long long code)
{
    for (const ModuleSchema* schema : allModuleSchemas()) {
        if (schema->sortCode != 0 && schema->sortCode == code)
            return schema->id;
    }
    return std::nullopt;
}

std::optional<ModuleId> moduleForNotification(const QString& name)
{
    for (const ModuleSchema* schema : allModuleSchemas()) {
        if (name == QLatin1String(schema->notification))
            return schema->id;
    }
    return std::nullopt;
}

std::optional<ModuleId> moduleForKey(const QString& key)
{
    for (const ModuleSchema* schema : allModuleSchemas()) {
        if (key.compare(QLatin1String(schema->moduleKey), Qt::CaseInsensitive) == 0)
            return schema->id;
    }
    return std::nullopt;
}

int modulePreferenceTab(ModuleId id)
{
    return static_cast<int>(moduleIndex(id));
}
