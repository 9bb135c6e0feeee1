// Fuzzes the /proc/stat readers: per-processor ticks and the boot time.
#include "collect/linux/stat_parser.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = FuzzInput::text(data, size);
    (void)parseProcessorTicks(text);
    (void)parseBootTime(text);
    return 0;
}
