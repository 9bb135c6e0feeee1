// Raises the soft limit of open files, which desktops start at 1024.
#include "app/open_file_limit.h"

#include <sys/resource.h>

#include <algorithm>

void raiseOpenFileLimit()
{
    // The process list keeps every process's stat file open between refreshes, and a busy
    // machine runs thousands of processes. Qt and the libraries beneath it wait with poll, not
    // select, so descriptors past 1024 are safe to use.
    constexpr rlim_t kWanted = 8192;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= kWanted)
        return;
    limit.rlim_cur = limit.rlim_max == RLIM_INFINITY ? kWanted : std::min(kWanted, limit.rlim_max);
    ::setrlimit(RLIMIT_NOFILE, &limit);
}
