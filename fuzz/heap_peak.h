#pragma once

#include <cstddef>

// The heap as operator new takes it, in the whole program that this is linked with.

void resetHeapPeak();
/// The most bytes taken at a time since the reset, beyond those taken at the reset.
std::size_t heapPeak();
