#pragma once

namespace Tano {

/// Gives the open file `to`, which only its owner can read, the owner, group, extended attributes
/// (the access control list is one) and mode of `from`. Returns false where one of them cannot be
/// set; then no one can read `to` who cannot read `from`.
[[nodiscard]] bool copyAttributes(int from, int to);

} // namespace Tano
