// Colour wells in a grid per module; a change carries the key and the new colour.
#include "modules/general/top_tab_color_section.h"

#include "modules/module_registry.h"
#include "preferences/color_well.h"
#include "preferences/theme_color_labels.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace {

constexpr int kColumns = 2;

} // namespace

TopTabColorSection::TopTabColorSection(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QGridLayout(this);
    int slot = 0;
    for (const ModuleSchema* schema : allModuleSchemas()) {
        const ModuleId id = schema->id;
        const QStringList keys = themeColorKeysOf(*schema);
        if (keys.isEmpty())
            continue;
        const QString title = id == ModuleId::General ? Tarvel::localized("Shared") : Tarvel::localized(schema->prefName);
        auto* group = new QGroupBox(title, this);
        auto* form = new QFormLayout(group);
        for (const QString& key : keys) {
            auto* colorWell = new ColorWell(group);
            colorWell->setObjectName(key);
            colorWell->setToolTip(key);
            form->addRow(themeColorLabel(key), colorWell);
            wells_.insert(key, colorWell);
            owners_.insert(key, id);
            connect(colorWell, &ColorWell::colorChanged, this, [this, key](const QColor& color) {
                Q_EMIT changeRequested(
                    {{QLatin1String(NotifKey::ChangeColorKey), key}, {QLatin1String(NotifKey::ChangeColorVal), color}});
            });
        }
        layout->addWidget(group, slot / kColumns, slot % kColumns, Qt::AlignTop);
        ++slot;
    }
}

void TopTabColorSection::showColors(const AllModuleDefaults& all)
{
    for (auto it = wells_.cbegin(); it != wells_.cend(); ++it) {
        // Shared colours are resolved into every module's dictionary; the CPU one always exists.
        const ModuleId owner = owners_.value(it.key());
        const ModuleDefaults& source = all[moduleIndex(owner == ModuleId::General ? ModuleId::Cpu : owner)];
        it.value()->setColor(source.color(it.key()));
    }
}
