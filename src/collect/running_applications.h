// Names the running processes that belong to installed desktop applications.
#pragma once

#include "collect/desktop_index.h"
#include "collect/process_list.h"
#include "collect/process_source.h"

// "_<pid>" to the application's display name for every process whose program (by its
// executable's file name, else its command name) matches a shown desktop entry; an entry
// without a name gives "unknown pid :: <pid>". Empty when the processes cannot be listed.
ProcessDict runningApplications(ProcessSource& source, const DesktopIndex& index);
