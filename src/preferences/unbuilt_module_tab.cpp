// A short line in place of the settings of a module that is not built yet.
#include "preferences/unbuilt_module_tab.h"

#include "toolkit/localization.h"

#include <QLabel>
#include <QVBoxLayout>

UnbuiltModuleTab::UnbuiltModuleTab(const ModuleSchema& schema, SettingsStore& store, PrefNotificationCenter& center,
                                   QWidget* parent)
    : PreferenceTab(schema, store, center, parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* line = new QLabel(Tarvel::localized("This module is not available on this system yet."), this);
    line->setAlignment(Qt::AlignCenter);
    line->setWordWrap(true);
    layout->addWidget(line);
}
