#pragma once

#include <functional>

namespace Zel {

/// Calls an operation of a package's entry. Without such an entry, returns an empty value.
template<typename Entry, typename Operation, typename... Arguments>
auto callOn(Entry *entry, Operation operation, const Arguments &...arguments) {
    using Result = std::invoke_result_t<Operation, Entry *, const Arguments &...>;
    return entry ? std::invoke(operation, entry, arguments...) : Result();
}

} // namespace Zel
