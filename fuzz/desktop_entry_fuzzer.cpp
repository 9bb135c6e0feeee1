// Fuzzes the desktop entry reader and the key-file syntax beneath it.
#include "collect/desktop_entry.h"
#include "fuzz_input.h"
#include "toolkit/key_file.h"

#include <QLocale>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    static const QLocale japanese(QLocale::Japanese, QLocale::Japan);
    (void)parseDesktopEntry(text, japanese);
    (void)parseDesktopEntry(text, QLocale::c());
    const KeyFile file = KeyFile::parse(text);
    (void)file.list(QStringLiteral("Desktop Entry"), QStringLiteral("Categories"));
    return 0;
}
