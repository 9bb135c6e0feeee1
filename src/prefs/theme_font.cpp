// The menu-bar font a theme names: whether it is installed, and what stands in when it is not.
#include "prefs/theme_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

namespace TvlClasses {
namespace {

QString withoutSpaces(QString text)
{
    return text.remove(u' ');
}

// The member closest to "Bold": that style itself, else the heaviest upright style.
QString boldStyleOf(const QString& family)
{
    const QStringList styles = QFontDatabase::styles(family);
    const QString bold = QStringLiteral("Bold");
    if (styles.isEmpty() || styles.contains(bold))
        return bold;
    QString best;
    int bestWeight = -1;
    for (const QString& style : styles) {
        if (QFontDatabase::italic(family, style))
            continue;
        const int weight = QFontDatabase::weight(family, style);
        if (weight > bestWeight) {
            best = style;
            bestWeight = weight;
        }
    }
    return best.isEmpty() ? styles.first() : best;
}

} // namespace

QString retPostScriptName(const QString& family, const QString& style)
{
    return withoutSpaces(family) + u'-' + withoutSpaces(style);
}

bool isInstalledThemeFont(const ThemeFont& font)
{
    if (font.family.isEmpty() || !QFontDatabase::families().contains(font.family))
        return false;
    const QStringList styles = QFontDatabase::styles(font.family);
    for (const QString& style : styles) {
        if (style == font.style && retPostScriptName(font.family, style) == font.postScriptName)
            return true;
    }
    return false;
}

ThemeFont fallbackThemeFont()
{
    const QString menlo = QStringLiteral("Menlo");
    if (QFontDatabase::families().contains(menlo))
        return {menlo, QStringLiteral("Menlo-Bold"), QStringLiteral("Bold")};
    // The fixed font is often a generic alias such as "monospace"; resolve it to the real family.
    const QString family = QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).family();
    const QString style = boldStyleOf(family);
    return {family, retPostScriptName(family, style), style};
}

} // namespace TvlClasses
