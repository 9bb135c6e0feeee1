// Decoding of byte escapes written as an introducer and two hexadecimal digits ("%20", "\x20").
#pragma once

#include <string>
#include <string_view>

// The text with every introducer followed by two hexadecimal digits replaced by that byte;
// anything else, incomplete escapes included, is kept as it stands.
std::string decodeHexEscapes(std::string_view text, std::string_view introducer);
