// Every user-visible text goes through here, with its English text as the key.
#pragma once

#include <QString>

class QCoreApplication;

// Qualified calls (Tarvel::localized("...")) are what lupdate files under the "Tarvel" context,
// the one every lookup uses; tables of texts mark theirs with Tarvel::textKey(...).
namespace Tarvel {
// The translation of key in the current language; the key itself when untranslated.
// A translation of a lone U+200B (zero-width space) stands for the empty text.
QString localized(const char* key);
// Marks a text that is translated where it is shown (a table entry, a control's name), so that
// lupdate finds it; the key passes through unchanged.
constexpr const char* textKey(const char* key)
{
    return key;
}
} // namespace Tarvel
// Still callable unqualified, but lupdate files such calls under the caller's class, so the
// translation check names them.
using Tarvel::localized;

// Installs the translation for the system language, with English as the fallback (English
// carries the few keys, such as "_dayS", whose key is not already the English text).
void installTranslations(QCoreApplication& app);
