#pragma once

#include "package_checks.h"
#include "script_checks.h"

#include <packagemodel/package_issues.h>

#include <tano/kept_content.h>

#include <QSet>

#include <memory>
#include <vector>

namespace Zel::PackageModel {

/// A behavior and its index among those with the same path.
struct BehaviorPlace {
    const BehaviorInfoModel *behavior;
    int occurrence;

    Tano::FieldPath path() const;
};

/// The input of the further checks.
struct CheckedPackage {
    CheckedPackage(const PackageInfoModel &checked, const Tano::PackageInfo &checkedRecord,
                   const IssueOptions &checkedWith);

    const PackageInfoModel &package; // may lack the behaviors of the record
    const Tano::PackageInfo &record;
    const IssueOptions &options;
    QSet<QString> languages; // the codes of the package's languages
    BehaviorScripts scripts;

    using UnknownNodes = std::vector<Tano::UnknownNode>;
    /// The unknown nodes of the record, which take as long as a save.
    const UnknownNodes &unknownNodes() const;
    mutable std::shared_ptr<const UnknownNodes> knownNodes; // of an earlier check, if still true
};

/// The known names at the position of an unknown node.
QStringList namesBeside(const Tano::UnknownNode &node);

/// The start of a comment that holds both sides of a merge conflict.
constexpr const char *conflictMark = "zel-package: conflict";
/// The comments that hold merge conflicts.
std::vector<Tano::KeptComment> conflicts(const Tano::PackageInfo &record);

/// A check without a message in the validator: of the package without its behaviors, and of one
/// behavior, which need not belong to the package. Each appends its findings; both may be null.
/// `ofBehavior` may read the behavior and, of the package, only its two lists of languages, unless
/// commonInput() in issue_tracker.cpp lists what else it reads.
struct FurtherCheck {
    void (*ofPackage)(const CheckedPackage &checked, Findings &findings);
    void (*ofBehavior)(const CheckedPackage &checked, const BehaviorPlace &place,
                       Findings &findings);
};

/// In rule order.
const std::vector<FurtherCheck> &furtherChecks();

} // namespace Zel::PackageModel
