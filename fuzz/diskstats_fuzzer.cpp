// Fuzzes the /proc/diskstats reader.
#include "collect/linux/diskstats_parser.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    (void)parseDiskstats(FuzzInput::text(data, size));
    return 0;
}
