#pragma once

namespace Zel {

/// A copy of what a change or a receiver of a notification may alter or remove meanwhile: callers
/// pass what lies in our lists, and receivers edit what we go through.
template<typename Value>
Value copyOf(const Value &value) {
    return value;
}

} // namespace Zel
