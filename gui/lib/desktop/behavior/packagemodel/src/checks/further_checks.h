#pragma once

#include "package_checks.h"
#include "script_checks.h"

#include <packagemodel/package_issues.h>

#include <tano/kept_content.h>

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
    CheckedPackage(const PackageInfoModel &checked, const Tano::PackageInfo &checkedRecord,
                   const IssueOptions &checkedWith);

    const PackageInfoModel &package; // possibly without the behaviors of the record
    const Tano::PackageInfo &record;
    const IssueOptions &options;
    QSet<QString> languages; // the codes of those that the package lists
    std::vector<Tano::UnknownNode> unknownNodes;
    BehaviorScripts scripts;
};

/// The names that the format knows where an unknown node is.
QStringList namesBeside(const Tano::UnknownNode &node);

/// The beginning of a comment that holds both sides of a merge.
constexpr const char *conflictMark = "zel-package: conflict";
/// Such comments.
std::vector<Tano::KeptComment> conflicts(const Tano::PackageInfo &record);

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
