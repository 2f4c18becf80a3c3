#pragma once

#include "assignment.h"

#include <packagemodel/package_edits.h>

namespace ZelPackage {

/// What an assignment comes to in a package.
struct AssignedEdit {
    /// Nothing if the package is already as the assignment wants it.
    std::optional<Zel::PackageModel::Edit> edit = {};
    QString error = {};  ///< why it cannot be done; empty otherwise
    QString remark = {}; ///< to be reported; empty for none
};

/// The edit of a package that an assignment means. Adding what the package has and removing what it
/// lacks changes nothing, so that a command can be repeated.
AssignedEdit assignedEdit(const Assignment &assignment, const Zel::PackageInfoModel &package);

} // namespace ZelPackage
