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
        {QStringLiteral("Z01"), Tarvel::textKey("Shadow under menu-bar text")},
        {QStringLiteral("Z03"), Tarvel::textKey("Line under an empty graph")},
        {QStringLiteral("A01"), Tarvel::textKey("User")},
        {QStringLiteral("A02"), Tarvel::textKey("System")},
        {QStringLiteral("A03"), Tarvel::textKey("Nice")},
        {QStringLiteral("A04"), Tarvel::textKey("Idle")},
        {QStringLiteral("A05"), Tarvel::textKey("Frame of bar and meter")},
        {QStringLiteral("A06"), Tarvel::textKey("Graph background")},
        {QStringLiteral("A07"), Tarvel::textKey("Combined percentage")},
        {QStringLiteral("B01"), Tarvel::textKey("Wired")},
        {QStringLiteral("B02"), Tarvel::textKey("Active; application")},
        {QStringLiteral("B03"), Tarvel::textKey("Inactive; cached files")},
        {QStringLiteral("B04"), Tarvel::textKey("Compressed")},
        {QStringLiteral("B05"), Tarvel::textKey("Free")},
        {QStringLiteral("B06"), Tarvel::textKey("Frame of bar and meter")},
        {QStringLiteral("B07"), Tarvel::textKey("Text")},
        {QStringLiteral("B08"), Tarvel::textKey("Pressure low")},
        {QStringLiteral("B09"), Tarvel::textKey("Pressure warning")},
        {QStringLiteral("B10"), Tarvel::textKey("Pressure critical")},
        {QStringLiteral("C01"), Tarvel::textKey("Upload")},
        {QStringLiteral("C02"), Tarvel::textKey("Download")},
        {QStringLiteral("C03"), Tarvel::textKey("Lamp frame")},
        {QStringLiteral("C04"), Tarvel::textKey("Lamp off")},
        {QStringLiteral("D01"), Tarvel::textKey("Read")},
        {QStringLiteral("D02"), Tarvel::textKey("Write")},
        {QStringLiteral("D03"), Tarvel::textKey("Lamp frame")},
        {QStringLiteral("D04"), Tarvel::textKey("Lamp off")},
        {QStringLiteral("E01"), Tarvel::textKey("Used, low")},
        {QStringLiteral("E02"), Tarvel::textKey("Used, warning")},
        {QStringLiteral("E03"), Tarvel::textKey("Used, critical")},
        {QStringLiteral("E04"), Tarvel::textKey("Free")},
        {QStringLiteral("E05"), Tarvel::textKey("Frame of bar and meter")},
        {QStringLiteral("E06"), Tarvel::textKey("Label text")},
        {QStringLiteral("E07"), Tarvel::textKey("Percentage text")},
        {QStringLiteral("F01"), Tarvel::textKey("Low")},
        {QStringLiteral("F02"), Tarvel::textKey("Warning")},
        {QStringLiteral("F03"), Tarvel::textKey("Critical")},
        {QStringLiteral("F04"), Tarvel::textKey("Text")},
        {QStringLiteral("G01"), Tarvel::textKey("Low")},
        {QStringLiteral("G02"), Tarvel::textKey("Warning")},
        {QStringLiteral("G03"), Tarvel::textKey("Critical")},
        {QStringLiteral("G04"), Tarvel::textKey("Text")},
    };
    const auto it = labels.constFind(key);
    return it == labels.cend() ? key : Tarvel::localized(it.value());
}
