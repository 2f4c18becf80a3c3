#pragma once

namespace Tano {

/// Returns the whole pages between two addresses of a block of the heap to the system. Their bytes
/// are lost; the block stays allocated.
void releasePages(char *begin, char *end);

} // namespace Tano
