// The command line of a desktop entry's Exec key, ready to start.
#pragma once

#include <QStringList>
#include <QStringView>

#include <optional>

namespace DesktopExec {

// The line's words as the rules split them, field codes untouched; none for an unclosed quote.
std::optional<QStringList> words(QStringView exec);

// The program and its arguments: quoted arguments are taken whole, %u %U %f %F become the given
// addresses (and go when there are none), %% is a percent sign, the other field codes go.
// Empty for an empty line or an unclosed quote.
QStringList arguments(QStringView exec, const QStringList& urls = {});

} // namespace DesktopExec
