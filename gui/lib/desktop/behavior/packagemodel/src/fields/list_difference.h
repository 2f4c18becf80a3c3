#pragma once

#include "sequence_match.h"

#include <packagemodel/package_edits.h>

#include <QJsonObject>

#include <functional>

namespace Zel::PackageModel {

/// A list before and after, for the edits from one to the other.
struct ListDifference {
    Tano::FieldPath path; ///< of the list
    SequenceMatch match;
    QStringList oldNames; ///< of the items in paths; empty if paths use indexes
    QStringList newNames;
    std::function<FieldValue(int newIndex)> newValue;
    /// Appends what differs within an item that both have, which has that path then.
    std::function<void(int oldIndex, int newIndex, const Tano::FieldPath &item, Edits &edits)>
        compareItem = {};
    const char *nameField = nullptr; ///< the field of an item that names it, if it can be renamed
};

/// Removes and renames items from the last to the first, then moves them, then inserts and changes
/// items from the first to the last.
void appendEdits(const ListDifference &list, Edits &edits);

/// The edits of a list of texts that are known by their index.
void appendTextListEdits(const QStringList &oldTexts, const QStringList &newTexts,
                         const Tano::FieldPath &path, Edits &edits);

/// The same of a list to which no text is added twice and from which equal texts are removed
/// together. A text that the new list repeats counts once.
void appendTextSetEdits(const QStringList &oldTexts, const QStringList &newTexts,
                        const Tano::FieldPath &path, Edits &edits);

/// The edits of texts that may be absent, by the selectors of their paths.
void appendTextEdits(const QJsonObject &oldTexts, const QJsonObject &newTexts,
                     const Tano::FieldPath &path, Edits &edits);

/// A text that only equal items share; never empty.
QString contentOf(const QJsonObject &item);

/// The entries of a kind, as far as their matching needs them.
struct EntrySummaries {
    QStringList keys;
    std::function<QJsonObject(int index)> fields; ///< apart from the key
};

/// Pairs entries with the same key; where several have it, first those with the same content. Then
/// pairs others that have the same content, if the old one may take the key of the new one.
SequenceMatch matchEntries(const EntrySummaries &oldEntries, const EntrySummaries &newEntries);

} // namespace Zel::PackageModel
