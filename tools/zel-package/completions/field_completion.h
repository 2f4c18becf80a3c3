#pragma once

#include <QStringList>

namespace ZelPackage {

enum class FieldUse { Get, Set };

/// The paths of the fields that the manifest in `file` has, each up to the next "[" or "." behind
/// what is typed; those of a new package where it cannot be read. To set a field, its path ends
/// with
/// "=", and "[+]" adds to a list.
QStringList fieldCompletions(const QString &file, const QString &typed, FieldUse use);

} // namespace ZelPackage
