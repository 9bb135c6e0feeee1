// Fuzzes the /proc/<pid>/stat reader, whose command names may hold spaces and parentheses.
#include "collect/linux/process_stat_parser.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    (void)parseProcessStat(FuzzInput::text(data, size));
    return 0;
}
