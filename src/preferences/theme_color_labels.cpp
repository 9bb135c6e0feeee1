// Colour keys per module and their descriptions.
#include "preferences/theme_color_labels.h"

#include "prefs/pref_schema.h"
#include "toolkit/localization.h"

#include <QHash>

QStringList themeColorKeysOf(const ModuleSchema& schema)
{
    if (schema.id == ModuleId::General)
        return {QStringLiteral("Z01"), QStringLiteral("Z03")};
    QStringList keys;
    for (const char* key : schema.colorKeys) {
        const QString k = QString::fromLatin1(key);
        if (!k.startsWith(QLatin1Char('Z')))
            keys << k;
    }
    return keys;
}

QString themeColorLabel(const QString& key)
{
    static const QHash<QString, const char*> labels = {
        {QStringLiteral("Z01"), QT_TRANSLATE_NOOP("Tarvel", "Shadow under menu-bar text")},
        {QStringLiteral("Z03"), QT_TRANSLATE_NOOP("Tarvel", "Line under an empty graph")},
        {QStringLiteral("A01"), QT_TRANSLATE_NOOP("Tarvel", "User")},
        {QStringLiteral("A02"), QT_TRANSLATE_NOOP("Tarvel", "System")},
        {QStringLiteral("A03"), QT_TRANSLATE_NOOP("Tarvel", "Nice")},
        {QStringLiteral("A04"), QT_TRANSLATE_NOOP("Tarvel", "Idle")},
        {QStringLiteral("A05"), QT_TRANSLATE_NOOP("Tarvel", "Frame of bar and meter")},
        {QStringLiteral("A06"), QT_TRANSLATE_NOOP("Tarvel", "Graph background")},
        {QStringLiteral("A07"), QT_TRANSLATE_NOOP("Tarvel", "Combined percentage")},
        {QStringLiteral("B01"), QT_TRANSLATE_NOOP("Tarvel", "Wired")},
        {QStringLiteral("B02"), QT_TRANSLATE_NOOP("Tarvel", "Active; application")},
        {QStringLiteral("B03"), QT_TRANSLATE_NOOP("Tarvel", "Inactive; cached files")},
        {QStringLiteral("B04"), QT_TRANSLATE_NOOP("Tarvel", "Compressed")},
        {QStringLiteral("B05"), QT_TRANSLATE_NOOP("Tarvel", "Free")},
        {QStringLiteral("B06"), QT_TRANSLATE_NOOP("Tarvel", "Frame of bar and meter")},
        {QStringLiteral("B07"), QT_TRANSLATE_NOOP("Tarvel", "Text")},
        {QStringLiteral("B08"), QT_TRANSLATE_NOOP("Tarvel", "Pressure low")},
        {QStringLiteral("B09"), QT_TRANSLATE_NOOP("Tarvel", "Pressure warning")},
        {QStringLiteral("B10"), QT_TRANSLATE_NOOP("Tarvel", "Pressure critical")},
        {QStringLiteral("C01"), QT_TRANSLATE_NOOP("Tarvel", "Upload")},
        {QStringLiteral("C02"), QT_TRANSLATE_NOOP("Tarvel", "Download")},
        {QStringLiteral("C03"), QT_TRANSLATE_NOOP("Tarvel", "Lamp frame")},
        {QStringLiteral("C04"), QT_TRANSLATE_NOOP("Tarvel", "Lamp off")},
        {QStringLiteral("D01"), QT_TRANSLATE_NOOP("Tarvel", "Read")},
        {QStringLiteral("D02"), QT_TRANSLATE_NOOP("Tarvel", "Write")},
        {QStringLiteral("D03"), QT_TRANSLATE_NOOP("Tarvel", "Lamp frame")},
        {QStringLiteral("D04"), QT_TRANSLATE_NOOP("Tarvel", "Lamp off")},
        {QStringLiteral("E01"), QT_TRANSLATE_NOOP("Tarvel", "Used, low")},
        {QStringLiteral("E02"), QT_TRANSLATE_NOOP("Tarvel", "Used, warning")},
        {QStringLiteral("E03"), QT_TRANSLATE_NOOP("Tarvel", "Used, critical")},
        {QStringLiteral("E04"), QT_TRANSLATE_NOOP("Tarvel", "Free")},
        {QStringLiteral("E05"), QT_TRANSLATE_NOOP("Tarvel", "Frame of bar and meter")},
        {QStringLiteral("E06"), QT_TRANSLATE_NOOP("Tarvel", "Label text")},
        {QStringLiteral("E07"), QT_TRANSLATE_NOOP("Tarvel", "Percentage text")},
        {QStringLiteral("F01"), QT_TRANSLATE_NOOP("Tarvel", "Low")},
        {QStringLiteral("F02"), QT_TRANSLATE_NOOP("Tarvel", "Warning")},
        {QStringLiteral("F03"), QT_TRANSLATE_NOOP("Tarvel", "Critical")},
        {QStringLiteral("F04"), QT_TRANSLATE_NOOP("Tarvel", "Text")},
        {QStringLiteral("G01"), QT_TRANSLATE_NOOP("Tarvel", "Low")},
        {QStringLiteral("G02"), QT_TRANSLATE_NOOP("Tarvel", "Warning")},
        {QStringLiteral("G03"), QT_TRANSLATE_NOOP("Tarvel", "Critical")},
        {QStringLiteral("G04"), QT_TRANSLATE_NOOP("Tarvel", "Text")},
    };
    const auto it = labels.constFind(key);
    return it == labels.cend() ? key : localized(it.value());
}
