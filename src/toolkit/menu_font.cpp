// Font lookup by PostScript or family name, with the fixed-pitch font as the fallback.
#include "toolkit/menu_font.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QPair>
#include <QStringList>

#include <mutex>

namespace TvlClasses {

namespace {

// More than any session uses: a theme has one font, measured at a size or two.
constexpr qsizetype kRememberedFonts = 16;

// PostScript names drop the spaces of family and style names ("Bold Oblique" -> "BoldOblique").
bool sameIgnoringSpaces(const QString& candidate, const QString& wanted)
{
    QString packed = candidate;
    packed.remove(QLatin1Char(' '));
    return packed.compare(wanted, Qt::CaseInsensitive) == 0;
}

QString findFamily(const QStringList& families, const QString& wanted, bool ignoreSpaces)
{
    for (const QString& family : families) {
        if (ignoreSpaces ? sameIgnoringSpaces(family, wanted) : family.compare(wanted, Qt::CaseInsensitive) == 0)
            return family;
    }
    return QString();
}

// Applies a PostScript style suffix such as "Bold" or "BoldOblique" to a font of family.
void applyStyle(QFont& font, const QString& family, const QString& style)
{
    const QStringList styles = QFontDatabase::styles(family);
    for (const QString& known : styles) {
        if (sameIgnoringSpaces(known, style)) {
            const int weight = QFontDatabase::weight(family, known);
            if (weight > 0)
                font.setWeight(static_cast<QFont::Weight>(weight));
            // The database only reports true italics; oblique faces are told by their name.
            if (QFontDatabase::italic(family, known))
                font.setStyle(QFont::StyleItalic);
            else if (known.contains(QLatin1String("Oblique"), Qt::CaseInsensitive))
                font.setStyle(QFont::StyleOblique);
            return;
        }
    }
    // Style names differ between platforms ("Regular", "Book", "Roman"); the common words
    // still carry weight and slant.
    if (style.contains(QLatin1String("Bold"), Qt::CaseInsensitive))
        font.setWeight(QFont::Bold);
    if (style.contains(QLatin1String("Italic"), Qt::CaseInsensitive))
        font.setStyle(QFont::StyleItalic);
    else if (style.contains(QLatin1String("Oblique"), Qt::CaseInsensitive))
        font.setStyle(QFont::StyleOblique);
}

QFont lookUpMenuFont(const QString& fontName, double fontSize)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString name = fontName.trimmed();
    if (!name.isEmpty()) {
        const QStringList families = QFontDatabase::families();
        if (const QString family = findFamily(families, name, false); !family.isEmpty()) {
            font = QFont(family);
        } else {
            const qsizetype dash = name.lastIndexOf(QLatin1Char('-'));
            const QString base = dash > 0 ? name.left(dash) : name;
            const QString style = dash > 0 ? name.mid(dash + 1) : QString();
            if (const QString packed = findFamily(families, base, true); !packed.isEmpty()) {
                font = QFont(packed);
                if (!style.isEmpty())
                    applyStyle(font, packed, style);
            }
        }
    }
    if (fontSize > 0)
        font.setPointSizeF(fontSize);
    return font;
}

} // namespace

QFont menuFont(const QString& fontName, double fontSize)
{
    // Every picture asks on every redraw, and a lookup walks the font database: remember the
    // few fonts that themes name. Pictures may be drawn on any thread, hence the lock.
    static std::mutex lock;
    static QHash<QPair<QString, double>, QFont> known;
    const QPair<QString, double> key(fontName, fontSize);
    const std::lock_guard guard(lock);
    // Settings that name a font are read where nothing is drawn too (the text view).
    if (!fontsAvailable()) {
        QFont font;
        if (fontSize > 0)
            font.setPointSizeF(fontSize);
        return font;
    }
    if (const auto it = known.constFind(key); it != known.cend())
        return it.value();
    if (known.size() >= kRememberedFonts)
        known.clear();
    const QFont font = lookUpMenuFont(fontName, fontSize);
    known.insert(key, font);
    return font;
}

bool fontsAvailable()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace TvlClasses
