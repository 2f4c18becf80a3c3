#pragma once

namespace Zel {

/// Makes the types in the notifications known to Qt's meta-type system by the names under which
/// the notifications are declared, which is how string-based and queued connections look for them.
void registerMetaTypes();

} // namespace Zel
