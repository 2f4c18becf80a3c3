#pragma once

#include "package_checks.h"

#include <packagemodel/package_issues.h>

#include <QSet>

namespace Zel::PackageModel {

/// A behavior, with its number among those that have the same path.
struct BehaviorPlace {
    const BehaviorInfoModel *behavior;
    int occurrence;

    Tano::FieldPath path() const;
};

/// What the further checks look at.
struct CheckedPackage {
    CheckedPackage(const PackageInfoModel &checked, const IssueOptions &checkedWith);

    const PackageInfoModel &package;
    const IssueOptions &options;
    std::vector<BehaviorPlace> behaviors;
    QSet<QString> languages; // the codes of those that the package lists
};

/// The checks beyond those of the messages, in the order of their rules; each appends what it
/// finds.
using FurtherCheck = void (*)(const CheckedPackage &checked, Findings &findings);
const std::vector<FurtherCheck> &furtherChecks();

} // namespace Zel::PackageModel
