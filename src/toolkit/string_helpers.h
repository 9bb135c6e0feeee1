// Small text transformations used when laying out and labelling menu items.
#pragma once

#include <QString>

#include <optional>

namespace TvlClasses {

// text with every ASCII digit replaced by "8", the widest digit in menu fonts; measuring
// it reserves room for any value of that shape, so labels do not jitter. Empty or null
// text gives nullopt.
std::optional<QString> retEightNumber(const QString& text);

// Raises the first character and every character directly after a space (U+0020) to upper
// case, using full case mapping ("ß" becomes "SS"); nothing is lowered.
QString tvlCollectString(const QString& text);

// text without line feeds, carriage returns, tabs and NUL characters.
QString TvlRemoveNRTZ(const QString& text);

// text for a terminal: every control character but the line feed written as "\xNN", so that a
// volume or mount point named with escape sequences or a bell is shown, not obeyed.
QString escapedForTerminal(const QString& text);

} // namespace TvlClasses
