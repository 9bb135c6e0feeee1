// The key set that every colour theme shares.
#include "prefs/theme_keys.h"

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
    return {QStringLiteral("_Name"),     QStringLiteral("_Author"),
            QStringLiteral("_Credit"),   QStringLiteral("_AlternativeTheme"),
            QStringLiteral("_FontName"), QStringLiteral("_FontPostScriptName"),
            QStringLiteral("_FontStyle")};
}

QStringList themeNumberKeys()
{
    return {QStringLiteral("_FontAdjust"), QStringLiteral("_FontSizeDiff")};
}

} // namespace TvlClasses
