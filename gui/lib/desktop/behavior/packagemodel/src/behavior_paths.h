#pragma once

#include <packagemodel/package_info_model.h>

#include <tano/field_path.h>

#include <QHash>

namespace Zel {

/// Calls `visit` for each behavior with its field path.
template<typename Visit>
void visitBehaviors(const PackageInfoModel &package, Visit visit) {
    QHash<QString, int> counts;
    const auto behaviors = package.behaviors();
    for (const BehaviorInfoModel *behavior : behaviors) {
        const QString path = behavior->path();
        visit(Tano::FieldPath().field("behaviors").entry(toUtf8(path), counts[path]++), *behavior);
    }
}

} // namespace Zel
