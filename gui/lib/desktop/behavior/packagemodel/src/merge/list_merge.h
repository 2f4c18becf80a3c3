#pragma once

#include "../fields/sequence_match.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace Zel::PackageModel {

/// The same thing of the three versions of a package that a merge compares.
template<typename T>
struct Sides {
    T base;
    T ours;
    T theirs;
};

/// The function's result for each side.
template<typename T, typename Function>
auto mapped(const Sides<T> &sides, Function function) -> Sides<decltype(function(sides.base))> {
    return {function(sides.base), function(sides.ours), function(sides.theirs)};
}

/// Which items of the lists of three sides are the same.
struct ListMatches {
    SequenceMatch ours;   ///< from those of the base
    SequenceMatch theirs; ///< from those of the base
    SequenceMatch added;  ///< from ours to theirs: what both sides added
};

/// How items of texts are the same.
enum class ItemIdentity {
    Text, ///< by their text alone
    Place ///< also where another text replaces them in their place
};

ListMatches matchTexts(const Sides<QStringList> &texts, ItemIdentity identity);

/// Pairs what both sides added and has the same text on both.
void matchAdded(ListMatches &matches, const QStringList &oursTexts, const QStringList &theirsTexts);

/// An item of a merged list, by its indexes on the sides that have it.
struct MergedItem {
    int base = SequenceMatch::none;
    int ours = SequenceMatch::none;
    int theirs = SequenceMatch::none;

    bool isIn(int MergedItem::*side) const { return this->*side != SequenceMatch::none; }
};

/// The items of the merged list in order. An item that only theirs removed stays if `stays` says
/// so.
std::vector<MergedItem> mergedItems(const ListMatches &matches,
                                    const std::function<bool(const MergedItem &)> &stays);

/// Which of the items of ours continue as which merged ones.
SequenceMatch matchOfOurs(const std::vector<MergedItem> &items, int oursSize);

/// The merged list of texts that are what identifies them.
QStringList mergedTexts(const Sides<QStringList> &texts);

} // namespace Zel::PackageModel
