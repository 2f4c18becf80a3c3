#pragma once

#include <packagemodel/package_edits.h>

namespace Editor {

// The fields of a package as the texts that a form shows and takes, and edits of its lists.

/// The text of a field; empty where there is no such field.
QString fieldText(const Zel::PackageInfoModel *package, const Tano::FieldPath &path);
/// The edit that sets a field to a typed text, which may be that of a version.
Zel::PackageModel::Edit setText(const Tano::FieldPath &path, const QString &text);
/// Why a field cannot be set to a text, for people; empty if it can.
QString textRefusal(const Zel::PackageInfoModel *package, const Tano::FieldPath &path,
                    const QString &text);
/// The edit that adds an entry at the end of a list.
Zel::PackageModel::Edit appended(const Tano::FieldPath &list,
                                 const Zel::PackageModel::FieldValue &entry);
/// The edit that removes the entry at an index of a list.
Zel::PackageModel::Edit removed(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                                int index);

// Parts of a path by which a page finds the widget of a field; empty where the path has no such
// part.

QString fieldName(const Tano::FieldPath &path, std::size_t step = 0);
/// The first selector of a step.
QString fieldKey(const Tano::FieldPath &path, std::size_t step = 0);

} // namespace Editor
