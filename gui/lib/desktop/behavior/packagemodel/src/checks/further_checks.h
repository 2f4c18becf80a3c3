#pragma once

#include "package_checks.h"

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
    CheckedPackage(const PackageInfoModel &checked, const IssueOptions &checkedWith);

    const PackageInfoModel &package;
    const IssueOptions &options;
    std::vector<BehaviorPlace> behaviors;
    QSet<QString> languages; // the codes of those that the package lists
    std::vector<Tano::UnknownNode> unknownNodes;
};

/// The names that the format knows where an unknown node is.
QStringList namesBeside(const Tano::UnknownNode &node);

/// The beginning of a comment that holds both sides of a merge.
constexpr const char *conflictMark = "zel-package: conflict";
/// Such comments.
std::vector<Tano::KeptComment> conflicts(const Tano::PackageInfo &record);

/// The checks beyond those of the messages, in the order of their rules; each appends what it
/// finds.
using FurtherCheck = void (*)(const CheckedPackage &checked, Findings &findings);
const std::vector<FurtherCheck> &furtherChecks();

} // namespace Zel::PackageModel
