// Every user-visible text goes through here, with its English text as the key.
#pragma once

#include <QString>

class QCoreApplication;

// The translation of key in the current language; the key itself when untranslated.
// A translation of a lone U+200B (zero-width space) stands for the empty text.
QString localized(const char* key);

// Installs the translation for the system language, with English as the fallback (English
// carries the few keys, such as "_dayS", whose key is not already the English text).
void installTranslations(QCoreApplication& app);
