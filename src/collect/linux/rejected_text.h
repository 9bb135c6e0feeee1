// Turns a parser's answer into the reader's optional, telling once per file why text was turned down.
#pragma once

#include "collect/parsed.h"

#include <filesystem>
#include <optional>

// Logs the rejection as a warning the first time this file's text is turned down in this run:
// a broken file is read again every second, and one line about it is enough.
void warnRejectedOnce(const std::filesystem::path& path, const ParseError& error);

template <class T> std::optional<T> acceptParsed(const std::filesystem::path& path, Parsed<T> parsed)
{
    if (!parsed) {
        warnRejectedOnce(path, parsed.error());
        return std::nullopt;
    }
    return std::move(parsed).toOptional();
}
