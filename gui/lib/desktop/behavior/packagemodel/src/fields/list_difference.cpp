#include "list_difference.h"

#include "sequence_moves.h"

#include <packagemodel/text_conversion.h>

#include <QHash>
#include <QJsonDocument>
#include <QSet>
#include <QStringBuilder>

#include <utility>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

// For each name, the number of equal ones before it.
std::vector<int> occurrencesOf(const QStringList &names) {
    std::vector<int> occurrences;
    QHash<QString, int> counts;
    for (const QString &name : names)
        occurrences.push_back(counts[name]++);
    return occurrences;
}

// The same name for all items, so that occurrences are indexes.
QStringList sameNames(int count) {
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QString());
    return names;
}

// Builds the edits of one list.
class ListEdits {
public:
    ListEdits(const ListDifference &list, Edits &edits)
        : m_list(list)
        , m_isNamed(!list.oldNames.isEmpty() || !list.newNames.isEmpty())
        , m_oldNames(m_isNamed ? list.oldNames : sameNames(list.match.oldSize()))
        , m_newNames(m_isNamed ? list.newNames : sameNames(list.match.newSize()))
        , m_edits(edits) {}

    void removeAndRename();
    void move();
    void insertAndChange();

private:
    FieldPath itemPath(const QString &name, int occurrence) const {
        FieldPath path = m_list.path;
        return m_isNamed ? path.entry(toUtf8(name), occurrence) : path.index(occurrence);
    }

    const ListDifference &m_list;
    bool m_isNamed;
    QStringList m_oldNames;
    QStringList m_newNames;
    Edits &m_edits;
};

void ListEdits::removeAndRename() {
    const std::vector<int> occurrences = occurrencesOf(m_oldNames);
    for (int i = m_list.match.oldSize() - 1; i >= 0; --i) {
        const int newIndex = m_list.match.newIndex(i);
        const bool isGone = newIndex == SequenceMatch::none;
        if (!isGone && m_oldNames.at(i) == m_newNames.at(newIndex))
            continue;
        FieldPath item = itemPath(m_oldNames.at(i), occurrences[std::size_t(i)]);
        if (isGone)
            m_edits.append({Edit::Action::Remove, item});
        else
            m_edits.append({Edit::Action::Set, item.field(m_list.nameField),
                            FieldValue(m_newNames.at(newIndex))});
    }
}

void ListEdits::move() {
    for (const SequenceMove &move : movesOf(m_list.match, m_newNames))
        m_edits.append(
            {Edit::Action::Move, itemPath(m_newNames.at(move.item), move.occurrence), {}, move.to});
}

void ListEdits::insertAndChange() {
    const std::vector<int> occurrences = occurrencesOf(m_newNames);
    for (int i = 0; i < m_list.match.newSize(); ++i) {
        const int oldIndex = m_list.match.oldIndex(i);
        if (oldIndex == SequenceMatch::none)
            m_edits.append({Edit::Action::Insert, m_list.path, m_list.newValue(i), i});
        else if (m_list.compareItem)
            m_list.compareItem(oldIndex, i, itemPath(m_newNames.at(i), occurrences[std::size_t(i)]),
                               m_edits);
    }
}

// The keys shared by several entries.
QSet<QString> ambiguousKeys(const QStringList &keys) {
    QSet<QString> all;
    QSet<QString> ambiguous;
    for (const QString &key : keys) {
        if (all.contains(key))
            ambiguous.insert(key);
        all.insert(key);
    }
    return ambiguous;
}

// The texts that occur once; appends edits that remove the others, each with its duplicates.
QStringList withoutRepeated(const QStringList &texts, const FieldPath &path, Edits &edits) {
    QHash<QString, int> counts;
    for (const QString &text : texts)
        ++counts[text];
    QStringList kept;
    for (const QString &text : texts) {
        const int count = std::exchange(counts[text], 0);
        if (count == 1)
            kept.append(text);
        else if (count > 1)
            edits.append({Edit::Action::Remove, FieldPath(path).index(int(kept.size()))});
    }
    return kept;
}

// A text per entry.
template<typename MakeText>
QStringList textsOf(const EntrySummaries &entries, MakeText makeText) {
    QStringList texts;
    for (int i = 0; i < entries.keys.size(); ++i)
        texts.append(makeText(i));
    return texts;
}

} // namespace

void appendEdits(const ListDifference &list, Edits &edits) {
    ListEdits made(list, edits);
    made.removeAndRename();
    made.move();
    made.insertAndChange();
}

void appendTextListEdits(const QStringList &oldTexts, const QStringList &newTexts,
                         const FieldPath &path, Edits &edits) {
    if (oldTexts == newTexts)
        return;
    SequenceMatch match(int(oldTexts.size()), int(newTexts.size()));
    match.pairEqual(oldTexts, newTexts);
    match.pairReplaced();
    const auto compare = [&](int oldIndex, int newIndex, const FieldPath &item, Edits &all) {
        if (oldTexts.at(oldIndex) != newTexts.at(newIndex))
            all.append({Edit::Action::Set, item, FieldValue(newTexts.at(newIndex))});
    };
    const auto newText = [&](int index) { return FieldValue(newTexts.at(index)); };
    appendEdits({path, match, {}, {}, newText, compare}, edits);
}

void appendTextSetEdits(const QStringList &oldTexts, const QStringList &newTexts,
                        const FieldPath &path, Edits &edits) {
    if (oldTexts == newTexts)
        return;
    QStringList wanted = newTexts;
    wanted.removeDuplicates();
    appendTextListEdits(withoutRepeated(oldTexts, path, edits), wanted, path, edits);
}

void appendTextEdits(const QJsonObject &oldTexts, const QJsonObject &newTexts,
                     const FieldPath &path, Edits &edits) {
    const auto pathOf = [&](const QString &key) { return FieldPath(path).key(toUtf8(key)); };
    for (auto old = oldTexts.begin(); old != oldTexts.end(); ++old) {
        if (!newTexts.contains(old.key()))
            edits.append({Edit::Action::Remove, pathOf(old.key())});
    }
    for (auto wanted = newTexts.begin(); wanted != newTexts.end(); ++wanted) {
        const auto old = oldTexts.find(wanted.key());
        if (old == oldTexts.end() || old.value() != wanted.value())
            edits.append(
                {Edit::Action::Set, pathOf(wanted.key()), FieldValue(wanted.value().toString())});
    }
}

QString contentOf(const QJsonObject &item) {
    return QString::fromUtf8(QJsonDocument(item).toJson(QJsonDocument::Compact));
}

SequenceMatch matchEntries(const EntrySummaries &oldEntries, const EntrySummaries &newEntries) {
    SequenceMatch match(int(oldEntries.keys.size()), int(newEntries.keys.size()));
    const QSet<QString> ambiguous = ambiguousKeys(oldEntries.keys) | ambiguousKeys(newEntries.keys);
    const auto distinct = [&](const EntrySummaries &entries) {
        return textsOf(entries, [&](int i) {
            const QString &key = entries.keys.at(i);
            QString text = QString::number(key.size()) % u':' % key;
            if (ambiguous.contains(key))
                text += contentOf(entries.fields(i));
            return text;
        });
    };
    match.pairEqual(distinct(oldEntries), distinct(newEntries));
    match.pairEqual(oldEntries.keys, newEntries.keys);

    // An empty text means no content; such entries are left out.
    QSet<QString> taken(oldEntries.keys.begin(), oldEntries.keys.end());
    const auto renamable = textsOf(oldEntries, [&](int i) {
        return match.newIndex(i) == SequenceMatch::none ? contentOf(oldEntries.fields(i))
                                                        : QString();
    });
    const auto fitting = textsOf(newEntries, [&](int i) {
        const int before = int(taken.size());
        taken.insert(newEntries.keys.at(i));
        return taken.size() != before ? contentOf(newEntries.fields(i)) : QString();
    });
    match.pairEqual(renamable, fitting);
    return match;
}

} // namespace Zel::PackageModel
