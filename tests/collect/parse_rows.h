// Checks a parser against rows of (text, what it should make of it): a summary of the value, or
// the rejection with its reason and offending line.
#pragma once

#include "collect/parsed.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string_view>
#include <variant>
#include <vector>

inline void PrintTo(const ParseError& error, std::ostream* out)
{
    *out << '{' << error.reason << ", line " << error.lineNumber << " \"" << error.line << "\"}";
}

template <class Summary> struct ParseRow {
    const char* name;
    std::string_view text;
    std::variant<Summary, ParseError> expected;
};

// summarize turns a parsed value into something comparable and printable (a tuple, a vector).
template <class Summary, class Parse, class Summarize>
void expectParses(const std::vector<ParseRow<Summary>>& rows, Parse parse, Summarize summarize)
{
    for (const ParseRow<Summary>& row : rows) {
        SCOPED_TRACE(row.name);
        const auto parsed = parse(row.text);
        if (const auto* error = std::get_if<ParseError>(&row.expected)) {
            ASSERT_FALSE(parsed);
            EXPECT_EQ(parsed.error(), *error);
        } else {
            ASSERT_TRUE(parsed) << parsed.error().reason << ": " << parsed.error().line;
            EXPECT_EQ(summarize(*parsed), std::get<Summary>(row.expected));
        }
    }
}

// For parsers whose value compares as it is.
template <class Value, class Parse> void expectParses(const std::vector<ParseRow<Value>>& rows, Parse parse)
{
    expectParses(rows, parse, [](const Value& value) { return value; });
}
