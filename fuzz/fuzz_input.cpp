// The harnesses' scratch folder and file writing.
#include "fuzz_input.h"

#include <cstdlib>
#include <fstream>
#include <string>

namespace FuzzInput {

const std::filesystem::path& scratchFolder()
{
    static const std::filesystem::path folder = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "tarvel-fuzz-XXXXXX").string();
        if (!::mkdtemp(pattern.data()))
            std::abort();
        return std::filesystem::path(pattern);
    }();
    return folder;
}

std::filesystem::path writeFile(std::string_view relative, std::string_view bytes)
{
    const std::filesystem::path path = scratchFolder() / relative;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
}

} // namespace FuzzInput
