// Counts what the whole program takes from the heap.
#pragma once

#include <cstdint>

namespace Tessoro {

// How often memory was allocated so far, by any thread.
std::uint64_t HeapAllocations();

} // namespace Tessoro
