// Reading the dynamic DNS list's line format.
#include "net/ddns_line.h"

#include "toolkit/arranged_number.h"
#include "toolkit/localization.h"

#include <QStringList>

DdnsLine DdnsLine::parse(const QString& line)
{
    DdnsLine parsed;
    if (line.isEmpty())
        return parsed;
    if (line.startsWith(QLatin1Char('#'))) {
        parsed.kind = Kind::Comment;
        return parsed;
    }
    const QStringList parts = line.split(QLatin1Char('&'));
    parsed.firstPart = parts.front();
    if (parts.size() == 1) {
        parsed.kind = Kind::NoSeparator;
    } else if (parts.size() == 4 && parts.at(0) == QLatin1String("valuedomain") && !parts.at(1).isEmpty() &&
               !parts.at(2).isEmpty() && !parts.at(3).isEmpty()) {
        parsed.kind = Kind::ValueDomain;
        parsed.host = parts.at(1);
        parsed.domain = parts.at(2);
        parsed.password = parts.at(3);
    } else if (parts.size() == 2 && parts.at(0) == QLatin1String("tarvel") && parts.at(1) == QLatin1String("confirm")) {
        parsed.kind = Kind::Confirm;
    } else {
        parsed.kind = Kind::Malformed;
    }
    return parsed;
}

QString ddnsLineLabel(int number, int count)
{
    const QString number0 = QStringLiteral("%1").arg(number, TvlClasses::TvlCalcDigits(count), 10, QLatin1Char('0'));
    return Tarvel::localized("Line %0*d").replace(QLatin1String("%0*d"), number0);
}
