#pragma once

#include <packagemodel/package_edits.h>

#include <functional>

namespace Editor {

// The fields of a package as the texts that a form shows and takes, and edits of its lists.

/// The text of a field; empty where there is no such field.
QString fieldText(const Zel::PackageInfoModel *package, const Tano::FieldPath &path);
/// The edit that sets a field to a typed text, which may be that of a version.
Zel::PackageModel::Edit setText(const Tano::FieldPath &path, const QString &text);
/// The edit that types a text into a field: setText(), or the insertion of a text that follows the
/// last one of a list.
Zel::PackageModel::Edit typedEdit(const Zel::PackageInfoModel *package, const Tano::FieldPath &path,
                                  const QString &text);
/// Why a text cannot be typed into a field, for people; empty if it can.
QString textRefusal(const Zel::PackageInfoModel *package, const Tano::FieldPath &path,
                    const QString &text);
/// The edit that adds an entry at the end of a list.
Zel::PackageModel::Edit appended(const Tano::FieldPath &list,
                                 const Zel::PackageModel::FieldValue &entry);
/// The edit that removes the entry at an index of a list.
Zel::PackageModel::Edit removed(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                                int index);

/// A name that no entry has yet: `stem`, or the stem with a number.
template<typename IsTaken>
QString freeName(const QString &stem, IsTaken isTaken) {
    QString name = stem;
    for (int i = 2; isTaken(name); ++i)
        name = stem + QLatin1Char('-') + QString::number(i);
    return name;
}

// Parts of a path by which a page finds the widget of a field; empty where the path has no such
// part.

QString fieldName(const Tano::FieldPath &path, std::size_t step = 0);
/// The first selector of a step.
QString fieldKey(const Tano::FieldPath &path, std::size_t step = 0);
/// The last selector of the last step as an index; -1 if it is none.
int itemIndex(const Tano::FieldPath &path);

/// The index of the entry, such as a behavior, that the first step of a path selects by its key and
/// by the number among entries with that key; -1 for none.
template<typename Entries, typename Key>
int entryIndex(const Entries &entries, Key key, const Tano::FieldPath &path) {
    const auto &selectors = path.steps().front().selectors;
    int others = selectors.size() > 1 ? selectors[1].toIndex().value_or(0) : 0;
    for (int i = 0; !selectors.empty() && i < int(entries.size()); ++i) {
        if (std::invoke(key, entries.at(i)) == fieldKey(path) && others-- == 0)
            return i;
    }
    return -1;
}

} // namespace Editor
