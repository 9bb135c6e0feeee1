// The key set that every colour theme shares.
#include "prefs/theme_keys.h"

#include "prefs/pref_keys.h"

namespace TvlClasses {
namespace {

void appendRange(QStringList& keys, QChar letter, int first, int last)
{
    for (int i = first; i <= last; ++i)
        keys.append(letter + QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0')));
}

} // namespace

QStringList themeColorKeys()
{
    QStringList keys{QStringLiteral("Z01"), QStringLiteral("Z03")};
    appendRange(keys, u'A', 1, 7);
    appendRange(keys, u'B', 1, 10);
    appendRange(keys, u'C', 1, 4);
    appendRange(keys, u'D', 1, 4);
    appendRange(keys, u'E', 1, 7);
    appendRange(keys, u'F', 1, 4);
    appendRange(keys, u'G', 1, 4);
    return keys;
}

QStringList themePictureKeys()
{
    QStringList keys;
    appendRange(keys, u'L', 1, 8);
    appendRange(keys, u'M', 1, 6);
    appendRange(keys, u'M', 11, 12);
    keys << QStringLiteral("N01") << QStringLiteral("N03") << QStringLiteral("O01") << QStringLiteral("O02");
    appendRange(keys, u'O', 11, 13);
    appendRange(keys, u'O', 21, 22);
    appendRange(keys, u'O', 31, 32);
    appendRange(keys, u'O', 41, 42);
    return keys;
}

QStringList themeStringKeys()
{
    return {QLatin1String(PrefKey::_Name),     QLatin1String(PrefKey::_Author),
            QLatin1String(PrefKey::_Credit),   QLatin1String(PrefKey::_AlternativeTheme),
            QLatin1String(PrefKey::_FontName), QLatin1String(PrefKey::_FontPostScriptName),
            QLatin1String(PrefKey::_FontStyle)};
}

QStringList themeNumberKeys()
{
    return {QLatin1String(PrefKey::_FontAdjust), QLatin1String(PrefKey::_FontSizeDiff)};
}

} // namespace TvlClasses
