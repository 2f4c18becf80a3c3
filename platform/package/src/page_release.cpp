#include "page_release.h"

#include <cstddef>
#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace Tano {

void releasePages(char *begin, char *end) {
    static const auto page = std::uintptr_t(sysconf(_SC_PAGESIZE));
    char *first = begin + (page - std::uintptr_t(begin) % page) % page;
    char *last = end - std::uintptr_t(end) % page;
    if (first < last)
        static_cast<void>(madvise(first, std::size_t(last - first), MADV_DONTNEED));
}

} // namespace Tano
