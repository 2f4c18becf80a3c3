#include "change_list.h"

#include <packagemodel/change_words.h>
#include <packagemodel/package_difference.h>
#include <packagemodel/package_info_model.h>

namespace Editor {

using Zel::PackageInfoModel;

ChangeList changesOf(const PackageInfoModel *package, const Zel::PackageModel::Edits &edits) {
    PackageInfoModel before(*package);
    PackageInfoModel after(*package);
    const auto applied = Zel::PackageModel::apply(&after, edits);
    ChangeList changes{{}, applied.error};
    if (changes.error.isEmpty())
        Zel::PackageModel::visitChanges(
            &before, Zel::PackageModel::edits(package, &after),
            [&](const QString &line) { changes.lines.append(line.simplified()); });
    return changes;
}

} // namespace Editor
