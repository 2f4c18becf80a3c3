#pragma once

#include "sequence_match.h"

namespace Zel::PackageModel {

/// The move of one item. The indexes hold when all earlier moves are done.
struct SequenceMove {
    int item;       ///< its index in the new sequence
    int occurrence; ///< how many items with its name precede it
    int to;         ///< its index after the move
};

/// The fewest moves that bring the paired items into their new order, as if there were no others.
/// `names` are those of the new items.
std::vector<SequenceMove> movesOf(const SequenceMatch &match, const QStringList &names);

} // namespace Zel::PackageModel
