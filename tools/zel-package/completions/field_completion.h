#pragma once

#include <QStringList>

namespace ZelPackage {

enum class FieldUse { Get, Set };

/// Completes field paths up to the next "[" or ".", from the fields of the manifest in `file` or,
/// if it cannot be read, of a new package. For setting a field, paths end with "=", and "[+]" adds
/// to a list.
QStringList fieldCompletions(const QString &file, const QString &typed, FieldUse use);

} // namespace ZelPackage
