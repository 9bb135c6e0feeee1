// The Mac keeps no such pages mapped for long: its memory manager reclaims them itself.
#include "app/working_set.h"

namespace WorkingSet {

std::size_t trim()
{
    return 0;
}

} // namespace WorkingSet
