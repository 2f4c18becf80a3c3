#include "heap_peak.h"

#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::size_t taken = 0;
std::size_t atReset = 0;
std::size_t peak = 0;

} // namespace

void resetHeapPeak() {
    atReset = peak = taken;
}

std::size_t heapPeak() {
    return peak - atReset;
}

void *operator new(std::size_t size) {
    void *block = std::malloc(std::max(size, std::size_t(1)));
    if (!block)
        std::abort();
    taken += malloc_usable_size(block);
    peak = std::max(peak, taken);
    return block;
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    return operator new(size);
}

void operator delete(void *block) noexcept {
    taken -= std::min(taken, block ? malloc_usable_size(block) : 0);
    std::free(block);
}

void operator delete(void *block, const std::nothrow_t &) noexcept {
    operator delete(block);
}

void operator delete(void *block, std::size_t) noexcept {
    operator delete(block);
}
