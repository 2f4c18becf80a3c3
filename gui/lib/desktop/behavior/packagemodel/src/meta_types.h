#pragma once

namespace Zel {

/// Registers the types in notifications with Qt's meta-type system under the names used in their
/// declarations, which string-based and queued connections look up.
void registerMetaTypes();

} // namespace Zel
