#pragma once

#include "sequence_match.h"

namespace Zel::PackageModel {

/// The move of one item. Its indexes assume that all earlier moves are done.
struct SequenceMove {
    int item;       ///< its index in the new sequence
    int occurrence; ///< the number of items with its name before it
    int to;         ///< its index after the move
};

/// A minimal list of moves that brings the paired items into their new order, ignoring all others.
/// `names` are those of the new items.
std::vector<SequenceMove> movesOf(const SequenceMatch &match, const QStringList &names);

} // namespace Zel::PackageModel
