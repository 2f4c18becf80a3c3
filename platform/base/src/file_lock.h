#pragma once

namespace Tano {

enum class Lock { Taken, Busy, Unsupported };

/// Locks a file open for writing against all other openings until it is closed. Waits up to two
/// seconds for a conflicting lock.
[[nodiscard]] Lock waitForLock(int file);

/// Takes a read lock, which conflicts with waitForLock(), without waiting.
[[nodiscard]] Lock tryReadLock(int file);

} // namespace Tano
