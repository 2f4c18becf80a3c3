#include "change_list.h"

#include <packagemodel/change_words.h>
#include <packagemodel/package_difference.h>
#include <packagemodel/package_info_model.h>

namespace Editor {

using Zel::PackageInfoModel;

ChangeList changesBetween(const PackageInfoModel &from, const PackageInfoModel &to) {
    ChangeList changes;
    PackageInfoModel scratch(from); // lacks empty texts
    const auto edits = Zel::PackageModel::edits(&scratch, &to);
    for (const auto &edit : edits)
        changes.paths.append(edit.path);
    Zel::PackageModel::visitChanges(
        &scratch, edits, [&](const QString &line) { changes.lines.append(line.simplified()); });
    return changes;
}

ChangeList changesOf(PackageInfoModel *package, const Zel::PackageModel::Edits &edits) {
    package->syncRecord();
    PackageInfoModel after(package->packageInfo()); // an assigned copy would lack empty texts
    const auto applied = Zel::PackageModel::apply(&after, edits);
    ChangeList changes;
    if (applied.error.isEmpty())
        changes = changesBetween(*package, after);
    changes.error = applied.error;
    return changes;
}

} // namespace Editor
