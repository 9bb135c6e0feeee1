// Command-line arguments that cannot be taken as text without losing bytes.
#pragma once

#include <optional>

// The index of the first argument that is not valid UTF-8, which Qt would turn into U+FFFD and
// so name another path than the user's; nothing when every argument is sound.
std::optional<int> firstNonUtf8Argument(int argc, const char* const* argv);
