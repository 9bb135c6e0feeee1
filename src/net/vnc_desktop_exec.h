// The command line of a desktop entry's Exec key, ready to start.
#pragma once

#include <QStringList>
#include <QStringView>

namespace VncDesktopExec {

// The program and its arguments: quoted arguments are taken whole, %u %U %f %F become the given
// addresses (and go when there are none), %% is a percent sign, the other field codes go.
// Empty for an empty line or an unclosed quote.
QStringList arguments(QStringView exec, const QStringList& urls = {});

} // namespace VncDesktopExec
