// Fuzzes the mount table reader with a tree whose /proc/self/mountinfo is the input.
#include "collect/linux/linux_mount_source.h"
#include "collect/linux/sys_root.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput::writeFile("proc/self/mountinfo", FuzzInput::text(data, size));
    LinuxMountSource source{SysRoot(FuzzInput::scratchFolder())};
    (void)source.mounts();
    return 0;
}
