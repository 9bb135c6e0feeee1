// Digit widening, word capitalisation and control-character removal.
#include "toolkit/string_helpers.h"

#include <algorithm>

namespace TvlClasses {

std::optional<QString> retEightNumber(const QString& text)
{
    if (text.isEmpty())
        return std::nullopt;
    QString widened = text;
    for (QChar& ch : widened) {
        if (ch >= QLatin1Char('0') && ch <= QLatin1Char('9'))
            ch = QLatin1Char('8');
    }
    return widened;
}

QString tvlCollectString(const QString& text)
{
    if (text.isEmpty())
        return QString();
    QString result;
    result.reserve(text.size());
    bool raiseNext = true;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        if (!raiseNext) {
            result.append(ch);
        } else if (ch.unicode() < 0x80) {
            result.append(ch.toUpper());
        } else {
            // Outside ASCII the upper-case form may be several characters, or the character
            // may be one half of a surrogate pair: take the whole code point.
            const qsizetype length = ch.isHighSurrogate() && i + 1 < text.size()
                                             && text.at(i + 1).isLowSurrogate()
                                         ? 2
                                         : 1;
            result.append(text.mid(i, length).toUpper());
            i += length - 1;
        }
        raiseNext = ch == QLatin1Char(' ');
    }
    return result;
}

QString TvlRemoveNRTZ(const QString& text)
{
    const auto isControl = [](QChar ch) {
        const char16_t code = ch.unicode();
        return code == u'\n' || code == u'\r' || code == u'\t' || code == u'\0';
    };
    // Most texts are clean; returning the shared original then costs no allocation.
    if (std::none_of(text.begin(), text.end(), isControl))
        return text;
    QString cleaned;
    cleaned.reserve(text.size());
    for (const QChar ch : text) {
        if (!isControl(ch))
            cleaned.append(ch);
    }
    return cleaned;
}

QString escapedForTerminal(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        const bool control = (u < 0x20 && u != u'\n') || (u >= 0x7f && u <= 0x9f);
        if (control)
            out += QStringLiteral("\\x%1").arg(static_cast<int>(u), 2, 16, QLatin1Char('0'));
        else
            out += c;
    }
    return out;
}

} // namespace TvlClasses
