#include "entry_merge.h"

#include <packagemodel/package_json.h>

#include <QHash>
#include <QSet>

namespace Zel::PackageModel {
namespace {

EntrySummaries savedSummaries(const FieldRow<PackageInfoModel> &row, PackageInfoModel &side) {
    EntrySummaries entries = *row.summaries(side);
    entries.fields = [fields = entries.fields](int index) { return savedFields(fields(index)); };
    return entries;
}

class EntryMerge {
public:
    EntryMerge(const FieldRow<PackageInfoModel> &row, const Sides<PackageInfoModel *> &packages,
               FieldMerge &merge)
        : m_row(row)
        , m_path(FieldPath().field(row.name()))
        , m_merge(merge)
        , m_entries(
              mapped(packages, [&](PackageInfoModel *side) { return savedSummaries(row, *side); }))
        , m_records(mapped(packages, [&](PackageInfoModel *side) { return entries(side, m_path); }))
        , m_keysOfOurs(m_entries.ours.keys.begin(), m_entries.ours.keys.end())
        , m_matches(matchesOf(m_entries)) {}

    void run();

private:
    static ListMatches matchesOf(const Sides<EntrySummaries> &entries);

    QString baseKey(const MergedItem &item) const { return m_entries.base.keys.at(item.base); }
    QString oursKey(const MergedItem &item) const { return m_entries.ours.keys.at(item.ours); }
    QString theirsKey(const MergedItem &item) const {
        return m_entries.theirs.keys.at(item.theirs);
    }
    QString mergedKey(const MergedItem &item) const;
    Sides<QJsonValue> valuesOf(const MergedItem &item) const;

    void notePlaces(const QStringList &keys);
    void mergeEntry(const MergedItem &item, int index, const FieldPath &path);
    void mergeKey(const MergedItem &item, const FieldPath &path);
    bool canAdopt(const MergedItem &item) const;
    void mergeContent(const MergedItem &item, const FieldPath &path);
    void reportRemoved();
    void reportEqualKeys(const QStringList &keys);

    const FieldRow<PackageInfoModel> &m_row;
    FieldPath m_path;
    FieldMerge &m_merge;
    Sides<EntrySummaries> m_entries;
    Sides<QVector<FieldValue>> m_records;
    QSet<QString> m_keysOfOurs;
    ListMatches m_matches;
    std::vector<MergedItem> m_items;
};

ListMatches EntryMerge::matchesOf(const Sides<EntrySummaries> &entries) {
    ListMatches matches{
        matchEntries(entries.base, entries.ours), matchEntries(entries.base, entries.theirs),
        SequenceMatch(int(entries.ours.keys.size()), int(entries.theirs.keys.size()))};
    matchAdded(matches, entries.ours.keys, entries.theirs.keys);
    return matches;
}

// Their rename applies unless ours also renamed the entry or uses the new key for another one.
QString EntryMerge::mergedKey(const MergedItem &item) const {
    if (!item.isIn(&MergedItem::ours))
        return theirsKey(item);
    const bool isRenamed = item.isIn(&MergedItem::base) && item.isIn(&MergedItem::theirs) &&
                           oursKey(item) == baseKey(item) &&
                           !m_keysOfOurs.contains(theirsKey(item));
    return isRenamed ? theirsKey(item) : oursKey(item);
}

Sides<QJsonValue> EntryMerge::valuesOf(const MergedItem &item) const {
    const auto value = [this](const EntrySummaries &entries, int index) -> QJsonValue {
        if (index == SequenceMatch::none)
            return QJsonValue::Undefined;
        QJsonObject entry = entries.fields(index);
        entry.insert(QLatin1String(m_row.keyName()), entries.keys.at(index));
        return entry;
    };
    return {value(m_entries.base, item.base), value(m_entries.ours, item.ours),
            value(m_entries.theirs, item.theirs)};
}

std::vector<FieldPath> pathsOf(const FieldPath &list, const QStringList &keys) {
    std::vector<FieldPath> paths;
    QHash<QString, int> counts;
    for (const QString &key : keys)
        paths.push_back(FieldPath(list).entry(toUtf8(key), counts[key]++));
    return paths;
}

// Records which entries of theirs have another path in the merged package.
void EntryMerge::notePlaces(const QStringList &keys) {
    const auto inTheirs = pathsOf(m_path, m_entries.theirs.keys);
    const auto merged = pathsOf(m_path, keys);
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const int theirs = m_items[i].theirs;
        if (theirs != SequenceMatch::none && inTheirs[std::size_t(theirs)] != merged[i])
            m_merge.places[inTheirs[std::size_t(theirs)]] = merged[i];
    }
}

void EntryMerge::run() {
    m_items = mergedItems(m_matches, [&](const MergedItem &item) {
        return oursKey(item) != baseKey(item) ||
               m_entries.ours.fields(item.ours) != m_entries.base.fields(item.base);
    });
    QStringList keys;
    for (const MergedItem &item : m_items)
        keys += mergedKey(item);
    notePlaces(keys);
    const auto newRecord = [&](int index) {
        return m_records.theirs.at(m_items[std::size_t(index)].theirs);
    };
    const auto mergeOne = [&](int, int index, const FieldPath &path, Edits &) {
        mergeEntry(m_items[std::size_t(index)], index, path);
    };
    appendEdits({m_path, matchOfOurs(m_items, int(m_records.ours.size())), m_entries.ours.keys,
                 keys, newRecord, mergeOne, m_row.keyName()},
                m_merge.edits);
    reportRemoved();
    reportEqualKeys(keys);
}

// Merges an entry that ours still has.
void EntryMerge::mergeEntry(const MergedItem &item, int index, const FieldPath &path) {
    const bool isOld = item.isIn(&MergedItem::base);
    if (!item.isIn(&MergedItem::theirs)) {
        if (isOld)
            m_merge.addConflict(path, valuesOf(item));
        return;
    }
    const FieldValue &theirs = m_records.theirs.at(item.theirs);
    if (theirs == m_records.ours.at(item.ours) || (isOld && theirs == m_records.base.at(item.base)))
        return;
    mergeKey(item, path);
    if (canAdopt(item))
        m_merge.adopted.push_back({index, theirs});
    else
        mergeContent(item, path);
}

void EntryMerge::mergeKey(const MergedItem &item, const FieldPath &path) {
    const QString theirs = theirsKey(item);
    if (item.isIn(&MergedItem::base) && theirs != baseKey(item) && theirs != mergedKey(item))
        m_merge.addConflict(FieldPath(path).field(m_row.keyName()),
                            {baseKey(item), oursKey(item), theirs});
}

// Whether ours left an entry unchanged, so that theirs can replace it.
bool EntryMerge::canAdopt(const MergedItem &item) const {
    return item.isIn(&MergedItem::base) &&
           m_records.ours.at(item.ours) == m_records.base.at(item.base) &&
           mergedKey(item) == theirsKey(item);
}

void EntryMerge::mergeContent(const MergedItem &item, const FieldPath &path) {
    Sides<QJsonValue> values = valuesOf(item);
    if (!item.isIn(&MergedItem::base))
        values.base = toJson(m_row.emptyEntry(oursKey(item)));
    mergeFields(mapped(values,
                       [this](const QJsonValue &value) {
                           QJsonObject fields = value.toObject();
                           fields.remove(QLatin1String(m_row.keyName()));
                           return fields;
                       }),
                path, m_merge);
}

// Reports entries that ours removed and theirs changed.
void EntryMerge::reportRemoved() {
    for (int i = 0; i < m_records.base.size(); ++i) {
        const MergedItem item{i, m_matches.ours.newIndex(i), m_matches.theirs.newIndex(i)};
        if (!item.isIn(&MergedItem::ours) && item.isIn(&MergedItem::theirs) &&
            (theirsKey(item) != baseKey(item) ||
             m_entries.theirs.fields(item.theirs) != m_entries.base.fields(i)))
            m_merge.addConflict(FieldPath(m_path).entry(toUtf8(baseKey(item))), valuesOf(item));
    }
}

// Reports keys that the sides gave to different entries, one of them by renaming.
void EntryMerge::reportEqualKeys(const QStringList &keys) {
    QHash<QString, int> counts;
    for (const QString &key : keys)
        ++counts[key];
    const auto isAtMost = [](int count, const EntrySummaries &side, const QString &key) {
        return count == 1 || count <= int(side.keys.count(key));
    };
    for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
        if (!isAtMost(each.value(), m_entries.ours, each.key()) &&
            !isAtMost(each.value(), m_entries.theirs, each.key()))
            m_merge.addConflict(FieldPath(m_path)
                                    .entry(toUtf8(each.key()), each.value() - 1)
                                    .field(m_row.keyName()),
                                {QJsonValue::Undefined, each.key(), each.key()});
    }
}

} // namespace

void mergeEntries(const FieldRow<PackageInfoModel> &row, const Sides<PackageInfoModel *> &packages,
                  FieldMerge &merge) {
    EntryMerge(row, packages, merge).run();
}

} // namespace Zel::PackageModel
