// Names the running processes that belong to installed desktop applications.
#pragma once

#include "collect/desktop_index.h"
#include "collect/process_list.h"
#include "collect/process_source.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// Not thread-safe: the owner serialises calls.
class RunningApplications {
public:
    // "_<pid>" to the application's display name for every process of scan (in pid order) whose
    // program (by its executable's file name, asked of source, else its command name) matches a
    // shown desktop entry; an entry without a name gives "unknown pid :: <pid>". A process is
    // looked up once: its answer is kept while it runs (the same pid and start time), and all
    // are looked up again when the index has been rebuilt.
    ProcessDict names(const std::vector<ProcessRecord>& scan, ProcessSource& source, const DesktopIndex& index);

private:
    struct Known {
        std::int64_t pid = 0;
        std::uint64_t startTime = 0;
        std::optional<QString> name; // none: not an application
    };
    static std::optional<QString> lookUp(ProcessSource& source, const DesktopIndex& index, const ProcessRecord& record);
    void rebuildNames();

    // Kept from call to call, so that a refresh every second reuses their storage.
    std::vector<Known> known_; // in pid order
    std::vector<Known> next_;
    ProcessDict names_;
    int indexBuild_ = -1; // the index's build the answers came from
};
