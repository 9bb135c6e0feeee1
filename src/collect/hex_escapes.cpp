// Byte escapes of percent-encoded share names and of udev's encoded labels.
#include "collect/hex_escapes.h"

namespace {

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

std::string decodeHexEscapes(std::string_view text, std::string_view introducer)
{
    std::string decoded;
    decoded.reserve(text.size());
    const std::size_t n = introducer.size();
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!introducer.empty() && text.substr(i, n) == introducer && i + n + 1 < text.size() &&
            hexDigit(text[i + n]) >= 0 && hexDigit(text[i + n + 1]) >= 0) {
            decoded.push_back(static_cast<char>(hexDigit(text[i + n]) * 16 + hexDigit(text[i + n + 1])));
            i += n + 1;
        } else {
            decoded.push_back(text[i]);
        }
    }
    return decoded;
}
