// Small allocation-free scanners for the kernel's line- and blank-separated text.
#pragma once

#include "collect/parsed.h"

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// Takes the next line off text (without its line feed); false once text is used up. A last
// line without a line feed is still returned.
bool takeLine(std::string_view& text, std::string_view& line);

// Takes the next field separated by blanks or tabs; empty when none is left.
std::string_view takeField(std::string_view& text);

// text without surrounding blanks, tabs and line ends.
std::string_view trimSpace(std::string_view text);

// The whole of text as a number; empty on any stray character, sign error or overflow.
template <class Number> std::optional<Number> parseNumber(std::string_view text)
{
    Number value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || text.empty())
        return std::nullopt;
    return value;
}

// Decodes the kernel's octal escapes of blanks and backslashes in paths ("\040" is a blank).
std::string unescapeOctal(std::string_view text);

// The first line a parser passed over, to blame when the text yields nothing at all.
class FirstSkippedLine {
public:
    void note(std::string_view line, std::size_t lineNumber)
    {
        if (number_ == 0) {
            line_ = line;
            number_ = lineNumber;
        }
    }
    // The rejection, blaming the noted line or, with none noted, the text as a whole.
    ParseError blame(std::string_view reason) const
    {
        return number_ != 0 ? rejectedLine(reason, line_, number_) : rejectedText(reason);
    }

private:
    std::string_view line_;
    std::size_t number_ = 0;
};

// The first line of text, without its line feed.
std::string_view firstLine(std::string_view text);
