#pragma once

namespace Tano {

enum class Lock { Taken, Busy, Unsupported };

/// Locks a file that is open for writing against every other opening of it, until it is closed.
/// Waits up to two seconds for others.
[[nodiscard]] Lock waitForLock(int file);

/// Locks a file that is open for reading against waitForLock(), unless another opening has it.
[[nodiscard]] Lock tryReadLock(int file);

} // namespace Tano
