#pragma once

#include "console.h"
#include "field_path.h"

#include <QUndoCommand>

#include <memory>

namespace Zel {
class PackageInfoModel;
}

namespace ZelPackage {

/// The command that makes an assignment to a field of the package; where there is none, tells what
/// is wrong with the assignment.
///
/// An empty value clears a text and removes an item of a list; the key "+" appends one.
[[nodiscard]] std::unique_ptr<QUndoCommand>
commandFor(const Assignment &assignment, Zel::PackageInfoModel &package, Console &console);

} // namespace ZelPackage
