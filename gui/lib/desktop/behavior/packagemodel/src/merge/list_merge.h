#pragma once

#include "../fields/sequence_match.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace Zel::PackageModel {

/// A value for each of the three packages in a merge.
template<typename T>
struct Sides {
    T base;
    T ours;
    T theirs;
};

/// Applies the function to each side.
template<typename T, typename Function>
auto mapped(const Sides<T> &sides, Function function) -> Sides<decltype(function(sides.base))> {
    return {function(sides.base), function(sides.ours), function(sides.theirs)};
}

/// Which items of the three lists correspond.
struct ListMatches {
    SequenceMatch ours;   ///< from base to ours
    SequenceMatch theirs; ///< from base to theirs
    SequenceMatch added;  ///< from ours to theirs: items added by both
};

/// How items are matched.
enum class ItemIdentity {
    Text, ///< equal text only
    Place ///< equal text, or a replacement at the same position
};

ListMatches matchTexts(const Sides<QStringList> &texts, ItemIdentity identity);

/// Pairs items that both sides added with the same text.
void matchAdded(ListMatches &matches, const QStringList &oursTexts, const QStringList &theirsTexts);

/// An item of a merged list, by its index on each side that has it.
struct MergedItem {
    int base = SequenceMatch::none;
    int ours = SequenceMatch::none;
    int theirs = SequenceMatch::none;

    bool isIn(int MergedItem::*side) const { return this->*side != SequenceMatch::none; }
};

/// The merged items in order. `stays` decides whether an item that only theirs removed is kept.
std::vector<MergedItem> mergedItems(const ListMatches &matches,
                                    const std::function<bool(const MergedItem &)> &stays);

/// Pairs the items of ours with merged ones.
SequenceMatch matchOfOurs(const std::vector<MergedItem> &items, int oursSize);

/// The merged list of texts that identify themselves.
QStringList mergedTexts(const Sides<QStringList> &texts);

} // namespace Zel::PackageModel
