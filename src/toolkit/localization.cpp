// Qt translation lookup with the English texts as keys.
#include "toolkit/localization.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace {
constexpr const char* kContext = "Tarvel";
}

QString localized(const char* key)
{
    return QCoreApplication::translate(kContext, key);
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
