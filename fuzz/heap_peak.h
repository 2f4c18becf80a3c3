#pragma once

#include <cstddef>

// Measures the memory allocated by operator new in the whole program.

void resetHeapPeak();
/// The peak since the reset, relative to the memory allocated at the reset.
std::size_t heapPeak();
