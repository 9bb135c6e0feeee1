// Fuzzes the /proc/net/dev reader.
#include "collect/linux/net_dev_parser.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    (void)parseNetDev(FuzzInput::text(data, size));
    return 0;
}
