#pragma once

#include "assignment.h"

#include <packagemodel/package_edits.h>

namespace ZelPackage {

/// The effect of an assignment on a package.
struct AssignedEdit {
    /// nullopt if the package already has the assigned value.
    std::optional<Zel::PackageModel::Edit> edit = {};
    QString error = {};  ///< the reason if the assignment is impossible, else empty
    QString remark = {}; ///< a note to report; may be empty
};

/// Converts an assignment to an edit. Adding an existing item or removing a missing one has no
/// effect, so that commands can be repeated.
AssignedEdit assignedEdit(const Assignment &assignment, const Zel::PackageInfoModel &package);

} // namespace ZelPackage
