// What a kernel-text parser hands back: the value read, or why the text was turned down and where.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

struct ParseError {
    std::string reason;
    std::string line;           // the offending line as the file has it; empty when none is to blame
    std::size_t lineNumber = 0; // counted from 1; 0 when no line is to blame

    bool operator==(const ParseError&) const = default;
};

// A value or the ParseError that stands in for it; read like an optional.
template <class T> class Parsed {
public:
    Parsed(T value)
        : state_(std::move(value))
    {}
    Parsed(ParseError error)
        : state_(std::move(error))
    {}

    bool has_value() const { return state_.index() == 0; }
    explicit operator bool() const { return has_value(); }
    T& operator*() { return std::get<0>(state_); }
    const T& operator*() const { return std::get<0>(state_); }
    T* operator->() { return &std::get<0>(state_); }
    const T* operator->() const { return &std::get<0>(state_); }
    const ParseError& error() const { return std::get<1>(state_); }

    std::optional<T> toOptional() &&
    {
        if (!has_value())
            return std::nullopt;
        return std::move(std::get<0>(state_));
    }

private:
    std::variant<T, ParseError> state_;
};

// A rejection that blames a line of the text.
inline ParseError rejectedLine(std::string_view reason, std::string_view line, std::size_t lineNumber)
{
    return {std::string(reason), std::string(line), lineNumber};
}

// A rejection of the text as a whole (a file without the row it must have, say).
inline ParseError rejectedText(std::string_view reason)
{
    return {std::string(reason), {}, 0};
}
