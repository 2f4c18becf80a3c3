#pragma once

#include <packagemodel/package_edits.h>

namespace Zel::PackageModel {

/// The edits that turn `from` into `to`, for apply(). None for equal packages or a null one.
///
/// Afterwards `from` has the fields of `to` in the same order, except for the order of languages
/// within names, descriptions and other texts, and a permission that a behavior of `to` repeats is
/// there once. Comments and unknown content are not compared: entries that both packages have keep
/// theirs, inserted ones bring them along.
///
/// There are few edits. As few entries of a list move as possible. An entry with another path,
/// topic name or service name but the same content is renamed by one Set; one that was also changed
/// is removed and inserted. An item of a list of texts or requirements that another one replaces is
/// set in its place. Description languages and topics that change along with the supported
/// languages get edits only where `to` differs.
///
/// apply() accepts the edits unless a text of `to` is one that a manifest cannot hold. The time
/// grows as n log n with the number of entries.
///
/// ```
/// const Edits changes = edits(&opened, &edited);
/// const Applied applied = apply(&opened, changes);
/// apply(&opened, applied.inverse); // as before
/// ```
PACKAGEMODEL_EXPORT Edits edits(const PackageInfoModel *from, const PackageInfoModel *to);

} // namespace Zel::PackageModel
