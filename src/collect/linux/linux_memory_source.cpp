// Reads the memory counters from kept-open files.
#include "collect/linux/linux_memory_source.h"

#include "collect/linux/memory_parsers.h"
#include "collect/linux/rejected_text.h"
#include "collect/linux/sysfs_attribute.h"
#include "collect/linux/text_fields.h"

#include <unistd.h>

LinuxMemorySource::LinuxMemorySource(const SysRoot& root)
    : root_(root)
    , meminfo_(root.join("proc/meminfo"))
    , vmstat_(root.join("proc/vmstat"))
    , swaps_(root.join("proc/swaps"))
    , zswapSwitch_(root.join("sys/module/zswap/parameters/enabled"))
{}

std::optional<NamedCounters> LinuxMemorySource::memoryInfo()
{
    const std::lock_guard guard(lock_);
    const auto text = meminfo_.read();
    return text ? acceptParsed(meminfo_.path(), parseMeminfo(*text)) : std::nullopt;
}

std::optional<NamedCounters> LinuxMemorySource::vmStatistics()
{
    const std::lock_guard guard(lock_);
    const auto text = vmstat_.read();
    return text ? acceptParsed(vmstat_.path(), parseVmstat(*text)) : std::nullopt;
}

std::optional<MemoryCounters> LinuxMemorySource::memoryCounters(bool withPaging)
{
    const std::lock_guard guard(lock_);
    const auto meminfo = meminfo_.read();
    auto counters = meminfo ? acceptParsed(meminfo_.path(), scanMeminfo(*meminfo, {})) : std::nullopt;
    if (!counters || !withPaging)
        return counters;
    // Without the paging figures the sample still stands; they stay unknown.
    if (const auto vmstat = vmstat_.read())
        if (auto paged = acceptParsed(vmstat_.path(), scanVmstat(*vmstat, *counters)))
            counters = std::move(paged);
    return counters;
}

std::optional<std::vector<SwapArea>> LinuxMemorySource::swapAreas()
{
    const std::lock_guard guard(lock_);
    const auto text = swaps_.read();
    return text ? acceptParsed(swaps_.path(), parseSwaps(*text)) : std::nullopt;
}

std::size_t LinuxMemorySource::pageSize()
{
    const long size = ::sysconf(_SC_PAGESIZE);
    return size > 0 ? static_cast<std::size_t>(size) : 4096;
}

std::optional<bool> LinuxMemorySource::zswapEnabled()
{
    const std::lock_guard guard(lock_);
    const auto text = zswapSwitch_.read();
    if (!text)
        return std::nullopt;
    const std::string_view value = trimSpace(*text);
    if (value.empty())
        return std::nullopt;
    return value == "Y" || value == "1";
}

std::optional<std::uint64_t> LinuxMemorySource::hibernationImageSize()
{
    // "disk" among the sleep states means the kernel can hibernate; the mode list reads
    // "[disabled]" when it was forbidden (a locked-down kernel, for one).
    const auto states = readAttributeText(root_.join("sys/power/state"));
    if (!states || states->find("disk") == std::string::npos)
        return std::nullopt;
    if (readAttributeText(root_.join("sys/power/disk")) == "[disabled]")
        return std::nullopt;
    return readAttributeUnsigned(root_.join("sys/power/image_size"));
}
