// Fuzzes the /proc/cpuinfo readers: the model name, the architecture and the hypervisor flag.
#include "collect/linux/cpu_architecture_parser.h"
#include "collect/linux/cpuinfo_parser.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = FuzzInput::text(data, size);
    (void)parseFirstModelName(text);
    (void)parseCpuArchitecture(text);
    (void)hasHypervisorFlag(text);
    return 0;
}
