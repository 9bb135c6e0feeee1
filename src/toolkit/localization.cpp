// Qt translation lookup with the English texts as keys.
#include "toolkit/localization.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace {
constexpr const char* kContext = "Tarvel";
// A compiled translation cannot hold an empty text (it reads as missing, and the English
// fallback would show through), so translation files write a lone zero-width space instead.
constexpr char16_t kEmptyTranslation = u'\u200B';
}

QString Tarvel::localized(const char* key)
{
    QString text = QCoreApplication::translate(kContext, key);
    if (text.size() == 1 && text.front() == QChar(kEmptyTranslation))
        text.clear();
    return text;
}

void installTranslations(QCoreApplication& app)
{
    // English first, so that a partial translation still falls back to English texts.
    auto* english = new QTranslator(&app);
    if (english->load(QStringLiteral(":/i18n/tarvel_en.qm")))
        QCoreApplication::installTranslator(english);

    auto* native = new QTranslator(&app);
    if (QLocale().language() != QLocale::English
        && native->load(QLocale(), QStringLiteral("tarvel"), QStringLiteral("_"), QStringLiteral(":/i18n")))
        QCoreApplication::installTranslator(native);
}
