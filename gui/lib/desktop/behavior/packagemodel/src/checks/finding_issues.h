#pragma once

#include "package_checks.h"

#include <packagemodel/package_issues.h>

namespace Zel::PackageModel {

/// Whether the message of a finding names its language, so that the finding becomes an issue.
bool isNamed(const Finding &finding);

/// The issue of a finding without its text, for filters.
Issue bareIssueOf(const Finding &finding);

/// Whether an issue is at one of the paths, or there are no paths.
inline bool isAmong(const QSet<QString> &paths, const Issue &issue) {
    return paths.isEmpty() || paths.contains(issue.path);
}

/// Adds what a bare issue lacks, except for the fixes.
void complete(Issue &issue, const Finding &finding);

} // namespace Zel::PackageModel
