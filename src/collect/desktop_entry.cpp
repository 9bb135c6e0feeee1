// A small .desktop reader over the shared key-file reader: QSettings mangles localised keys such as Name[de].
#include "collect/desktop_entry.h"

#include "toolkit/desktop_exec.h"
#include "toolkit/key_file.h"

#include <QStringList>

namespace {
// The program Exec starts; "env VAR=value program" names program.
QString programName(const QString& exec)
{
    const QStringList words = DesktopExec::words(exec).value_or(QStringList());
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
    const KeyFile file = KeyFile::parse(text);
    const QString group = QStringLiteral("Desktop Entry");
    if (!file.hasGroup(group))
        return std::nullopt;
    const QStringList keys = file.keys(group);
    const auto value = [&file, &group](const char* key) { return file.value(group, QLatin1String(key)); };
    if (keys.contains(QLatin1String("Type")) && value("Type").trimmed() != QLatin1String("Application"))
        return std::nullopt;

    DesktopEntry entry;
    entry.exec = value("Exec");
    entry.execName = programName(entry.exec);
    entry.wmClass = value("StartupWMClass");
    entry.shown = !isTrue(value("NoDisplay")) && !isTrue(value("Hidden"));
    // Name[de_DE] is preferred to Name[de], which is preferred to Name.
    const QString full = locale.name();
    const QString language = full.section(QLatin1Char('_'), 0, 0);
    for (const QString& key : {QStringLiteral("Name[%1]").arg(full), QStringLiteral("Name[%1]").arg(language),
                               QStringLiteral("Name")}) {
        if (keys.contains(key)) {
            entry.name = file.value(group, key);
            break;
        }
    }
    return entry;
}
