// Fuzzes the /proc/loadavg and /proc/uptime readers.
#include "collect/linux/loadavg_parser.h"
#include "collect/linux/process_stat_parser.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = FuzzInput::text(data, size);
    (void)parseLoadAverage(text);
    (void)parseUptime(text);
    return 0;
}
