// A small .desktop reader: QSettings mangles localised keys such as Name[de], so this reads the lines itself.
#include "collect/desktop_entry.h"

#include <QStringList>

namespace {
// Undoes the escapes allowed in string values.
QString unescaped(QStringView value)
{
    QString out;
    out.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value[i];
        if (c != QLatin1Char('\\') || i + 1 == value.size()) {
            out += c;
            continue;
        }
        switch (value[++i].unicode()) {
        case 's':
            out += QLatin1Char(' ');
            break;
        case 'n':
            out += QLatin1Char('\n');
            break;
        case 't':
            out += QLatin1Char('\t');
            break;
        case 'r':
            out += QLatin1Char('\r');
            break;
        default:
            out += value[i];
            break;
        }
    }
    return out;
}

// Exec's words, honouring double quotes; only the first few matter.
QStringList execWords(const QString& exec)
{
    QStringList words;
    QString word;
    bool quoted = false;
    bool inWord = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i];
        if (quoted) {
            if (c == QLatin1Char('\\') && i + 1 < exec.size())
                word += exec[++i];
            else if (c == QLatin1Char('"'))
                quoted = false;
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
    if (inWord)
        words.append(word);
    return words;
}

// The program Exec starts; "env VAR=value program" names program.
QString programName(const QString& exec)
{
    const QStringList words = execWords(exec);
    qsizetype i = 0;
    if (i < words.size() && (words[i] == QLatin1String("env") || words[i].endsWith(QLatin1String("/env"))))
        ++i;
    while (i < words.size() && words[i].contains(QLatin1Char('=')))
        ++i;
    if (i == words.size())
        return {};
    const QString& program = words[i];
    return program.mid(program.lastIndexOf(QLatin1Char('/')) + 1);
}

bool isTrue(QStringView value)
{
    return value.trimmed() == QLatin1String("true");
}
} // namespace

std::optional<DesktopEntry> parseDesktopEntry(QStringView text, const QLocale& locale)
{
    // Name[de_DE] is preferred to Name[de], which is preferred to Name.
    const QString full = locale.name();
    const QString language = full.section(QLatin1Char('_'), 0, 0);
    int nameRank = 0;

    DesktopEntry entry;
    bool inGroup = false;
    bool seenGroup = false;
    for (QStringView line : text.split(QLatin1Char('\n'))) {
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1Char('['))) {
            inGroup = line == QLatin1String("[Desktop Entry]");
            seenGroup = seenGroup || inGroup;
            continue;
        }
        if (!inGroup)
            continue;
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            continue;
        const QStringView key = line.first(equals).trimmed();
        const QStringView value = line.sliced(equals + 1).trimmed();
        if (key == QLatin1String("Type")) {
            if (value != QLatin1String("Application"))
                return std::nullopt;
        } else if (key == QLatin1String("Exec")) {
            entry.execName = programName(unescaped(value));
        } else if (key == QLatin1String("StartupWMClass")) {
            entry.wmClass = unescaped(value);
        } else if (key == QLatin1String("NoDisplay") || key == QLatin1String("Hidden")) {
            entry.shown = entry.shown && !isTrue(value);
        } else if (key.startsWith(QLatin1String("Name"))) {
            int rank = 0;
            if (key == QLatin1String("Name"))
                rank = 1;
            else if (key == QString(QLatin1String("Name[") + language + QLatin1Char(']')))
                rank = 2;
            else if (key == QString(QLatin1String("Name[") + full + QLatin1Char(']')))
                rank = 3;
            if (rank > nameRank) {
                nameRank = rank;
                entry.name = unescaped(value);
            }
        }
    }
    if (!seenGroup)
        return std::nullopt;
    return entry;
}
