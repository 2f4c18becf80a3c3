#include "list_merge.h"

#include "../fields/sequence_moves.h"

#include <QHash>

#include <utility>

namespace Zel::PackageModel {
namespace {

constexpr int none = SequenceMatch::none;

SequenceMatch matchFrom(const QStringList &base, const QStringList &side, ItemIdentity identity) {
    SequenceMatch match(int(base.size()), int(side.size()));
    match.pairEqual(base, side);
    if (identity == ItemIdentity::Place)
        match.pairReplaced();
    return match;
}

// Which items a side has moved.
std::vector<bool> movedItems(const SequenceMatch &match) {
    QStringList names;
    for (int i = 0; i < match.newSize(); ++i)
        names.append(QString());
    std::vector<bool> moved(std::size_t(match.newSize()));
    for (const SequenceMove &move : movesOf(match, names))
        moved[std::size_t(move.item)] = true;
    return moved;
}

// Builds the merged order: that of ours, in which items that theirs added or moved follow their
// predecessors in theirs.
class MergedOrder {
public:
    MergedOrder(const ListMatches &matches, const std::function<bool(const MergedItem &)> &stays)
        : m_matches(matches)
        , m_stays(stays)
        , m_movedByOurs(movedItems(matches.ours))
        , m_movedByTheirs(movedItems(matches.theirs)) {}

    std::vector<MergedItem> take() {
        placeOurs();
        placeTheirs();
        return join();
    }

private:
    MergedItem itemOfOurs(int index) const {
        const int base = m_matches.ours.oldIndex(index);
        const int theirs =
            base == none ? m_matches.added.newIndex(index) : m_matches.theirs.newIndex(base);
        return {base, index, theirs};
    }
    MergedItem itemOfTheirs(int index) const {
        const int base = m_matches.theirs.oldIndex(index);
        const int ours =
            base == none ? m_matches.added.oldIndex(index) : m_matches.ours.newIndex(base);
        return {base, ours, index};
    }
    bool isPlacedByTheirs(const MergedItem &item) const {
        if (!item.isIn(&MergedItem::theirs))
            return false;
        if (!item.isIn(&MergedItem::ours))
            return !item.isIn(&MergedItem::base);
        return item.isIn(&MergedItem::base) && m_movedByTheirs[std::size_t(item.theirs)] &&
               !m_movedByOurs[std::size_t(item.ours)];
    }

    void placeOurs() {
        for (int i = 0; i < m_matches.ours.newSize(); ++i) {
            const MergedItem item = itemOfOurs(i);
            const bool isRemoved =
                item.isIn(&MergedItem::base) && !item.isIn(&MergedItem::theirs) && !m_stays(item);
            if (!isRemoved && !isPlacedByTheirs(item))
                m_order.push_back(item);
        }
    }
    // Whether neither side moved an item.
    bool isFixed(const MergedItem &item) const {
        return item.isIn(&MergedItem::ours) && item.isIn(&MergedItem::theirs) &&
               !m_movedByOurs[std::size_t(item.ours)];
    }
    void placeTheirs() {
        int previous = none; // the last fixed item
        for (int i = 0; i < m_matches.theirs.newSize(); ++i) {
            const MergedItem item = itemOfTheirs(i);
            if (isPlacedByTheirs(item))
                m_behind[previous].push_back(item);
            else if (isFixed(item))
                previous = i;
        }
    }
    // Items only in ours precede items of theirs at the same position.
    std::vector<MergedItem> join() {
        std::vector<MergedItem> joined;
        const auto append = [&](const std::vector<MergedItem> &items) {
            joined.insert(joined.end(), items.begin(), items.end());
        };
        std::vector<MergedItem> waiting = m_behind.value(none);
        for (const MergedItem &item : m_order) {
            if (isFixed(item))
                append(std::exchange(waiting, m_behind.value(item.theirs)));
            joined.push_back(item);
        }
        append(waiting);
        return joined;
    }

    const ListMatches &m_matches;
    const std::function<bool(const MergedItem &)> &m_stays;
    std::vector<bool> m_movedByOurs;
    std::vector<bool> m_movedByTheirs;
    std::vector<MergedItem> m_order;
    QHash<int, std::vector<MergedItem>> m_behind; // by index in theirs
};

} // namespace

void matchAdded(ListMatches &matches, const QStringList &oursTexts,
                const QStringList &theirsTexts) {
    QHash<QString, std::vector<int>> free; // by text, indexes in ours in descending order
    for (int i = int(oursTexts.size()) - 1; i >= 0; --i) {
        if (matches.ours.oldIndex(i) == none)
            free[oursTexts.at(i)].push_back(i);
    }
    for (int i = 0; i < theirsTexts.size(); ++i) {
        const auto found =
            matches.theirs.oldIndex(i) == none ? free.find(theirsTexts.at(i)) : free.end();
        if (found == free.end() || found->empty())
            continue;
        matches.added.pair(found->back(), i);
        found->pop_back();
    }
}

ListMatches matchTexts(const Sides<QStringList> &texts, ItemIdentity identity) {
    ListMatches matches{matchFrom(texts.base, texts.ours, identity),
                        matchFrom(texts.base, texts.theirs, identity),
                        SequenceMatch(int(texts.ours.size()), int(texts.theirs.size()))};
    matchAdded(matches, texts.ours, texts.theirs);
    return matches;
}

std::vector<MergedItem> mergedItems(const ListMatches &matches,
                                    const std::function<bool(const MergedItem &)> &stays) {
    return MergedOrder(matches, stays).take();
}

SequenceMatch matchOfOurs(const std::vector<MergedItem> &items, int oursSize) {
    SequenceMatch match(oursSize, int(items.size()));
    for (int i = 0; i < int(items.size()); ++i) {
        if (items[std::size_t(i)].isIn(&MergedItem::ours))
            match.pair(items[std::size_t(i)].ours, i);
    }
    return match;
}

QStringList mergedTexts(const Sides<QStringList> &texts) {
    QStringList merged;
    const ListMatches matches = matchTexts(texts, ItemIdentity::Text);
    for (const MergedItem &item : mergedItems(matches, [](const MergedItem &) { return false; }))
        merged +=
            item.isIn(&MergedItem::ours) ? texts.ours.at(item.ours) : texts.theirs.at(item.theirs);
    return merged;
}

} // namespace Zel::PackageModel
