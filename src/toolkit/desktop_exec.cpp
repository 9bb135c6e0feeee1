// Exec lines follow the desktop entry rules: spaces separate, double quotes group, and inside
// quotes a backslash keeps the next character.
#include "toolkit/desktop_exec.h"

#include <optional>

namespace DesktopExec {
namespace {

std::optional<QStringList> splitWords(QStringView exec)
{
    QStringList words;
    QString word;
    bool inWord = false;
    bool quoted = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i];
        if (quoted) {
            if (c == QLatin1Char('"'))
                quoted = false;
            else if (c == QLatin1Char('\\') && i + 1 < exec.size())
                word += exec[++i];
            else
                word += c;
        } else if (c == QLatin1Char('"')) {
            quoted = inWord = true;
        } else if (c.isSpace()) {
            if (inWord)
                words.append(word);
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (quoted)
        return std::nullopt;
    if (inWord)
        words.append(word);
    return words;
}

// Field codes inside a longer word: a single address, or nothing.
QString expanded(const QString& word, const QStringList& urls)
{
    QString out;
    for (qsizetype i = 0; i < word.size(); ++i) {
        if (word[i] != QLatin1Char('%') || i + 1 == word.size()) {
            out += word[i];
            continue;
        }
        const QChar code = word[++i];
        if (code == QLatin1Char('%'))
            out += QLatin1Char('%');
        else if (QStringLiteral("uUfF").contains(code) && !urls.isEmpty())
            out += urls.first();
    }
    return out;
}

} // namespace

QStringList arguments(QStringView exec, const QStringList& urls)
{
    const auto words = splitWords(exec);
    if (!words)
        return {};
    QStringList out;
    for (const QString& word : *words) {
        if (word == QLatin1String("%U") || word == QLatin1String("%F")) {
            out += urls;
        } else if (word == QLatin1String("%u") || word == QLatin1String("%f")) {
            if (!urls.isEmpty())
                out.append(urls.first());
        } else if (word.size() == 2 && word.startsWith(QLatin1Char('%')) && word != QLatin1String("%%")) {
            continue; // %i, %c, %k and the deprecated codes
        } else {
            out.append(expanded(word, urls));
        }
    }
    return out;
}

std::optional<QStringList> words(QStringView exec)
{
    return splitWords(exec);
}

} // namespace DesktopExec
