// Restarting the running program in place.
#pragma once

namespace GeneralFunctions {

// Starts a fresh copy of this program with the same arguments and quits this one.
void rebootMe();

} // namespace GeneralFunctions
