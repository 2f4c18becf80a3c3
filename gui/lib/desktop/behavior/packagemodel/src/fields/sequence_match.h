#pragma once

#include <QStringList>

#include <vector>

namespace Zel::PackageModel {

/// Pairs items of an old sequence with items of a new one. An item has at most one partner.
class SequenceMatch {
public:
    static constexpr int none = -1;

    SequenceMatch(int oldSize, int newSize);

    int oldSize() const { return static_cast<int>(m_newIndexes.size()); }
    int newSize() const { return static_cast<int>(m_oldIndexes.size()); }
    /// The new index of an old item, or `none`.
    int newIndex(int oldIndex) const { return m_newIndexes[std::size_t(oldIndex)]; }
    int oldIndex(int newIndex) const { return m_oldIndexes[std::size_t(newIndex)]; }

    /// Pairs two unpaired items.
    void pair(int oldIndex, int newIndex);
    /// Pairs unpaired items with equal texts: from both ends, then in order.
    void pairEqual(const QStringList &oldTexts, const QStringList &newTexts);
    /// Pairs unpaired items whose predecessors are paired, or which both come first.
    void pairReplaced();

private:
    bool isFree(int oldIndex, int newIndex) const;

    std::vector<int> m_newIndexes; // by old index
    std::vector<int> m_oldIndexes; // by new index
};

} // namespace Zel::PackageModel
