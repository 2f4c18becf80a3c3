#pragma once

#include <QStringList>

#include <vector>

namespace Zel::PackageModel {

/// Which items of an old sequence continue as which items of a new one. An item has at most one
/// partner.
class SequenceMatch {
public:
    static constexpr int none = -1;

    SequenceMatch(int oldSize, int newSize);

    int oldSize() const { return static_cast<int>(m_newIndexes.size()); }
    int newSize() const { return static_cast<int>(m_oldIndexes.size()); }
    /// The new index of an old item; `none` without a partner.
    int newIndex(int oldIndex) const { return m_newIndexes[std::size_t(oldIndex)]; }
    int oldIndex(int newIndex) const { return m_oldIndexes[std::size_t(newIndex)]; }

    /// Pairs two items, which are free.
    void pair(int oldIndex, int newIndex);
    /// Pairs free items with equal texts: first from both ends on, then in order.
    void pairEqual(const QStringList &oldTexts, const QStringList &newTexts);
    /// Pairs free items whose predecessors are a pair, or which both come first.
    void pairReplaced();

private:
    bool isFree(int oldIndex, int newIndex) const;

    std::vector<int> m_newIndexes; // by old index
    std::vector<int> m_oldIndexes; // by new index
};

} // namespace Zel::PackageModel
