// The path of the program the user starts, also while the desktop program runs in its place.
#pragma once

#include <QString>

namespace Tarvel {

// Set by tarvel when it hands over to the desktop program.
inline constexpr const char* kProgramPathVariable = "TARVEL_PROGRAM";

// What a login item or a restart is to run.
QString programPath();

} // namespace Tarvel
