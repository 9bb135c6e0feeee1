// Reads sysfs attributes: open, read, close, then trim and parse.
#include "collect/linux/sysfs_attribute.h"

#include "collect/linux/proc_file.h"
#include "collect/linux/text_fields.h"

#include <charconv>

std::optional<std::string> readAttributeText(const std::filesystem::path& path)
{
    const auto text = ProcFile::readOnce(path);
    if (!text)
        return std::nullopt;
    std::string_view view = *text;
    while (!view.empty() && view.back() == '\0')
        view.remove_suffix(1);
    view = trimSpace(view);
    if (view.empty())
        return std::nullopt;
    return std::string(view);
}

std::optional<std::int64_t> readAttributeInteger(const std::filesystem::path& path)
{
    const auto text = readAttributeText(path);
    return text ? parseNumber<std::int64_t>(*text) : std::nullopt;
}

std::optional<std::uint64_t> readAttributeUnsigned(const std::filesystem::path& path)
{
    const auto text = readAttributeText(path);
    if (!text)
        return std::nullopt;
    std::string_view view = *text;
    if (view.starts_with("0x") || view.starts_with("0X")) {
        view.remove_prefix(2);
        std::uint64_t value = 0;
        const auto [stop, error] = std::from_chars(view.data(), view.data() + view.size(), value, 16);
        if (error != std::errc() || stop != view.data() + view.size() || view.empty())
            return std::nullopt;
        return value;
    }
    return parseNumber<std::uint64_t>(view);
}
