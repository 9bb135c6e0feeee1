// Builds a complete reference theme: reads a hand-written base theme, draws its pictures, writes it.
#include "theme_pictures.h"

#include "prefs/plist_io.h"
#include "prefs/theme_keys.h"

#include <QGuiApplication>
#include <QTextStream>


namespace {

// Everything a reference theme needs besides its pictures; the problems found, one per line.
QStringList baseProblems(const QVariantMap& base)
{
    QStringList problems;
    for (const QString& key : TvlClasses::themeStringKeys()) {
        if (base.value(key).typeId() != QMetaType::QString || base.value(key).toString().isEmpty())
            problems << key + QStringLiteral(": missing or not a string");
    }
    for (const QString& key : TvlClasses::themeNumberKeys()) {
        if (!base.contains(key) || !base.value(key).canConvert<double>())
            problems << key + QStringLiteral(": missing or not a number");
    }
    if (base.value(QStringLiteral("_ForDarkAppearance")).typeId() != QMetaType::Bool)
        problems << QStringLiteral("_ForDarkAppearance: missing or not a boolean");
    for (const QString& key : TvlClasses::themeColorKeys()) {
        const QVariantList parts = base.value(key).toList();
        bool valid = parts.size() == 4;
        for (const QVariant& part : parts)
            valid = valid && part.toDouble() >= 0.0 && part.toDouble() <= 1.0;
        if (!valid)
            problems << key + QStringLiteral(": not four numbers from 0 to 1");
    }
    QStringList known = TvlClasses::themeStringKeys() + TvlClasses::themeNumberKeys()
                        + TvlClasses::themeColorKeys();
    known << QStringLiteral("_ForDarkAppearance");
    for (auto it = base.cbegin(); it != base.cend(); ++it) {
        if (!known.contains(it.key()))
            problems << it.key() + QStringLiteral(": not a theme key");
    }
    return problems;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3) {
        err << "usage: tarvel_theme_pictures <base.plist> <theme.plist>\n";
        return 2;
    }
    const std::optional<QVariantMap> base = PlistIo::readDictionary(args[1]);
    if (!base) {
        err << args[1] << ": not a property-list dictionary\n";
        return 1;
    }
    const QStringList problems = baseProblems(*base);
    if (!problems.isEmpty()) {
        err << args[1] << ":\n  " << problems.join(QStringLiteral("\n  ")) << '\n';
        return 1;
    }

    QVariantMap theme = *base;
    const PictureInks inks = inksForTheme(theme);
    addLabelPictures(theme, inks);
    addVolumePictures(theme, inks);
    addMenuPictures(theme, inks);
    for (const QString& key : TvlClasses::themePictureKeys()) {
        if (theme.value(key).toByteArray().isEmpty()) {
            err << key << ": no picture drawn\n";
            return 1;
        }
    }
    if (!PlistIo::writeDictionaryAtomically(args[2], theme)) {
        err << args[2] << ": cannot write\n";
        return 1;
    }
    return 0;
}
