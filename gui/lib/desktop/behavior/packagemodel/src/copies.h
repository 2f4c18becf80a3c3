#pragma once

namespace Zel {

/// Copies a value that a receiver of a notification may change or delete: callers pass references
/// into our lists, and receivers edit lists that we iterate over.
template<typename Value>
Value copyOf(const Value &value) {
    return value;
}

} // namespace Zel
