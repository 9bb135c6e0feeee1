// Reading key files the way GLib does for the few features these files use.
#include "toolkit/key_file.h"

#include <QFile>

QString KeyFile::unescaped(QStringView raw)
{
    QString out;
    out.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        const QChar c = raw[i];
        if (c != QLatin1Char('\\') || i + 1 == raw.size()) {
            out += c;
            continue;
        }
        const QChar next = raw[++i];
        switch (next.unicode()) {
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
            out += next; // "\\" and "\;" alike
        }
    }
    return out;
}

KeyFile KeyFile::parse(QStringView text)
{
    KeyFile file;
    QHash<QString, QString>* group = nullptr;
    for (QStringView line : text.split(QLatin1Char('\n'))) {
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            group = &file.groups_[line.mid(1, line.size() - 2).toString()];
            continue;
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (group == nullptr || equals <= 0)
            continue;
        const QString key = line.left(equals).trimmed().toString();
        if (!group->contains(key))
            group->insert(key, line.mid(equals + 1).trimmed().toString());
    }
    return file;
}

KeyFile KeyFile::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return parse(QString::fromUtf8(file.readAll()));
}

QString KeyFile::value(const QString& group, const QString& key) const
{
    return unescaped(groups_.value(group).value(key));
}

QStringList KeyFile::list(const QString& group, const QString& key) const
{
    const QString raw = groups_.value(group).value(key);
    QStringList entries;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= raw.size(); ++i) {
        if (i + 1 < raw.size() && raw[i] == QLatin1Char('\\')) {
            ++i;
            continue;
        }
        if (i == raw.size() || raw[i] == QLatin1Char(';')) {
            const QString entry = unescaped(QStringView(raw).mid(start, i - start)).trimmed();
            if (!entry.isEmpty())
                entries.append(entry);
            start = i + 1;
        }
    }
    return entries;
}
