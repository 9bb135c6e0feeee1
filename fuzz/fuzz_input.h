// Helpers the harnesses share: the fuzzer's bytes as text, and as files in a private folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace FuzzInput {

inline std::string_view text(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

// A folder of this process's own, made once and emptied by nobody: runs reuse the same files.
const std::filesystem::path& scratchFolder();

// Writes the bytes to the file under scratchFolder(), making its folders; the file's full path.
std::filesystem::path writeFile(std::string_view relative, std::string_view bytes);

} // namespace FuzzInput
