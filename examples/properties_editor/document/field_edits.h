#pragma once

#include <packagemodel/package_edits.h>

#include <functional>

namespace Editor {

// Converts fields of a package to and from the texts in forms, and edits lists.

/// The text of a field, empty if it does not exist.
QString fieldText(const Zel::PackageInfoModel *package, const Tano::FieldPath &path);
/// The edit that sets a field, possibly a version, to typed text.
Zel::PackageModel::Edit setText(const Tano::FieldPath &path, const QString &text);
/// The edit for typing a text into a field: setText() or, after the last item of a list of texts,
/// an insertion.
Zel::PackageModel::Edit typedEdit(const Zel::PackageInfoModel *package, const Tano::FieldPath &path,
                                  const QString &text);
/// The reason why a field cannot take a text, empty if it can.
QString textRefusal(const Zel::PackageInfoModel *package, const Tano::FieldPath &path,
                    const QString &text);
/// The edit that appends an entry to a list.
Zel::PackageModel::Edit appended(const Tano::FieldPath &list,
                                 const Zel::PackageModel::FieldValue &entry);
/// The edit that removes the entry at an index of a list.
Zel::PackageModel::Edit removed(const Zel::PackageInfoModel *package, const Tano::FieldPath &list,
                                int index);

/// An unused name: `stem`, or the stem with a number.
template<typename IsTaken>
QString freeName(const QString &stem, IsTaken isTaken) {
    QString name = stem;
    for (int i = 2; isTaken(name); ++i)
        name = stem + QLatin1Char('-') + QString::number(i);
    return name;
}

// Parts of a path, by which pages find the widget of a field; empty if the path lacks the part.

QString fieldName(const Tano::FieldPath &path, std::size_t step = 0);
/// The first selector of a step.
QString fieldKey(const Tano::FieldPath &path, std::size_t step = 0);
/// The last selector as an index, or -1.
int itemIndex(const Tano::FieldPath &path);

/// The index of the entry selected by the first step of a path, by key and occurrence; -1 if there
/// is none.
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
