// Replays the kept fuzzing findings through the harnesses without libFuzzer, as a test: every
// file of findings/<harness>/ goes to that harness, and a crash or sanitizer report fails it.
#include <QCoreApplication>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

using Harness = int (*)(const std::uint8_t*, std::size_t);

// Each harness's entry point, renamed for this program by the build.
extern "C" {
#define TARVEL_HARNESS(name) int replay_##name(const std::uint8_t*, std::size_t);
#include "harness_list.h"
#undef TARVEL_HARNESS
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FINDINGS_FOLDER\n", argv[0]);
        return 2;
    }
    const std::map<std::string, Harness> harnesses{
#define TARVEL_HARNESS(name) {#name, &replay_##name},
#include "harness_list.h"
#undef TARVEL_HARNESS
    };
    int replayed = 0;
    for (const auto& folder : std::filesystem::directory_iterator(argv[1])) {
        const auto harness = harnesses.find(folder.path().filename().string());
        if (harness == harnesses.end()) {
            std::fprintf(stderr, "no harness named %s\n", folder.path().filename().c_str());
            return 1;
        }
        for (const auto& file : std::filesystem::directory_iterator(folder.path())) {
            std::ifstream in(file.path(), std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
            std::printf("%s %s\n", harness->first.c_str(), file.path().filename().c_str());
            std::fflush(stdout);
            harness->second(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++replayed;
        }
    }
    std::printf("%d findings replayed\n", replayed);
    return 0;
}
