#pragma once

#include "package_checks.h"
#include "script_checks.h"

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
    QSet<QString> languages; // the codes of those that the package lists
    BehaviorScripts scripts;
};

/// A check beyond those of the messages: of the package without its behaviors, and of one behavior,
/// which need not be in the package. Each appends what it finds; a null one finds nothing.
struct FurtherCheck {
    void (*ofPackage)(const CheckedPackage &checked, Findings &findings);
    void (*ofBehavior)(const CheckedPackage &checked, const BehaviorPlace &place,
                       Findings &findings);
};

/// In the order of their rules.
const std::vector<FurtherCheck> &furtherChecks();

} // namespace Zel::PackageModel
