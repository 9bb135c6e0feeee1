// The desktop program found from this one's path and started in its place.
#include "app/desktop_handover.h"

#include "app/commands.h"
#include "toolkit/program_path.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include <unistd.h>

namespace {

constexpr const char* kDesktopProgram = "tarvel-desktop";

// Where an installation puts the desktop program, seen from tarvel's own folder.
std::filesystem::path installedFolder(const std::filesystem::path& self)
{
    return (self.parent_path() / TARVEL_DESKTOP_DIR_FROM_BINDIR).lexically_normal();
}

std::filesystem::path selfPath()
{
    std::error_code error;
    std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path() : self;
}

// Replaces this process with the desktop program on the same arguments; returns only when it
// could not, having said why.
void execDesktop(char** argv)
{
    const std::filesystem::path self = selfPath();
    const std::filesystem::path desktop = desktopProgramPath(self);
    if (desktop.empty()) {
        std::fprintf(stderr, "tarvel: the desktop program %s was found neither beside %s nor in %s\n", kDesktopProgram,
                     self.c_str(), installedFolder(self).c_str());
        return;
    }
    // The login item and the restart name the program the user starts, not the one run here.
    ::setenv(Tarvel::kProgramPathVariable, self.c_str(), 1);
    ::execv(desktop.c_str(), argv);
    std::fprintf(stderr, "tarvel: %s could not be started: %s\n", desktop.c_str(), std::strerror(errno));
}

} // namespace

std::filesystem::path desktopProgramPath(const std::filesystem::path& self)
{
    if (self.empty())
        return {};
    for (const std::filesystem::path& candidate :
         {self.parent_path() / kDesktopProgram, installedFolder(self) / kDesktopProgram}) {
        if (::access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return {};
}

int handOverMonitor(const AppOptions& options, int argc, char** argv)
{
    execDesktop(argv);
    return runTextView(options, argc, argv);
}

int handOverRender(const AppOptions&, int, char** argv)
{
    execDesktop(argv);
    return 1;
}
