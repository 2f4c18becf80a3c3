#pragma once

namespace Tano {

/// Copies owner, group, extended attributes (including the access control list) and mode from the
/// open file `from` to `to`, which only its owner can read. Returns false if one of them cannot be
/// set; `to` is then readable by nobody who cannot read `from`.
[[nodiscard]] bool copyAttributes(int from, int to);

} // namespace Tano
