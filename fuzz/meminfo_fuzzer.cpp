// Fuzzes the memory readers: /proc/meminfo, /proc/vmstat and /proc/swaps.
#include "collect/linux/memory_parsers.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = FuzzInput::text(data, size);
    (void)parseMeminfo(text);
    (void)parseVmstat(text);
    (void)scanMeminfo(text, MemoryCounters{});
    (void)scanVmstat(text, MemoryCounters{});
    (void)parseSwaps(text);
    return 0;
}
