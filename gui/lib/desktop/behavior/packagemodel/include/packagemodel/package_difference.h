#pragma once

#include <packagemodel/package_edits.h>

namespace Zel::PackageModel {

/// The edits that turn `from` into `to`, for apply(). Empty if the packages are equal or one is
/// null.
///
/// Afterwards `from` has the fields of `to` in the same order, with two exceptions: the order of
/// languages within names, descriptions and other texts, and repeated permissions of a behavior,
/// which appear once. Comments and unknown content are not compared: entries in both packages keep
/// theirs, inserted entries bring them along.
///
/// The edits are few. As few entries as possible are moved. An entry with another path, topic name
/// or service name but the same content is renamed by one Set; one that was also changed is removed
/// and inserted. A replaced item of a list of texts or requirements is set in place. Edits of
/// supported languages also change description languages and topics, which get edits only if `to`
/// differs.
///
/// apply() accepts the edits unless `to` has a text that a manifest cannot represent. The time is
/// n log n in the number of entries.
///
/// ```cpp
/// const Edits changes = edits(&opened, &edited);
/// const Applied applied = apply(&opened, changes);
/// apply(&opened, applied.inverse); // as before
/// ```
PACKAGEMODEL_EXPORT Edits edits(const PackageInfoModel *from, const PackageInfoModel *to);

} // namespace Zel::PackageModel
