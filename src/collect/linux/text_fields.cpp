// Line and field scanning over string views.
#include "collect/linux/text_fields.h"

namespace {
bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}
} // namespace

bool takeLine(std::string_view& text, std::string_view& line)
{
    if (text.empty())
        return false;
    const auto end = text.find('\n');
    if (end == std::string_view::npos) {
        line = text;
        text = {};
    } else {
        line = text.substr(0, end);
        text.remove_prefix(end + 1);
    }
    return true;
}

std::string_view firstLine(std::string_view text)
{
    return text.substr(0, text.find('\n'));
}

std::string_view takeField(std::string_view& text)
{
    std::size_t start = 0;
    while (start < text.size() && isBlank(text[start]))
        ++start;
    std::size_t stop = start;
    while (stop < text.size() && !isBlank(text[stop]))
        ++stop;
    const std::string_view field = text.substr(start, stop - start);
    text.remove_prefix(stop);
    return field;
}

std::string_view trimSpace(std::string_view text)
{
    while (!text.empty() && (isBlank(text.front()) || text.front() == '\n' || text.front() == '\r'))
        text.remove_prefix(1);
    while (!text.empty() && (isBlank(text.back()) || text.back() == '\n' || text.back() == '\r'))
        text.remove_suffix(1);
    return text;
}

std::string unescapeOctal(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && isOctal(text[i + 1]) && isOctal(text[i + 2]) &&
            isOctal(text[i + 3])) {
            out.push_back(
                static_cast<char>(((text[i + 1] - '0') << 6) | ((text[i + 2] - '0') << 3) | (text[i + 3] - '0')));
            i += 3;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}
