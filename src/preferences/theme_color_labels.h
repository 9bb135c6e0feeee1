// What each theme colour paints, in words for the colour wells.
#pragma once

#include "prefs/pref_schema.h"

#include <QString>
#include <QStringList>

// The colour keys a module's section of the colour settings shows; General shows the shared ones.
QStringList themeColorKeysOf(const ModuleSchema& schema);
// The localised description of a colour key; the key itself when it is not known.
QString themeColorLabel(const QString& key);
