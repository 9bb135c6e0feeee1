// Drops the unchanging pages of every loaded object, found through the dynamic loader.
#include "app/working_set.h"

#include <elf.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <vector>

namespace WorkingSet {

namespace {

// Whether the object's dynamic section asks for its code to be relocated in place.
bool hasTextRelocations(const dl_phdr_info& info)
{
    for (ElfW(Half) i = 0; i < info.dlpi_phnum; ++i) {
        const ElfW(Phdr)& header = info.dlpi_phdr[i];
        if (header.p_type != PT_DYNAMIC)
            continue;
        for (const auto* entry = reinterpret_cast<const ElfW(Dyn)*>(info.dlpi_addr + header.p_vaddr);
             entry->d_tag != DT_NULL; ++entry) {
            if (entry->d_tag == DT_TEXTREL || (entry->d_tag == DT_FLAGS && (entry->d_un.d_val & DF_TEXTREL) != 0))
                return true;
        }
    }
    return false;
}

int trimObject(dl_phdr_info* info, std::size_t, void* data)
{
    auto& advised = *static_cast<std::size_t*>(data);
    // The main program comes unnamed and libraries by path; the kernel's own objects (the vDSO)
    // are not files to read back from.
    if (info->dlpi_name && info->dlpi_name[0] != '\0' && std::strchr(info->dlpi_name, '/') == nullptr)
        return 0;
    std::vector<Segment> segments;
    for (ElfW(Half) i = 0; i < info->dlpi_phnum; ++i) {
        const ElfW(Phdr)& header = info->dlpi_phdr[i];
        // The relocated read-only data is written once by the loader: it counts as written.
        if (header.p_type == PT_LOAD || header.p_type == PT_GNU_RELRO)
            segments.push_back({info->dlpi_addr + header.p_vaddr, header.p_memsz,
                                header.p_type == PT_GNU_RELRO || (header.p_flags & PF_W) != 0});
    }
    const auto pageSize = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    // The loader holds its list while this runs, so no object goes away under the advice.
    for (const Range& range : unchangingPages(segments, hasTextRelocations(*info), pageSize)) {
        auto* start = reinterpret_cast<void*>(range.start);
        const std::size_t length = range.end - range.start;
        if (::madvise(start, length, MADV_DONTNEED) == 0)
            advised += length;
    }
    return 0;
}

} // namespace

std::size_t trim()
{
    std::size_t advised = 0;
    ::dl_iterate_phdr(&trimObject, &advised);
    return advised;
}

} // namespace WorkingSet
