#pragma once

#include "sequence_match.h"

#include <packagemodel/package_edits.h>

#include <QJsonObject>

#include <functional>

namespace Zel::PackageModel {

/// A list before and after a change.
struct ListDifference {
    Tano::FieldPath path; ///< the path of the list
    SequenceMatch match;
    QStringList oldNames; ///< the items' names in paths; empty if paths use indexes
    QStringList newNames;
    std::function<FieldValue(int newIndex)> newValue;
    /// Appends the differences within an item that both lists have, at the given path.
    std::function<void(int oldIndex, int newIndex, const Tano::FieldPath &item, Edits &edits)>
        compareItem = {};
    const char *nameField =
        nullptr; ///< the field that renames an item; null if it cannot be renamed
};

/// Appends edits that remove and rename items from last to first, move them, then insert and change
/// items from first to last.
void appendEdits(const ListDifference &list, Edits &edits);

/// Appends the edits of a list of texts selected by index.
void appendTextListEdits(const QStringList &oldTexts, const QStringList &newTexts,
                         const Tano::FieldPath &path, Edits &edits);

/// Appends the edits of a list that accepts no duplicates and removes equal texts together. A text
/// repeated in the new list counts once.
void appendTextSetEdits(const QStringList &oldTexts, const QStringList &newTexts,
                        const Tano::FieldPath &path, Edits &edits);

/// Appends the edits of optional texts, keyed by the selectors of their paths.
void appendTextEdits(const QJsonObject &oldTexts, const QJsonObject &newTexts,
                     const Tano::FieldPath &path, Edits &edits);

/// A text that only equal items share; never empty.
QString contentOf(const QJsonObject &item);

/// The entries of a kind, as needed for matching.
struct EntrySummaries {
    QStringList keys;
    std::function<QJsonObject(int index)> fields; ///< without the key
};

/// Pairs entries with the same key, preferring the same content where several share a key. Then
/// pairs the remaining entries with the same content if the old one may take the new key.
SequenceMatch matchEntries(const EntrySummaries &oldEntries, const EntrySummaries &newEntries);

} // namespace Zel::PackageModel
